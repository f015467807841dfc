"""The two reference tables, of bars and of stirrups."""
from __future__ import annotations

import enum
from ctypes import byref, c_int32, c_size_t
from dataclasses import dataclass
from functools import lru_cache
from typing import Iterator, NamedTuple, Optional, Type

from . import _c, _call
from .host import DEFAULT, Texts


@dataclass(frozen=True)
class BarRow:
    """Bars for a beam of a width and the steel that they give."""

    width: int  # nominal, mm
    area: int  # mm2
    through: str  # top through bars, "2B18"
    total: str  # complete top bars, "2B18+2B20"
    bottom: str  # "3B20"


@dataclass(frozen=True)
class StirrupRow:
    """Stirrups for a beam of a width, in concrete of a grade."""

    width: int  # mm
    grade: int  # of the concrete: 20, 25, 30, 35 or 40
    ratio: float  # stirrup ratio figure
    plain: str  # "A8@200(2)"
    tight: str  # with a tight zone, "A8@100/200(2)"


class Bars(enum.IntEnum):
    """What a look-up in the bar table wants."""

    THROUGH_BARS = 0
    TOTAL_BARS = 1
    BOTTOM_BARS = 2
    TOTAL_ON_THROUGH = 3  # the complete top bars on given through bars, which come first


class Found(NamedTuple):
    """What a look-up found."""

    texts: list[str]
    nearest: Optional[int]  # among the rows of that width the one nearest in area; of bottom bars always None


def _rows(table: str, kind: Type[_call.Struct]) -> Iterator[_call.Struct]:
    count = c_size_t()
    _call.call(f"rk_{table}_table_count", byref(count))
    for index in range(count.value):
        row = _call.sized(kind)
        _call.call(f"rk_{table}_table_row", index, byref(row))
        yield row


@lru_cache(maxsize=None)
def bars() -> tuple[BarRow, ...]:
    """The rows of the bar table, by width."""
    return tuple(BarRow(row.width, row.area, str(row.through), str(row.total), str(row.bottom))
                 for row in _rows("bar", _c.BarRow))


@lru_cache(maxsize=None)
def stirrups() -> tuple[StirrupRow, ...]:
    """The rows of the stirrup table, by concrete grade."""
    return tuple(StirrupRow(row.width, row.grade, row.ratio, str(row.plain), str(row.tight))
                 for row in _rows("stirrup", _c.StirrupRow))


def find_bars(what: Bars, *, width: int, area: int, through: str = "") -> Found:
    """The texts for a beam width in mm and a steel area in mm2, each once. The through bars are read for
    TOTAL_ON_THROUGH alone."""
    nearest = c_int32()
    with Texts() as found:
        _call.call("rk_bar_table_find", DEFAULT._handle, what, width, area, through, found._handle, byref(nearest))
        return Found(found.read(), None if nearest.value < 0 else nearest.value)


def find_stirrups(*, width: int, grade: int, seismic: int) -> list[str]:
    """What is enough for a width in mm, a concrete grade and a seismic class, 1 to 4. Raises NotDone for a
    grade or a class that the table has not."""
    with Texts() as found:
        _call.call("rk_stirrup_table_find", DEFAULT._handle, width, grade, seismic, found._handle)
        return found.read()
