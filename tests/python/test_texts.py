"""Text rules and tables; the values are those that the tests of the C library use."""
import pytest

import rankermodule as rm
from rankermodule import compose, tables
from rankermodule.compose import BarPiece, Kind, Name, Section, Stirrup


@pytest.mark.parametrize("fields, text", [
    (Name("KL", "3", "2", "A"), "KL3(2A)"),
    (Name("边KL", "1", "1"), "边KL1(1)"),
    (Section("X", "300", "600"), "300X600"),
    (Stirrup("A", "10", "100", "4", "200", "2"), "A10@100(4)/200(2)"),
    (BarPiece("6", "B", "25", "2", "4", ";"), "6B25 2/4;"),
    (BarPiece("2", "B", "22", terminator=" "), "2B22 "),
])
def test_a_text_and_its_fields(fields, text):
    assert type(fields).read(text) == fields
    assert fields.text() == text


@pytest.mark.parametrize("kind, text, numbers", [
    (Kind.NAME, "KL12(3A)", {"serial": 12}),
    (Kind.SECTION, "300x600/500", {"width": 300, "height": 600}),
    (Kind.ELEVATION, "-0.300", {"level": -0.3}),
    (Kind.STIRRUP, "A10@100/200(4)", {"diameter": 10, "tight_spacing": 100, "spacing": 200, "legs": 4}),
    (Kind.BARS, "2B25", {"count": 2, "diameter": 25}),
    (Kind.WALL_BARS, "B6.5@100/200",
     {"grade": 2, "diameter": 6, "tenths": 5, "tight_spacing": 100, "spacing": 200}),
])
def test_what_a_text_measures(kind, text, numbers):
    measured = vars(compose.measure(kind, text))
    assert {name: value for name, value in measured.items() if value} == numbers


@pytest.mark.parametrize("said, call", [
    ("2B22", lambda: compose.bars_head("N2B22+3B25")),
    ("A8@100/200(2)", lambda: compose.stirrup_tight_form("A8@200(2)")),
    ("(-0.3)", lambda: compose.elevation_key("(0.3)", "-")),
    ("(0.37)", lambda: compose.elevation_key("(0.3)", "7")),
    ("0.3", lambda: compose.elevation_key("(0.3)", "\b")),
    ("标", lambda: compose.elevation_key("标高", "\b")),
    ("梁" * 500, lambda: compose.bars_head("N" + "梁" * 500)),  # longer than the first buffer
    (("WKL", "(3A)"), lambda: compose.name_parts("WKL12(3A)")),
    (("边KL", ""), lambda: compose.name_parts("边KL")),
    (True, lambda: compose.bars_same_diameter("4B20", "2B20")),
    (False, lambda: compose.bars_same_essence("+2B22;", "2B25")),
    (1, lambda: compose.compare(Kind.STIRRUP, "A8@200(2)", "A8@150(2)")),
    (-1, lambda: compose.compare(Kind.BARS, "2B22", "2B22+1B20")),
])
def test_rules(said, call):
    assert call() == said


@pytest.mark.parametrize("error, call", [
    (rm.NotDone, lambda: Name().text()),
    (rm.NotDone, lambda: Name.read("K")),
    (rm.NotDone, lambda: Section.read("")),
    (rm.NotDone, lambda: Stirrup.read("200")),
    (rm.NotDone, lambda: compose.measure(Kind.WALL_BARS, "200")),
    (rm.NotDone, lambda: compose.elevation_key("0.3", ".")),
    (rm.NotDone, lambda: tables.find_stirrups(width=300, grade=22, seismic=2)),
    (rm.BadArgument, lambda: compose.measure(Kind.BAR_PIECE, "2B22")),
    (rm.BadArgument, lambda: compose.compare(Kind.NAME, "", "")),
    (rm.BadArgument, lambda: compose.measure(77, "2B22")),
    (rm.BadArgument, lambda: compose.elevation_key("", "12")),
    (rm.BadArgument, lambda: tables.find_bars(tables.Bars.BOTTOM_BARS, width=2**31, area=0)),
    (rm.BadText, lambda: compose.bars_head("2B22\0")),
    (rm.BadText, lambda: compose.bars_head("\ud800")),
    (rm.BadText, lambda: compose.bars_head("ø")),
    (rm.BadText, lambda: rm.Texts(["2B22", "🏗"])),
    (rm.BadText, lambda: rm.Texts(["2B22", "2B\x0025"])),
    (TypeError, lambda: rm.Texts("2B22")),
    (TypeError, lambda: rm.Texts(["2B22", 7])),
    (TypeError, lambda: compose.bars_head(7)),
    (TypeError, lambda: compose.bars_head(None)),
    (TypeError, lambda: compose.bars_head(b"2B22")),
    (TypeError, lambda: tables.find_bars(tables.Bars.BOTTOM_BARS, width=300.5, area=0)),
])
def test_mistakes(error, call):
    with pytest.raises(error) as raised:
        call()
    assert str(raised.value)
    if error is not TypeError:
        assert raised.value.status == error.status


def test_texts_that_are_kept():
    given = ["边梁KL1(1)", "2B22", "", "12345678边"] * 1000
    texts = rm.Texts(given)
    assert (len(texts), texts.read(), texts.numbers()) == (4000, given, [])
    assert rm.Texts().read() == []
    texts.close()
    texts.close()
    with pytest.raises(rm.Closed):
        texts.read()


def test_tables():
    assert (len(tables.bars()), len(tables.stirrups())) == (344, 214)
    assert [row.width for row in tables.bars()] == sorted(row.width for row in tables.bars())
    last = tables.bars()[-1]
    assert (last.width, last.bottom) == (600, last.bottom.strip())
    assert {row.grade for row in tables.stirrups()} == {20, 25, 30, 35, 40}
    found = tables.find_bars(tables.Bars.THROUGH_BARS, width=300, area=1000)
    assert found.texts == ["2B16", "2B18", "2B20", "2B25"] and found.nearest is not None
    assert tables.find_bars(tables.Bars.TOTAL_ON_THROUGH, width=300, area=1034, through="2B16").texts == [
        "2B16", "5B16", "2B16+2B20"]
    assert tables.find_bars(tables.Bars.BOTTOM_BARS, width=300, area=1000).nearest is None
    assert tables.find_stirrups(width=300, grade=30, seismic=2)[:2] == ["A6@150(3)", "A6@100/150(3)"]
