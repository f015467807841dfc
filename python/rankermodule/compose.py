"""Annotation texts: what they are made of, what they measure, and what the panels make of them."""
from __future__ import annotations

import dataclasses
import enum
from ctypes import byref
from dataclasses import dataclass
from typing import ClassVar, NamedTuple, Type, TypeVar

from . import _c, _call
from .host import DEFAULT, Texts


class Kind(enum.IntEnum):
    """What a text is."""

    NAME = 0  # "KL3(2A)"
    SECTION = 1  # "300x600"
    ELEVATION = 2  # "-0.300"
    STIRRUP = 3  # "A10@100/200(2)"
    BARS = 4  # "2B22+3B25/2B22"
    BAR_PIECE = 5  # "6B25 2/4;"
    WALL_BARS = 6  # "A10@100/200"


_Fields = TypeVar("_Fields", bound="Fields")


@dataclass
class Fields:
    """A text in its fields, which are texts themselves; one that the text lacks is empty."""

    kind: ClassVar[Kind]

    @classmethod
    def read(cls: Type[_Fields], text: str) -> _Fields:
        """The fields of a text. Raises NotDone for one that is not cut at all: a name without "L", an empty
        section, a stirrup without "@" and "-" or without grade letter."""
        with Texts() as fields:
            _call.call("rk_text_read", DEFAULT._handle, cls.kind, text, fields._handle)
            return cls(*fields.read())

    def text(self) -> str:
        """The text of these fields. Raises NotDone when what is needed is empty: of a name span and
        cantilever both, of a stirrup grade, diameter, spacing or legs."""
        fields = [value.encode("utf-8", "surrogatepass") for value in dataclasses.astuple(self)]
        given = (_c.Text * len(fields))(*(_c.Text.of(field) for field in fields))
        return _call.text_from("rk_text_compose", DEFAULT._handle, self.kind, given, len(fields))


@dataclass
class Name(Fields):
    """The name of a beam, "KL3(2A)"."""

    kind = Kind.NAME
    type: str = ""
    serial: str = ""
    span: str = ""
    cantilever: str = ""


@dataclass
class Section(Fields):
    """A section, "300x600"."""

    kind = Kind.SECTION
    separator: str = "x"
    width: str = ""  # mm
    height: str = ""  # mm


@dataclass
class Stirrup(Fields):
    """A stirrup, "A8@100/200(2)". Tight legs without tight spacing are left out of the text."""

    kind = Kind.STIRRUP
    grade: str = ""
    diameter: str = ""  # mm
    tight_spacing: str = ""  # mm
    tight_legs: str = ""
    spacing: str = ""  # mm
    legs: str = ""


@dataclass
class BarPiece(Fields):
    """A piece of a bar text as the bar panel composes it, "6B25 2/4;"."""

    kind = Kind.BAR_PIECE
    count: str = ""
    grade: str = ""
    diameter: str = ""  # mm
    upper: str = ""  # bars in the upper row
    lower: str = ""
    terminator: str = ""


@dataclass(frozen=True)
class Measures:
    """The numbers of a text; what it lacks, or has no place for, is 0."""

    level: float  # m, of an elevation
    serial: int  # of a name
    width: int  # mm, of a section
    height: int  # mm, of a section
    count: int  # of bars, the first term
    diameter: int  # mm, of bars, stirrups and wall bars
    tenths: int  # of a wall bar's diameter, 0 to 9
    grade: int  # of wall bars, 1 to 4 for A to D
    tight_spacing: int  # mm, of stirrups and wall bars; wall bars with one spacing have it here
    spacing: int  # mm
    legs: int  # of stirrups


def measure(kind: Kind, text: str) -> Measures:
    """Of all kinds but a bar piece. Raises NotDone for wall bars without grade or diameter."""
    told = _call.sized(_c.Measures)
    _call.call("rk_text_measure", DEFAULT._handle, kind, text, byref(told))
    return Measures(**{field.name: getattr(told, field.name) for field in dataclasses.fields(Measures)})


def compare(kind: Kind, a: str, b: str) -> int:
    """-1, 0 or 1: the order in which the rankers put bars or stirrups; no other kinds."""
    return _call.number_from("rk_text_compare", DEFAULT._handle, kind, a, b)


class NameParts(NamedTuple):
    """The parts of a beam name as the name ranker sees it, empty for what is not there."""

    type: str  # "KL" of "KL3(2A)"
    suffix: str  # "(2A)"


def name_parts(text: str) -> NameParts:
    """Type and suffix of a beam name."""
    with Texts() as parts:
        _call.call("rk_name_parts", DEFAULT._handle, text, parts._handle)
        return NameParts(*parts.read())


def bars_head(text: str) -> str:
    """The first piece of a bar text, without one leading "*", "N" or "G"."""
    return _call.text_from("rk_bars_head", DEFAULT._handle, text)


def bars_same_diameter(a: str, b: str) -> bool:
    """Whether the first piece of a has at least as many bars as that of b, of the same diameter."""
    return bool(_call.number_from("rk_bars_same_diameter", DEFAULT._handle, a, b))


def bars_same_essence(a: str, b: str) -> bool:
    """Whether two pieces hold the same bars whatever stands around them."""
    return bool(_call.number_from("rk_bars_same_essence", DEFAULT._handle, a, b))


def stirrup_tight_form(text: str) -> str:
    """The stirrup with a tight zone of spacing 100 mm: "A8@100/200(2)" for "A8@200(2)"."""
    return _call.text_from("rk_stirrup_tight_form", DEFAULT._handle, text)


def elevation_key(text: str, key: str) -> str:
    """What a key of the elevation keypad makes of a text: a digit, ".", "-", "(" for brackets, "\\b" for
    back. Raises NotDone where it does not apply, such as a second point."""
    if len(key) != 1:
        raise _call.BadArgument("a key is one character")
    return _call.text_from("rk_elevation_key", DEFAULT._handle, text, ord(key))
