"""Panels and pickers: made, given a text, shown, driven by events, read.

Nothing is drawn. A host draws the controls that `Panel.controls` tells with its own toolkit, feeds what the
user does to `Panel.event`, and reads the controls again. Use panels from one thread, that of the user
interface. All places are in pixels.
"""
from __future__ import annotations

import enum
from ctypes import byref, c_int32
from dataclasses import dataclass
from typing import NamedTuple

from . import _c, _call
from .host import Host, Route, Texts

THE_PANEL = 0  # as a control's id: the panel itself
THE_FOCUS = -2  # the control of the panel that has the focus, else the panel itself
LABEL = -1  # the id of labels that nobody asks for


class PanelKind(enum.IntEnum):
    """The five panels for beams, which compose one text each, and the two pickers for walls."""

    NAME_PANEL = 0
    SECTION_PANEL = 1
    ELEVATION_PANEL = 2
    STIRRUP_PANEL = 3
    BAR_PANEL = 4
    HORIZONTAL_PICKER = 5  # wall bars "A10@100/200", to an item alone
    VERTICAL_PICKER = 6  # "B16", to an item alone


class Click(enum.IntEnum):
    """What a hand does with the mouse."""

    CLICK = 0
    DOUBLE_CLICK = 1
    RIGHT_CLICK = 2


class Message(enum.IntEnum):
    """Events, with the numbers that Windows developers know."""

    KEY_DOWN = 0x100
    KEY_UP = 0x101
    CHARACTER = 0x102
    MOUSE_MOVE = 0x200
    LEFT_DOWN = 0x201
    LEFT_UP = 0x202
    LEFT_DOUBLE = 0x203
    RIGHT_DOWN = 0x204
    RIGHT_UP = 0x205
    RIGHT_DOUBLE = 0x206
    WHEEL = 0x20A


class ControlKind(enum.IntEnum):
    """What a control is."""

    A_LABEL = 0
    AN_EDIT_BOX = 1
    A_LIST_BOX = 2
    A_BUTTON = 3


class Rect(NamedTuple):
    """Pixels; right and bottom are just outside."""

    left: int
    top: int
    right: int
    bottom: int


@dataclass(frozen=True)
class State:
    """A panel as it is now."""

    visible: bool
    focus: int  # id of the control with the focus, THE_PANEL when none of this panel has it
    new_piece: bool  # bar panel: whether a click composes a new piece or rewrites the chosen one
    place: Rect  # on the screen


@dataclass(frozen=True)
class Control:
    """A control of a panel as it is now."""

    id: int
    kind: ControlKind
    visible: bool
    enabled: bool
    place: Rect  # in the panel's client area, which is all of the panel
    rows: int  # of a list box, else 0
    selection: int  # row of a list box, -1 for none
    top: int  # the first row of a list box in view
    text: str  # caption, or what an edit box holds


def _rect(told: _c.Rect) -> Rect:
    return Rect(told.left, told.top, told.right, told.bottom)


class Panel(_call.Handle):
    """A panel or picker with its window, hidden at first. Its host keeps it until one of them is closed."""

    def __init__(self, kind: PanelKind, host: Host, route: Route = Route.ITEM, bar_kind: int = -1) -> None:
        """The route tells how host.deliver gets the text; the name panel knows no HOST, a picker ITEM alone.
        The bar panel is open for a bar_kind: -1 all groups, 0 to 4 one group, 5 and 6 the end bars at the
        left and the right, 7 and 8 a top or bottom annotation with torsion and side bars; any other number
        counts as -1."""
        self.kind = kind
        self.host = host
        options = _call.sized(_c.PanelOptions, kind=kind, route=route, bar_kind=bar_kind)
        super().__init__("rk_panel_create", host._handle, byref(options))
        self._number = self._handle.value or 0
        host._panels[self._number] = self

    def close(self) -> None:
        super().close()
        self.host._panels.pop(self._number, None)

    def set_text(self, text: str) -> None:
        """The text for the next use, into the controls as far as it can be read. The bar panel takes the
        empty text alone. A picker that has delivered takes no press before its next text."""
        _call.call("rk_panel_set_text", self._handle, text)

    def show(self, x: int, y: int) -> None:
        """Shows it above all others, its corner at this place on the screen."""
        _call.call("rk_panel_show", self._handle, x, y)

    def hide(self) -> None:
        """Hides it; nothing is delivered."""
        _call.call("rk_panel_hide", self._handle)

    def event(self, message: Message, control: int = THE_FOCUS, *, x: int = 0, y: int = 0, key: int = 0,
              turn: int = 0) -> bool:
        """Offers an event to the panel and hands it to the control if that does not finish it; answers
        whether it did. x and y are from the control's corner, the key a key's number as on Windows (27 is
        Esc) or of a character its code point, the turn of the wheel 120 a notch, above 0 away from the user.
        A hidden panel gets nothing. A right press confirms, Esc dismisses."""
        told = _call.sized(_c.Event, message=message, control=control, x=x, y=y, key=key, turn=turn)
        return bool(_call.number_from("rk_panel_event", self._handle, byref(told)))

    def click(self, control: int, row: int = -1, how: Click = Click.CLICK) -> None:
        """By events as above: on a row of a list, brought into view before, or with row -1 in the middle of
        a control. Raises NotDone while the panel is hidden."""
        _call.call("rk_panel_click", self._handle, control, row, how)

    def confirm(self) -> None:
        """A right click on the panel: the text is delivered and the panel is hidden."""
        self.click(THE_PANEL, how=Click.RIGHT_CLICK)

    def edit(self, control: int, text: str) -> None:
        """The user has edited the text of an edit box into this one. Raises NotDone for what it refuses."""
        _call.call("rk_panel_edit", self._handle, control, text)

    def _state(self) -> _c.PanelState:
        told = _call.sized(_c.PanelState)
        _call.call("rk_panel_get_state", self._handle, byref(told))
        return told

    @property
    def state(self) -> State:
        """What can be seen of it."""
        told = self._state()
        return State(bool(told.visible), told.focus, bool(told.new_piece), _rect(told.place))

    def results(self) -> list[str]:
        """The text as composed so far, of the bar panel its five groups, of a picker its item's value."""
        return [_call.text_from("rk_panel_result", self._handle, group) for group in range(self._state().groups)]

    def _control(self, function: str, which: int) -> Control:
        told = _call.sized(_c.Control)
        _call.call(function, self._handle, which, byref(told))
        return Control(told.id, ControlKind(told.kind), bool(told.visible), bool(told.enabled),
                       _rect(told.place), told.rows, told.selection, told.top, str(told.text))

    def controls(self) -> list[Control]:
        """All of them, labels included, in the order in which Tab visits them."""
        return [self._control("rk_panel_control_at", number) for number in range(self._state().controls)]

    def control(self, id: int) -> Control:
        """The control with an id."""
        return self._control("rk_panel_control", id)

    def rows(self, id: int) -> list[str]:
        """The rows of a list box."""
        with Texts() as rows:
            _call.call("rk_panel_rows", self._handle, id, rows._handle)
            return rows.read()

    def row_place(self, id: int, row: int) -> Rect:
        """Where a row is, in the list box's client area; outside of it for a row out of view."""
        told = _c.Rect()
        _call.call("rk_panel_row_place", self._handle, id, row, byref(told))
        return _rect(told)
