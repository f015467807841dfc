"""A host: what the module asks it, what the module tells it, and what it has made."""
from __future__ import annotations

import ctypes
import enum
from ctypes import byref, c_uint32, c_void_p
from dataclasses import dataclass
from typing import TYPE_CHECKING, Any, Callable, Iterable, Optional, Tuple

from . import _c, _call

if TYPE_CHECKING:
    from .panel import Panel


class Route(enum.IntEnum):
    """How a panel hands over its text."""

    ITEM = 0  # as to an item of a property grid: one text a confirmation
    PARENT = 1  # as to a drawing's window: code 0 section, 1 stirrup, 7 elevation, 8 name, 20 to 24 bars
    HOST = 2  # as to the host's own data: bars as codes 0, 8 and 9, through, torsion and side bars


@dataclass(frozen=True)
class Delivery:
    """A text that the user has confirmed in a panel."""

    text: str
    route: Route
    mode: int  # as the module tells it: 1 to a parent, 0 or 2 to host data, 0 to an item
    code: int  # what the text is, see Route; 0 to an item


Ask = Callable[[], Iterable[str]]


class Host(_call.Handle):
    """Callbacks, which are attributes and can be changed at any time; None adds nothing.

    beam_types()         types in use, such as "KL"
    beam_numbers(type)   for a type the suffixes in use, with brackets, and the serials: (["(2A)"], [1, 4])
    sections(), elevations(), stirrups()   the project's texts
    bars(kind)           the project's bar texts for the kind that the ranker was given
    deliver(panel, delivery)   a text that was confirmed in a panel, which is hidden by then
    message(text)        something to show to the user

    They run inside the call that caused them, in its thread, and may call everything here. What one raises
    comes out of that call; the call has been carried out without its answer. A callback must not wait for
    another thread that uses this package.
    """

    def __init__(self, *, beam_types: Optional[Ask] = None,
                 beam_numbers: Optional[Callable[[str], Tuple[Iterable[str], Iterable[int]]]] = None,
                 sections: Optional[Ask] = None, elevations: Optional[Ask] = None,
                 stirrups: Optional[Ask] = None, bars: Optional[Callable[[str], Iterable[str]]] = None,
                 deliver: Optional[Callable[[Panel, Delivery], object]] = None,
                 message: Optional[Callable[[str], object]] = None) -> None:
        self.beam_types = beam_types
        self.beam_numbers = beam_numbers
        self.sections = sections
        self.elevations = elevations
        self.stirrups = stirrups
        self.bars = bars
        self.deliver = deliver
        self.message = message
        self._panels: dict[int, Panel] = {}  # alive until closed: a panel is shown while nobody holds it
        super().__init__("rk_context_create")
        # The library keeps the pointers, this object what they point to.
        self._callbacks = _call.sized(
            _c.Callbacks, beam_types=self._ask("beam_types"), beam_numbers=_c.ASK_ABOUT(_call.guarded(self._numbers)),
            sections=self._ask("sections"), elevations=self._ask("elevations"), stirrups=self._ask("stirrups"),
            bars=_c.ASK_ABOUT(_call.guarded(self._bars)), deliver=_c.DELIVER(_call.guarded(self._deliver)),
            message=_c.MESSAGE(_call.guarded(self._message)))
        _call.call("rk_context_set_callbacks", self._handle, byref(self._callbacks))

    def _ask(self, name: str) -> Any:
        def answer(_user: object, handle: int) -> None:
            callback = getattr(self, name)
            if callback is not None:
                _call.add_texts(c_void_p(handle), callback())
        return _c.ASK(_call.guarded(answer))

    def _bars(self, _user: object, handle: int, kind: int, length: int) -> None:
        if self.bars is not None:
            _call.add_texts(c_void_p(handle), self.bars(ctypes.string_at(kind, length).decode()))

    def _numbers(self, _user: object, handle: int, beam_type: int, length: int) -> None:
        if self.beam_numbers is not None:
            suffixes, serials = self.beam_numbers(ctypes.string_at(beam_type, length).decode())
            _call.add_texts(c_void_p(handle), suffixes)
            numbers = list(serials)
            if any(not 0 <= number < 2**32 for number in numbers):
                raise _call.BadArgument("a serial is negative or too large")
            _call.call("rk_list_add_numbers", c_void_p(handle), (c_uint32 * len(numbers))(*numbers),
                    len(numbers))

    def _deliver(self, _user: object, panel: int, delivery: Any) -> None:
        if self.deliver is not None:
            told = delivery.contents
            self.deliver(self._panels[panel],
                         Delivery(str(told.text), Route(told.route), told.mode, told.code))

    def _message(self, _user: object, text: int, length: int) -> None:
        if self.message is not None:
            self.message(ctypes.string_at(text, length).decode())


DEFAULT = Host()  # of what needs no callbacks


class Texts(_call.Handle):
    """Texts that the library keeps: converted once, they serve many runs."""

    def __init__(self, texts: Iterable[str] = ()) -> None:
        """Raises BadText, which tells the first one, if one is bad."""
        super().__init__("rk_list_create", DEFAULT._handle)
        _call.add_texts(self._handle, texts)

    def __len__(self) -> int:
        count = ctypes.c_size_t()
        _call.call("rk_list_count", self._handle, byref(count))
        return count.value

    def read(self) -> list[str]:
        """All of them."""
        return _call.texts_of(self._handle)

    def numbers(self) -> list[int]:
        """The stamps of a ranked list, none of any other."""
        return _call.numbers_of(self._handle)
