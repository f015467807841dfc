// The vertical picker's window and rows: grade and diameter.
#pragma once

#include "platform/windows/DialogTemplate.h"

namespace VBarTemplate {

inline constexpr int GradeEdit = 1310, GradeList = 1306;
inline constexpr int DiameterEdit = 1377, DiameterList = 1307;

inline constexpr ControlTemplate Controls[] = {
    {ControlKind::Label, IDC_STATIC, {3, 1, 32, 8}, GbkLabel<u8"钢筋种类">()},
    {ControlKind::EditBox, GradeEdit, {3, 10, 32, 12}, "", ControlStyle::Disabled},
    {ControlKind::ListBox, GradeList, {3, 23, 32, 80}},
    {ControlKind::Label, IDC_STATIC, {37, 1, 20, 8}, GbkLabel<u8"直径">()},
    {ControlKind::EditBox, DiameterEdit, {37, 10, 20, 12}, "", ControlStyle::DigitsOnly},
    {ControlKind::ListBox, DiameterList, {37, 23, 20, 80}},
};

inline constexpr DialogTemplate Shape = {365, 60, 105, GbkLabel<u8"宋体">(), 9, Controls};

inline constexpr const char* GradeRows[] = {"A", "B", "C", "D"};
// Diameters in mm: those of a new picker, those of grade A, those of the other grades.
inline constexpr const char* FirstRows[] = {"8", "10", "12", "14", "16", "18", "20", "22", "25", "28"};
inline constexpr const char* PlainRows[] = {"6", "8", "10", "12", "14", "16", "18"};
inline constexpr const char* RibbedRows[] = {"10", "12", "14", "16", "18", "20", "22", "25", "28", "32"};

}  // namespace VBarTemplate
