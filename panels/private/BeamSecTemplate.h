// The section panel's window and what its lists hold: width and height, each a heading, an edit box and
// a list, and between them the separator, which only shows.
#pragma once

#include "platform/windows/DialogTemplate.h"

namespace BeamSecTemplate {

inline constexpr int WidthEdit = 1320, WidthList = 1317;
inline constexpr int SignList = 1349, SignColumn = 1348;  // one row beside the boxes; one row a row
inline constexpr int HeightEdit = 1321, HeightList = 1062;

inline constexpr ControlTemplate Controls[] = {
    {ControlKind::Label, IDC_STATIC, {2, 2, 20, 8}, GbkLabel<u8"梁宽">()},
    {ControlKind::EditBox, WidthEdit, {2, 11, 20, 12}},
    {ControlKind::ListBox, WidthList, {2, 24, 20, 104}},
    {ControlKind::Label, IDC_STATIC, {23, 2, 8, 8}, "x", ControlStyle::AlignCenter},
    {ControlKind::ListBox, SignList, {23, 13, 8, 8}, "", ControlStyle::Disabled},
    {ControlKind::ListBox, SignColumn, {23, 24, 8, 104}, "", ControlStyle::Disabled},
    {ControlKind::Label, IDC_STATIC, {32, 2, 20, 8}, GbkLabel<u8"梁高">()},
    {ControlKind::EditBox, HeightEdit, {32, 11, 20, 12}},
    {ControlKind::ListBox, HeightList, {32, 24, 20, 104}},
};

inline constexpr DialogTemplate Shape = {364, 54, 131, GbkLabel<u8"宋体">(), 9, Controls};

// mm
inline constexpr const char* WidthRows[] = {"120", "150", "200", "250", "300", "350",
                                            "400", "450", "500", "550", "600"};
inline constexpr const char* HeightRows[] = {"200", "250", "300", "350", "400", "450", "500",
                                             "550", "600", "650", "700", "750", "800"};
inline constexpr int SignRows = 11;

}  // namespace BeamSecTemplate
