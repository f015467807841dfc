"""The package beside the header of the C library, as a reader of C understands it."""
import ctypes
import enum
import os
import pathlib
import re

import cffi
import pytest

import rankermodule
from rankermodule import _c, _call, compose, host, panel, tables

HEADER = pathlib.Path(os.environ["RANKER_SOURCE"], "c/rankermodule.h").read_text(encoding="utf-8")

STRUCTS = {
    "rk_text": _c.Text, "rk_delivery": _c.Delivery, "rk_callbacks": _c.Callbacks, "rk_measures": _c.Measures,
    "rk_bar_row": _c.BarRow, "rk_stirrup_row": _c.StirrupRow, "rk_panel_options": _c.PanelOptions,
    "rk_rect": _c.Rect, "rk_event": _c.Event, "rk_panel_state": _c.PanelState, "rk_control": _c.Control,
}
ENUMS = [_call.Status, compose.Kind, host.Route, tables.Bars, panel.PanelKind, panel.Click, panel.Message,
         panel.ControlKind]
NO_MEMBERS = {  # constants that are no enumeration's here
    "RK_THE_PANEL": panel.THE_PANEL, "RK_THE_FOCUS": panel.THE_FOCUS, "RK_LABEL": panel.LABEL,
    "RK_UTF8": 0, "RK_GBK": 1, "RK_KEY_POINT": ord("."), "RK_KEY_MINUS": ord("-"),
    "RK_KEY_BRACKETS": ord("("), "RK_KEY_BACK": ord("\b"),
}


@pytest.fixture(scope="module")
def ffi():
    text = re.sub(r"/\*.*?\*/", "", HEADER, flags=re.S)
    text = text.replace('extern "C" {', "").replace("\n}\n#endif", "")
    text = "\n".join(line for line in text.splitlines() if not line.lstrip().startswith("#"))
    read = cffi.FFI()
    read.cdef(re.sub(r"\bRK_(API|CALL)\b", "", text))
    return read


def test_structures_are_those_of_the_header(ffi):
    assert sorted(STRUCTS) == sorted(name for name in ffi.list_types()[0]
                                     if ffi.typeof(name).kind == "struct" and not name.endswith("_tag"))
    for name, here in STRUCTS.items():
        there = [(member, ffi.offsetof(name, member), ffi.sizeof(field.type))
                 for member, field in ffi.typeof(name).fields]
        assert there == [(member, getattr(here, member).offset, getattr(here, member).size)
                         for member, *_ in here._fields_], name
        assert ffi.sizeof(name) == ctypes.sizeof(here)


def test_constants_are_those_of_the_header(ffi):
    constants = re.findall(r"(RK_\w+) = ", HEADER)
    library = ffi.dlopen(_c.library._name)
    known = dict(NO_MEMBERS)
    for kind in ENUMS:
        for member in kind:
            names = [f"RK_{member.name}", f"RK_TO_{member.name}"]
            known[next(name for name in names if name in constants)] = int(member)
    assert {name: getattr(library, name) for name in constants} == known


def test_functions_have_the_parameters_of_the_header(ffi):
    left_out = {
        "rk_last_error", "rk_context_set_encoding", "rk_gbk_from_utf8", "rk_utf8_from_gbk",  # texts are str
        "rk_list_add", "rk_list_add_texts", "rk_list_text", "rk_list_texts",  # all go and come in one call
        "rk_list_set", "rk_list_remove", "rk_list_clear",  # lists are made and read, not edited
    }
    functions = set(re.findall(r"RK_CALL (rk_\w+)\(", HEADER))
    assert functions - _c.SIGNATURES.keys() == left_out
    library = ffi.dlopen(_c.library._name)
    kinds = {_c.c_void_p: "p", _c.c_char_p: "p", _c.c_int32: "int32_t", _c.c_size_t: "size_t"}
    for name in _c.SIGNATURES:
        there = [{"primitive": kind.cname}.get(kind.kind, "p")
                 for kind in ffi.typeof(getattr(library, name)).args]
        assert there == [kinds[kind] for kind in getattr(_c.library, name).argtypes], name


def test_statuses_have_their_exceptions():
    assert {_call.Status.OK, _call.Status.TOO_SMALL, _call.Status.CALLBACK, _call.Status.NO_MEMORY, _call.Status.FAILED} == (
        set(_call.Status) - set(_call.ERRORS))
    assert issubclass(rankermodule.BadText, ValueError) and issubclass(rankermodule.BadIndex, IndexError)
    assert issubclass(_call.Status, enum.IntEnum)
