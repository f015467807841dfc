"""The five rankers: from what a project holds to the candidates that the user most likely wants.

Each function ranks once. Its project is a list of texts, or a Texts, which is converted once for many runs,
or a Host whose callbacks are asked. The candidates of an empty project are the built-in guesses.
"""
from __future__ import annotations

from dataclasses import dataclass, field
from typing import Iterable, Optional, Union

from . import _call
from .compose import Kind
from .host import DEFAULT, Host, Texts

Project = Union[Host, Texts, Iterable[str]]


@dataclass(frozen=True)
class Ranking:
    """Candidates, best first."""

    texts: list[str]
    stamps: list[int] = field(default_factory=list)
    """Of bars and stirrups one for each text: 0 for a guess; for a text of the project 1, of bars five times
    its uses. Of the others empty."""
    focus: Optional[int] = None
    """Index of the candidate to put the focus on: of bars and stirrups the last that the project supports,
    of names the first; always None of sections and elevations."""


class Ranker(_call.Handle):
    """A ranker that is kept for many runs."""

    def __init__(self, kind: Kind, host: Host = DEFAULT) -> None:
        """The kind is NAME, SECTION, ELEVATION, STIRRUP or BARS; any other raises BadArgument."""
        self._host = host
        self._result = Texts()
        super().__init__("rk_ranker_create", host._handle, kind)

    def set_bars(self, width: int, area: int, kind: str) -> None:
        """For bars: see `bars`. 0, 0 and "" at first."""
        _call.call("rk_ranker_set_bars", self._handle, width, area, kind)

    def set_stirrups(self, width: int, seismic: int, grade: int) -> None:
        """For the table rows of stirrups: see `stirrups`. 0 at first."""
        _call.call("rk_ranker_set_stirrups", self._handle, width, seismic, grade)

    def set_project_kind(self, kind: int) -> None:
        """2 at first; other numbers change the guesses. Elevations have none: BadArgument."""
        _call.call("rk_ranker_set_project_kind", self._handle, kind)

    def set_previous_name(self, name: str) -> int:
        """Of names: remembers a name and answers the step from the serial of the one before: the new serial
        when it is higher, negated when it is lower, the old step when it is the same."""
        return _call.number_from("rk_ranker_set_previous_name", self._handle, name)

    def run(self, project: Union[Texts, Iterable[str], None] = None, *, table_rows: bool = False) -> Ranking:
        """Ranks these texts, of names whole names; None asks the host. With table_rows, for bars and
        stirrups, the rows of the reference table follow, each that is not there yet, with stamp 0."""
        texts = project if project is None or isinstance(project, Texts) else Texts(project)
        _call.call("rk_ranker_run", self._handle, None if texts is None else texts._handle, self._result._handle)
        if table_rows:
            _call.call("rk_ranker_add_table_rows", self._handle, self._result._handle)
        focus = _call.number_from("rk_ranker_focus", self._handle)
        return Ranking(self._result.read(), self._result.numbers(), None if focus < 0 else focus)


def _ranker(kind: Kind, project: Project, project_kind: int = 2) -> Ranker:
    ranker = Ranker(kind, project if isinstance(project, Host) else DEFAULT)
    if project_kind != 2:
        ranker.set_project_kind(project_kind)
    return ranker


def _run(ranker: Ranker, project: Project, table_rows: bool = False) -> Ranking:
    with ranker:
        return ranker.run(None if isinstance(project, Host) else project, table_rows=table_rows)


def bars(project: Project, *, width: int, area: int, kind: str = "1", project_kind: int = 2,
         table_rows: bool = False) -> Ranking:
    """Bar texts for a beam of this width in mm and steel area in mm2. The kind is "1" to "4" for top bars,
    "5.1" and "5.2" for bottom bars, any other text for complete top bars on these through bars: "2B20"."""
    ranker = _ranker(Kind.BARS, project, project_kind)
    ranker.set_bars(width, area, kind)
    return _run(ranker, project, table_rows)


def stirrups(project: Project, *, width: int = 0, seismic: int = 0, grade: int = 0, project_kind: int = 2,
             table_rows: bool = False) -> Ranking:
    """Stirrup texts. Width in mm, seismic class 1 to 4 and concrete grade are for the table rows alone; a
    class or grade that the table has not adds none."""
    ranker = _ranker(Kind.STIRRUP, project, project_kind)
    ranker.set_stirrups(width, seismic, grade)
    return _run(ranker, project, table_rows)


def sections(project: Project, *, project_kind: int = 2) -> Ranking:
    """Section texts, "300x600"."""
    return _run(_ranker(Kind.SECTION, project, project_kind), project)


def elevations(project: Project) -> Ranking:
    """Elevation texts in m, "-0.300"."""
    return _run(_ranker(Kind.ELEVATION, project), project)


def names(project: Project, *, project_kind: int = 2) -> Ranking:
    """Beam names, made of the types, free serials and suffixes of these names, "KL3(2A)"."""
    return _run(_ranker(Kind.NAME, project, project_kind), project)
