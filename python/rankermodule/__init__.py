"""Ranks and composes reinforced-concrete annotation texts: "2B22+3B25/2B22", "A10@100/200(2)".

    rank      from the texts of a project to the candidates, best first
    tables    the reference tables of bars and stirrups
    compose   what a text is made of and what it measures
    panel     the panels and pickers that compose a text by mouse
    Host      callbacks that answer for the project and take what a panel delivers

Lengths are in mm, steel areas in mm2, levels in m, places on the screen in pixels. All texts are str; the
module keeps them in GBK and refuses (BadText) a character that GBK lacks. Any thread may call; one call runs
at a time. What a host's callback raises comes out of the call that led to it.
"""
from __future__ import annotations

import ctypes

from . import compose, panel, rank, tables
from ._call import BadArgument, BadIndex, BadText, Closed, NotDone, RankerError, Status, call
from .compose import Kind
from .host import Delivery, Host, Route, Texts
from .panel import Panel, PanelKind

__all__ = ["BadArgument", "BadIndex", "BadText", "Closed", "Delivery", "Host", "Kind", "NotDone", "Panel",
           "PanelKind", "RankerError", "Route", "Status", "Texts", "compose", "panel", "rank", "tables",
           "version"]


def version() -> str:
    """The module's version."""
    text = ctypes.c_char_p()
    call("rk_version", ctypes.byref(text), None)
    return (text.value or b"").decode()
