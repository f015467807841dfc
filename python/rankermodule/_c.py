"""The C library by ctypes: its structures, how it is called, and what a status becomes."""
from __future__ import annotations

import ctypes
import enum
import operator
import sys
import threading
import weakref
from ctypes import byref, c_char_p, c_double, c_int32, c_size_t, c_uint32, c_void_p
from pathlib import Path
from typing import Any, Callable, Iterable, Iterator, Optional, Type, TypeVar

library = ctypes.CDLL(
    str(Path(__file__).with_name("RankerC.dll" if sys.platform == "win32" else "libRankerC.so.1")))
library.rk_last_error.restype = c_char_p

# The functions in use and their parameters: a handle, a text (pointer and length), an int32, a size, any pointer.
_PARAMETERS = {"h": [c_void_p], "t": [c_char_p, c_size_t], "i": [c_int32], "z": [c_size_t], "p": [c_void_p]}
SIGNATURES: dict[str, str] = dict(word.split(":") for word in """
    rk_version:pp rk_context_create:p rk_context_destroy:h rk_context_set_callbacks:hp

    rk_text_read:hith rk_text_compose:hipzpzp rk_text_measure:hitp rk_text_compare:hittp rk_name_parts:hth
    rk_bars_head:htpzp rk_bars_same_diameter:http rk_bars_same_essence:http rk_stirrup_tight_form:htpzp
    rk_elevation_key:htipzp

    rk_list_create:hp rk_list_destroy:h rk_list_add_block:ht rk_list_add_numbers:hpz rk_list_count:hp
    rk_list_block:hpp rk_list_numbers:hpp

    rk_bar_table_count:p rk_bar_table_row:zp rk_bar_table_find:hiiithp
    rk_stirrup_table_count:p rk_stirrup_table_row:zp rk_stirrup_table_find:hiiih

    rk_ranker_create:hip rk_ranker_destroy:h rk_ranker_set_bars:hiit rk_ranker_set_stirrups:hiii
    rk_ranker_set_project_kind:hi rk_ranker_set_previous_name:htp rk_ranker_run:hhh
    rk_ranker_add_table_rows:hh rk_ranker_focus:hp

    rk_panel_create:hpp rk_panel_destroy:h rk_panel_set_text:ht rk_panel_show:hii rk_panel_hide:h
    rk_panel_event:hpp rk_panel_click:hiii rk_panel_edit:hit rk_panel_get_state:hp rk_panel_result:hipzp
    rk_panel_control_at:hip rk_panel_control:hip rk_panel_rows:hih rk_panel_row_place:hiip
    """.split())
for _name, _signature in SIGNATURES.items():
    getattr(library, _name).argtypes = sum((_PARAMETERS[letter] for letter in _signature), [])


class Status(enum.IntEnum):
    """What a call of the library answers."""

    OK = 0
    BAD_ARGUMENT = 1
    BAD_HANDLE = 2
    BAD_INDEX = 3
    BAD_TEXT = 4
    TOO_SMALL = 5
    NOT_DONE = 6
    CALLBACK = 7
    NO_MEMORY = 8
    FAILED = 9


class RankerError(Exception):
    """A call that was not done. Its message is the library's, `status` the reason as a Status (as a plain
    number if the library is newer than this package)."""

    status: int = Status.FAILED


class BadArgument(RankerError, ValueError):
    """A value that the parameter does not have."""

    status = Status.BAD_ARGUMENT


class Closed(RankerError):
    """The object, or its host, was closed before."""

    status = Status.BAD_HANDLE


class BadIndex(RankerError, IndexError):
    """No such row, control or group."""

    status = Status.BAD_INDEX


class BadText(RankerError, ValueError):
    """A text with a zero character, or with one that GBK, in which the module keeps texts, lacks."""

    status = Status.BAD_TEXT


class NotDone(RankerError):
    """The rule does not apply to this text, or the control refuses."""

    status = Status.NOT_DONE


ERRORS: dict[int, Type[RankerError]] = {
    error.status: error for error in (BadArgument, Closed, BadIndex, BadText, NotDone)}


class Text(ctypes.Structure):
    _fields_ = [("data", c_void_p), ("length", c_size_t)]

    def __str__(self) -> str:
        return ctypes.string_at(self.data, self.length).decode() if self.data else ""

    @classmethod
    def of(cls, data: bytes) -> Text:
        """Borrows bytes, which must be kept as long as it."""
        return cls(ctypes.cast(c_char_p(data), c_void_p), len(data))


class Delivery(ctypes.Structure):
    _fields_ = [("struct_size", c_size_t), ("route", c_int32), ("mode", c_int32), ("code", c_int32),
                ("text", Text)]


ASK = ctypes.CFUNCTYPE(c_int32, c_void_p, c_void_p)
ASK_ABOUT = ctypes.CFUNCTYPE(c_int32, c_void_p, c_void_p, c_void_p, c_size_t)
DELIVER = ctypes.CFUNCTYPE(c_int32, c_void_p, c_void_p, ctypes.POINTER(Delivery))
MESSAGE = ctypes.CFUNCTYPE(c_int32, c_void_p, c_void_p, c_size_t)


class Callbacks(ctypes.Structure):
    _fields_ = [("struct_size", c_size_t), ("user", c_void_p), ("beam_types", ASK), ("beam_numbers", ASK_ABOUT),
                ("sections", ASK), ("elevations", ASK), ("stirrups", ASK), ("bars", ASK_ABOUT),
                ("deliver", DELIVER), ("message", MESSAGE)]


class Measures(ctypes.Structure):
    _fields_ = [("struct_size", c_size_t), ("level", c_double)] + [
        (name, c_int32) for name in ("serial", "width", "height", "count", "diameter", "tenths", "grade",
                                     "tight_spacing", "spacing", "legs")]


class BarRow(ctypes.Structure):
    _fields_ = [("struct_size", c_size_t), ("width", c_int32), ("area", c_int32), ("through", Text),
                ("total", Text), ("bottom", Text)]


class StirrupRow(ctypes.Structure):
    _fields_ = [("struct_size", c_size_t), ("width", c_int32), ("grade", c_int32), ("ratio", c_double),
                ("plain", Text), ("tight", Text)]


class PanelOptions(ctypes.Structure):
    _fields_ = [("struct_size", c_size_t), ("kind", c_int32), ("route", c_int32), ("bar_kind", c_int32)]


class Event(ctypes.Structure):
    _fields_ = [("struct_size", c_size_t), ("message", c_int32), ("control", c_int32), ("x", c_int32),
                ("y", c_int32), ("key", c_uint32), ("turn", c_int32)]


class Rect(ctypes.Structure):
    _fields_ = [("left", c_int32), ("top", c_int32), ("right", c_int32), ("bottom", c_int32)]


class PanelState(ctypes.Structure):
    _fields_ = [("struct_size", c_size_t), ("visible", c_int32), ("focus", c_int32), ("controls", c_int32),
                ("groups", c_int32), ("new_piece", c_int32), ("place", Rect)]


class Control(ctypes.Structure):
    _fields_ = [("struct_size", c_size_t), ("id", c_int32), ("kind", c_int32), ("visible", c_int32),
                ("enabled", c_int32), ("place", Rect), ("rows", c_int32), ("selection", c_int32),
                ("top", c_int32), ("text", Text)]


Struct = TypeVar("Struct", bound=ctypes.Structure)


def sized(struct: Type[Struct], /, **members: Any) -> Struct:
    """A structure that tells its size. ctypes cuts a number that is too large; here it is refused."""
    made = struct(struct_size=ctypes.sizeof(struct), **members)
    for name, value in members.items():
        if isinstance(value, int) and getattr(made, name) != value:
            raise BadArgument(f"{name} is {value}, which is too large")
    return made


class _Thread(threading.local):
    calls = 0  # of the library, that are at work in this thread
    raised: Optional[BaseException] = None  # by a callback, on its way through the library


_here = _Thread()


def guarded(function: Callable[..., object]) -> Callable[..., int]:
    """A callback as the library takes it. What it raises waits for the call that led to it. (Without one, when a
    display fed the event, Python reports it as an exception that nobody can catch.)"""
    def run(*arguments: Any) -> int:
        try:
            function(*arguments)
        except BaseException as error:  # nothing may go through the frames of C
            if not _here.calls:
                raise
            _here.raised = _here.raised or error
            return 1
        return 0
    return run


def _arguments(signature: str, given: Iterable[Any]) -> Iterator[object]:
    for letter, argument in zip(signature, given):
        if letter == "t":
            if not isinstance(argument, str):
                raise TypeError(f"a text is a str, not {argument!r}")
            text = argument.encode("utf-8", "surrogatepass")
            yield text
            yield len(text)
        elif letter == "i":
            number = operator.index(argument)
            if not -2**31 <= number < 2**31:
                raise BadArgument(f"{number} is too large")
            yield number
        else:
            yield argument


def _run(name: str, arguments: Iterable[object]) -> int:
    given = list(_arguments(SIGNATURES[name], arguments))
    _here.calls += 1
    try:
        status: int = getattr(library, name)(*given)
    finally:
        _here.calls -= 1
    if _here.raised is not None:
        error, _here.raised = _here.raised, None
        raise error
    return status


def _check(status: int) -> None:
    if status == Status.NO_MEMORY:
        raise MemoryError(library.rk_last_error().decode())
    if status != Status.OK:
        error = ERRORS.get(status, RankerError)(library.rk_last_error().decode())
        error.status = Status(status) if status in Status.__members__.values() else status
        raise error


def call(name: str, *arguments: object) -> None:
    """Calls a function and raises what its status, or a callback, says."""
    _check(_run(name, arguments))


def number_from(name: str, *arguments: object) -> int:
    """The number that a function writes into its last parameter."""
    number = c_int32()
    call(name, *arguments, byref(number))
    return number.value


def text_from(name: str, *arguments: object) -> str:
    """The text that a function writes into a buffer."""
    length = c_size_t()
    size = 128
    while True:
        buffer = ctypes.create_string_buffer(size)
        status = _run(name, (*arguments, buffer, size, byref(length)))
        if status != Status.TOO_SMALL:
            _check(status)
            return buffer.raw[:length.value].decode()
        size = length.value + 1


_Self = TypeVar("_Self", bound="Handle")


class Handle:
    """An object of the library. It goes with `close`, at the end of a `with`, with its host, or when Python
    lets go of it; used after that it raises Closed."""

    def __init__(self, create: str, *arguments: object) -> None:
        self._handle = c_void_p()
        call(create, *arguments, byref(self._handle))
        self._finalizer = weakref.finalize(
            self, getattr(library, create.replace("create", "destroy")), self._handle)

    def close(self) -> None:
        """Lets go of it. Closing again does nothing."""
        self._finalizer()

    def __enter__(self: _Self) -> _Self:
        return self

    def __exit__(self, *error: object) -> None:
        self.close()


def add_texts(handle: c_void_p, texts: Iterable[str]) -> None:
    """Adds texts to a list of the library in one call: all, or none if one is bad."""
    if isinstance(texts, str):
        raise TypeError("texts are given as a list of texts, not as one text")
    given = list(texts)
    block = "".join([text + "\0" for text in given])
    if block.count("\0") != len(given):
        raise BadText("a text holds a zero character")
    call("rk_list_add_block", handle, block)


def texts_of(handle: c_void_p) -> list[str]:
    """All texts of a list of the library."""
    block, size = c_void_p(), c_size_t()
    call("rk_list_block", handle, byref(block), byref(size))
    return ctypes.string_at(block, size.value).decode().split("\0")[:-1] if size.value else []


def numbers_of(handle: c_void_p) -> list[int]:
    """All numbers of a list of the library."""
    numbers, count = ctypes.POINTER(c_uint32)(), c_size_t()
    call("rk_list_numbers", handle, byref(numbers), byref(count))
    return numbers[:count.value] if count.value else []
