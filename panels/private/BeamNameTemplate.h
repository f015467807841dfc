// The beam name panel's window and what its lists hold: type, serial, span count and cantilever mark
// side by side, each a heading, an edit box and a list.
#pragma once

#include "platform/windows/DialogTemplate.h"

namespace BeamNameTemplate {

inline constexpr int TypeEdit = 1316, TypeList = 552;
inline constexpr int XuEdit = 1643, XuList = 1062;
inline constexpr int KuaEdit = 1654, KuaList = 547;
inline constexpr int XuantiaoEdit = 1658, XuantiaoList = 549;

// The lists are a little higher than ten rows, so that every digit can be seen.
inline constexpr ControlTemplate Controls[] = {
    {ControlKind::Label, IDC_STATIC, {2, 2, 27, 8}, GbkLabel<u8"梁类型">()},
    {ControlKind::EditBox, TypeEdit, {2, 11, 27, 12}},
    {ControlKind::ListBox, TypeList, {2, 24, 27, 82}},
    {ControlKind::Label, IDC_STATIC, {31, 2, 20, 8}, GbkLabel<u8"序号">()},
    {ControlKind::EditBox, XuEdit, {31, 11, 20, 12}},
    {ControlKind::ListBox, XuList, {31, 24, 20, 82}},
    {ControlKind::Label, IDC_STATIC, {53, 2, 20, 8}, GbkLabel<u8"跨数">()},
    {ControlKind::EditBox, KuaEdit, {53, 11, 20, 12}},
    {ControlKind::ListBox, KuaList, {53, 24, 20, 82}},
    {ControlKind::Label, IDC_STATIC, {75, 2, 20, 8}, GbkLabel<u8"悬挑">()},
    {ControlKind::EditBox, XuantiaoEdit, {75, 11, 20, 12}},
    {ControlKind::ListBox, XuantiaoList, {75, 24, 20, 82}},
};

inline constexpr DialogTemplate Shape = {540, 97, 109, GbkLabel<u8"宋体">(), 9, Controls};

inline constexpr const char* TypeRows[] = {"KL", "KZL", "WKL", "JZL", "LL", "AL", "BKL", "XL", "L"};
inline constexpr const char* DigitRows[] = {"1", "2", "3", "4", "5", "6", "7", "8", "9", "0"};
inline constexpr const char* XuantiaoRows[] = {GbkLabel<u8"无">(), "A", "B"};

}  // namespace BeamNameTemplate
