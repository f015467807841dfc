// The horizontal picker's window and rows: grade, diameter, tight and normal spacing.
#pragma once

#include "platform/windows/DialogTemplate.h"

namespace HBarTemplate {

inline constexpr int GradeEdit = 1309, GradeList = 1308;
inline constexpr int DiameterEdit = 1311, DiameterList = 1112;
inline constexpr int TightEdit = 1313, TightList = 1114;
inline constexpr int NormalEdit = 1315, NormalList = 1116;
inline constexpr int AtSign = 1333;

inline constexpr ControlTemplate Controls[] = {
    {ControlKind::Label, IDC_STATIC, {3, 3, 32, 8}, GbkLabel<u8"钢筋种类">()},
    {ControlKind::EditBox, GradeEdit, {3, 12, 32, 12}, "", ControlStyle::Disabled},
    {ControlKind::ListBox, GradeList, {3, 26, 32, 66}},
    {ControlKind::Label, IDC_STATIC, {37, 3, 18, 8}, GbkLabel<u8"直径">()},
    {ControlKind::EditBox, DiameterEdit, {37, 12, 18, 12}, "", ControlStyle::DigitsOnly},
    {ControlKind::ListBox, DiameterList, {37, 26, 18, 66}},
    {ControlKind::Label, AtSign, {55, 14, 8, 8}, "@", ControlStyle::AlignCenter},
    {ControlKind::Label, IDC_STATIC, {64, 3, 32, 8}, GbkLabel<u8"加密间距">()},
    {ControlKind::EditBox, TightEdit, {64, 12, 32, 12}, "", ControlStyle::DigitsOnly},
    {ControlKind::ListBox, TightList, {64, 26, 32, 66}},
    {ControlKind::Label, IDC_STATIC, {96, 14, 5, 8}, "/", ControlStyle::AlignCenter},
    {ControlKind::Label, IDC_STATIC, {101, 3, 18, 8}, GbkLabel<u8"间距">()},
    {ControlKind::EditBox, NormalEdit, {101, 12, 18, 12}, "", ControlStyle::DigitsOnly},
    {ControlKind::ListBox, NormalList, {101, 26, 18, 66}},
};

inline constexpr DialogTemplate Shape = {363, 122, 96, GbkLabel<u8"宋体">(), 9, Controls};

inline constexpr const char* GradeRows[] = {"A", "B", "C", "D"};
inline constexpr const char* DiameterRows[] = {"6", "6.5", "8", "10", "12", "14", "16"};  // mm
inline constexpr const char* TightRows[] = {"50", "100", "150", "200"};                   // mm
inline constexpr const char* NormalRows[] = {"", "100", "150", "200"};                    // mm

}  // namespace HBarTemplate
