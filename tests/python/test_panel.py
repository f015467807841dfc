"""Panels and pickers driven by events; what they deliver and to whom."""
import gc

import pytest

import rankermodule as rm
from rankermodule.panel import THE_PANEL, Click, ControlKind, Message

Kind = rm.PanelKind
TIGHT_SPACINGS = 1356
SPACING = 1662
TORSION = 4  # row of the types of bars
TWO_TEXTS = ((1338, 3), (1340, 7), (1062, TORSION), (1338, 1), (1340, 1))  # list and row: "4B25", "N2B12"


class Desk(rm.Host):
    """Notes what it is told."""

    def __init__(self):
        self.delivered = []
        self.told = []
        super().__init__(deliver=self.take, message=self.told.append)

    def take(self, panel, delivery):
        self.delivered.append((panel.kind, delivery.route, delivery.mode, delivery.text, delivery.code))

    def shown(self, kind, text, route=rm.Route.ITEM, bar_kind=-1):
        panel = rm.Panel(kind, self, route, bar_kind)
        panel.set_text(text)
        panel.show(200, 100)
        return panel


@pytest.mark.parametrize("kind, text, route, mode, code", [
    (Kind.NAME_PANEL, "KL3(2A)", rm.Route.ITEM, 0, 0),
    (Kind.NAME_PANEL, "KL3(2A)", rm.Route.PARENT, 1, 8),
    (Kind.SECTION_PANEL, "300x600", rm.Route.PARENT, 1, 0),
    (Kind.ELEVATION_PANEL, "标高", rm.Route.HOST, 2, 7),
    (Kind.STIRRUP_PANEL, "A8@200(2)", rm.Route.HOST, 0, 1),
    (Kind.HORIZONTAL_PICKER, "A10@100/200", rm.Route.ITEM, 0, 0),
    (Kind.VERTICAL_PICKER, "B16", rm.Route.ITEM, 0, 0),
])
def test_a_text_is_delivered_by_each_route(kind, text, route, mode, code):
    desk = Desk()
    panel = desk.shown(kind, text, route)
    assert (panel.state.visible, panel.results()) == (True, [text])
    panel.confirm()
    assert desk.delivered == [(kind, route, mode, text, code)]
    assert not panel.state.visible


def test_what_is_not_complete_is_told_and_not_delivered():
    desk = Desk()
    desk.shown(Kind.NAME_PANEL, "KL1").confirm()
    assert (desk.told, desk.delivered) == (["跨数有误"], [])


def test_bars_are_composed_by_clicks_and_come_as_several_texts():
    desk = Desk()
    panel = desk.shown(Kind.BAR_PANEL, "", rm.Route.HOST, bar_kind=7)
    assert panel.rows(1062)[TORSION] == "N扭筋"
    for control, row in TWO_TEXTS:
        panel.click(control, row)
    assert panel.results() == ["4B25 ", "", "", "N2B12 ", ""]
    panel.confirm()
    assert [(text, code) for *_, text, code in desk.delivered] == [("4B25", 0), ("N2B12", 8)]


def test_events_one_by_one():
    desk = Desk()
    panel = desk.shown(Kind.STIRRUP_PANEL, "A8@200(2)", rm.Route.PARENT)
    assert panel.rows(TIGHT_SPACINGS) == ["无", "100", "120", "130", "150"]
    row = panel.row_place(TIGHT_SPACINGS, 1)
    for message in (Message.LEFT_DOWN, Message.LEFT_UP):
        assert not panel.event(message, TIGHT_SPACINGS, x=row.left + 5, y=row.top + 5)
    assert panel.results() == ["A8@100/200(2)"]
    assert panel.control(TIGHT_SPACINGS).selection == 1

    # Typed into the box that has the focus; Tab is the panel's.
    panel.click(SPACING)
    assert panel.state.focus == SPACING
    panel.event(Message.KEY_DOWN, key=35)
    panel.event(Message.CHARACTER, key=ord("梁"))
    assert panel.control(SPACING).text == "200梁"
    assert panel.event(Message.KEY_DOWN, key=9) and panel.state.focus != SPACING
    panel.edit(SPACING, "150")
    assert panel.results() == ["A8@100/150(2)"]

    # Dragged, dismissed, and then deaf.
    before = panel.state.place
    panel.event(Message.LEFT_DOWN, THE_PANEL, x=2, y=2)
    panel.event(Message.LEFT_UP, THE_PANEL, x=32, y=12)
    assert panel.state.place == (before.left + 30, before.top + 10, before.right + 30, before.bottom + 10)
    assert panel.event(Message.KEY_DOWN, key=27)
    assert not panel.event(Message.RIGHT_DOWN, THE_PANEL) and not desk.delivered
    panel.show(0, 0)
    assert panel.event(Message.RIGHT_DOWN, THE_PANEL)
    assert [text for *_, text, _ in desk.delivered] == ["A8@100/150(2)"]


def test_controls_tell_enough_to_be_drawn():
    panel = Desk().shown(Kind.STIRRUP_PANEL, "A8@100/200(2)")
    controls = panel.controls()
    assert {control.kind for control in controls} >= {ControlKind.A_LIST_BOX, ControlKind.AN_EDIT_BOX,
                                                      ControlKind.A_LABEL}
    place = panel.state.place
    for control in controls:
        assert 0 <= control.place.left < control.place.right <= place.right - place.left
        assert 0 <= control.place.top < control.place.bottom <= place.bottom - place.top
        assert (control.rows > 0) == (control.kind == ControlKind.A_LIST_BOX)
        assert control.kind != ControlKind.A_LABEL or control.text.strip(), "captions are there"


@pytest.mark.parametrize("error, act", [
    (rm.NotDone, lambda p: p.hide() or p.click(TIGHT_SPACINGS, 0)),
    (rm.BadIndex, lambda p: p.click(TIGHT_SPACINGS, 99)),
    (rm.BadIndex, lambda p: p.control(4711)),
    (rm.BadIndex, lambda p: p.row_place(TIGHT_SPACINGS, 99)),
    (rm.BadArgument, lambda p: p.rows(SPACING)),
    (rm.BadArgument, lambda p: p.edit(TIGHT_SPACINGS, "")),
    (rm.BadArgument, lambda p: p.click(TIGHT_SPACINGS, 0, 3)),
    (rm.BadArgument, lambda p: p.event(0)),
    (rm.BadArgument, lambda p: p.event(Message.LEFT_DOWN, x=2**32 + 1)),
    (rm.BadArgument, lambda p: p.event(Message.CHARACTER, key=-1)),
    (rm.BadText, lambda p: p.event(Message.CHARACTER, key=0x110000)),
    (rm.BadText, lambda p: p.set_text("🏗")),
    (rm.BadArgument, lambda p: rm.Panel(9, p.host)),
    (rm.BadArgument, lambda p: rm.Panel(Kind.VERTICAL_PICKER, p.host, rm.Route.HOST)),
    (rm.Closed, lambda p: p.close() or p.show(0, 0)),
    (rm.Closed, lambda p: p.host.close() or p.results()),
    (rm.Closed, lambda p: p.host.close() or rm.Panel(Kind.NAME_PANEL, p.host)),
])
def test_mistakes(error, act):
    panel = Desk().shown(Kind.STIRRUP_PANEL, "A8@200(2)")
    with pytest.raises(error) as raised:
        act(panel)
    assert str(raised.value)


def test_what_a_receiver_raises_comes_out_of_the_event():
    def deliver(panel, delivery):
        raise LookupError(delivery.text)
    desk = Desk()
    desk.deliver = deliver
    desk.message = deliver  # called with one argument: a mistake of the host's own
    panel = desk.shown(Kind.STIRRUP_PANEL, "A8@200(2)")
    with pytest.raises(LookupError, match="A8@200"):
        panel.event(Message.RIGHT_DOWN, THE_PANEL)
    assert not panel.state.visible, "the event itself has been carried out"
    with pytest.raises(TypeError):
        desk.shown(Kind.NAME_PANEL, "KL1").confirm()


def test_the_first_of_several_receivers_raises_and_the_others_work_on():
    desk = Desk()

    def deliver(panel, delivery):
        desk.told.append(rm.rank.stirrups(["A6@70(2)"]).texts[0])
        if len(desk.told) == 1:
            raise LookupError(delivery.text)
    desk.deliver = deliver
    panel = desk.shown(Kind.BAR_PANEL, "", rm.Route.HOST, bar_kind=7)
    for control, row in TWO_TEXTS:
        panel.click(control, row)
    with pytest.raises(LookupError, match="4B25"):
        panel.confirm()
    assert desk.told == ["A6@70(2)", "A6@70(2)"]


@pytest.mark.parametrize("whole_host", [False, True])
def test_a_receiver_may_close_the_panel(whole_host):
    desk = Desk()
    panel = desk.shown(Kind.STIRRUP_PANEL, "A8@200(2)")
    desk.deliver = lambda panel, delivery: desk.told.append(delivery.text) or (
        desk if whole_host else panel).close()
    panel.click(THE_PANEL, how=Click.RIGHT_CLICK)
    assert desk.told == ["A8@200(2)"]
    with pytest.raises(rm.Closed):
        panel.hide()


def test_a_panel_that_nobody_holds_stays_with_its_host():
    desk = Desk()
    number = desk.shown(Kind.SECTION_PANEL, "300x600")._number
    gc.collect()
    desk._panels[number].confirm()
    assert [text for *_, text, _ in desk.delivered] == ["300x600"]
    desk._panels[number].close()
    assert not desk._panels
