"""What the C library declares, by ctypes: its structures and functions."""
from __future__ import annotations

import ctypes
import sys
from ctypes import c_char_p, c_double, c_int32, c_size_t, c_uint32, c_void_p
from pathlib import Path

library = ctypes.CDLL(
    str(Path(__file__).with_name("RankerC.dll" if sys.platform == "win32" else "libRankerC.so.1")))
library.rk_last_error.restype = c_char_p

# The functions in use and their parameters: a handle, a text (pointer and length), an int32, a size, any pointer.
_PARAMETERS = {"h": [c_void_p], "t": [c_char_p, c_size_t], "i": [c_int32], "z": [c_size_t], "p": [c_void_p]}
SIGNATURES: dict[str, str] = dict(word.split(":") for word in """
    rk_version:pp rk_context_create:p rk_context_destroy:h rk_context_set_callbacks:hp

    rk_text_read:hith rk_text_compose:hipzpzp rk_text_measure:hitp rk_text_compare:hittp rk_name_parts:hth
    rk_bars_head:htpzp rk_bars_same_diameter:http rk_bars_same_essence:http rk_stirrup_tight_form:htpzp
    rk_elevation_key:htipzp

    rk_list_create:hp rk_list_destroy:h rk_list_add_block:ht rk_list_add_numbers:hpz rk_list_count:hp
    rk_list_block:hpp rk_list_numbers:hpp

    rk_bar_table_count:p rk_bar_table_row:zp rk_bar_table_find:hiiithp
    rk_stirrup_table_count:p rk_stirrup_table_row:zp rk_stirrup_table_find:hiiih

    rk_ranker_create:hip rk_ranker_destroy:h rk_ranker_set_bars:hiit rk_ranker_set_stirrups:hiii
    rk_ranker_set_project_kind:hi rk_ranker_set_previous_name:htp rk_ranker_run:hhh
    rk_ranker_add_table_rows:hh rk_ranker_focus:hp

    rk_panel_create:hpp rk_panel_destroy:h rk_panel_set_text:ht rk_panel_show:hii rk_panel_hide:h
    rk_panel_event:hpp rk_panel_click:hiii rk_panel_edit:hit rk_panel_get_state:hp rk_panel_result:hipzp
    rk_panel_control_at:hip rk_panel_control:hip rk_panel_rows:hih rk_panel_row_place:hiip
    """.split())
for _name, _signature in SIGNATURES.items():
    getattr(library, _name).argtypes = sum((_PARAMETERS[letter] for letter in _signature), [])


class Text(ctypes.Structure):
    _fields_ = [("data", c_void_p), ("length", c_size_t)]

    def __str__(self) -> str:
        return ctypes.string_at(self.data, self.length).decode() if self.data else ""

    @classmethod
    def of(cls, data: bytes) -> Text:
        """Borrows bytes, which must be kept as long as it."""
        return cls(ctypes.cast(c_char_p(data), c_void_p), len(data))


class Delivery(ctypes.Structure):
    _fields_ = [("struct_size", c_size_t), ("route", c_int32), ("mode", c_int32), ("code", c_int32),
                ("text", Text)]


ASK = ctypes.CFUNCTYPE(c_int32, c_void_p, c_void_p)
ASK_ABOUT = ctypes.CFUNCTYPE(c_int32, c_void_p, c_void_p, c_void_p, c_size_t)
DELIVER = ctypes.CFUNCTYPE(c_int32, c_void_p, c_void_p, ctypes.POINTER(Delivery))
MESSAGE = ctypes.CFUNCTYPE(c_int32, c_void_p, c_void_p, c_size_t)


class Callbacks(ctypes.Structure):
    _fields_ = [("struct_size", c_size_t), ("user", c_void_p), ("beam_types", ASK), ("beam_numbers", ASK_ABOUT),
                ("sections", ASK), ("elevations", ASK), ("stirrups", ASK), ("bars", ASK_ABOUT),
                ("deliver", DELIVER), ("message", MESSAGE)]


class Measures(ctypes.Structure):
    _fields_ = [("struct_size", c_size_t), ("level", c_double)] + [
        (name, c_int32) for name in ("serial", "width", "height", "count", "diameter", "tenths", "grade",
                                     "tight_spacing", "spacing", "legs")]


class BarRow(ctypes.Structure):
    _fields_ = [("struct_size", c_size_t), ("width", c_int32), ("area", c_int32), ("through", Text),
                ("total", Text), ("bottom", Text)]


class StirrupRow(ctypes.Structure):
    _fields_ = [("struct_size", c_size_t), ("width", c_int32), ("grade", c_int32), ("ratio", c_double),
                ("plain", Text), ("tight", Text)]


class PanelOptions(ctypes.Structure):
    _fields_ = [("struct_size", c_size_t), ("kind", c_int32), ("route", c_int32), ("bar_kind", c_int32)]


class Event(ctypes.Structure):
    _fields_ = [("struct_size", c_size_t), ("message", c_int32), ("control", c_int32), ("x", c_int32),
                ("y", c_int32), ("key", c_uint32), ("turn", c_int32)]


class Rect(ctypes.Structure):
    _fields_ = [("left", c_int32), ("top", c_int32), ("right", c_int32), ("bottom", c_int32)]


class PanelState(ctypes.Structure):
    _fields_ = [("struct_size", c_size_t), ("visible", c_int32), ("focus", c_int32), ("controls", c_int32),
                ("groups", c_int32), ("new_piece", c_int32), ("place", Rect)]


class Control(ctypes.Structure):
    _fields_ = [("struct_size", c_size_t), ("id", c_int32), ("kind", c_int32), ("visible", c_int32),
                ("enabled", c_int32), ("place", Rect), ("rows", c_int32), ("selection", c_int32),
                ("top", c_int32), ("text", Text)]
