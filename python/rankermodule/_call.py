"""How the C library is called, and what a status becomes."""
from __future__ import annotations

import ctypes
import enum
import operator
import threading
import weakref
from ctypes import byref, c_int32, c_size_t, c_uint32, c_void_p
from typing import Any, Callable, Iterable, Iterator, Optional, Type, TypeVar

from ._c import SIGNATURES, library


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


Struct = TypeVar("Struct", bound=ctypes.Structure)


def sized(struct: Type[Struct], /, **members: Any) -> Struct:
    """A structure that tells its size. ctypes cuts a number that is too large; here it is refused."""
    made = struct(struct_size=ctypes.sizeof(struct), **members)
    for name, value in members.items():
        if isinstance(value, int) and getattr(made, name) != value:
            raise BadArgument(f"{name} is {value}, which is too large")
    return made


class _Calls(threading.local):
    """The calls at work in this thread, the innermost last: what a callback of each has raised, on its way through
    the library."""

    def __init__(self) -> None:
        self.raised: list[Optional[BaseException]] = []


_calls = _Calls()


def guarded(function: Callable[..., object]) -> Callable[..., int]:
    """A callback as the library takes it. What it raises waits for the call that led to it. (Without one, when a
    display fed the event, Python reports it as an exception that nobody can catch.)"""
    def run(*arguments: Any) -> int:
        try:
            function(*arguments)
        except BaseException as error:  # nothing may go through the frames of C
            if not _calls.raised:
                raise
            _calls.raised[-1] = _calls.raised[-1] or error
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
    _calls.raised.append(None)
    try:
        status: int = getattr(library, name)(*given)
    finally:
        error = _calls.raised.pop()
    if error is not None:
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
    block = "\0".join(given) + "\0" if given else ""
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
