// The stirrup panel's window and what its lists hold: the six fields of a stirrup annotation in the
// order of the text, each a heading, an edit box and a list.
#pragma once

#include "platform/windows/DialogTemplate.h"

namespace BeamGujinTemplate {

inline constexpr int SteelsymEdit = 1321, SteelsymList = 1339;
inline constexpr int DiaEdit = 1653, DiaList = 1062;
inline constexpr int JiamiIntervalEdit = 1654, JiamiIntervalList = 1356;
inline constexpr int JiamiZhishuEdit = 1658, JiamiZhishuList = 1357;
inline constexpr int IntervalEdit = 1662, IntervalList = 1358;
inline constexpr int ZhishuEdit = 1665, ZhishuList = 1359;

inline constexpr ControlTemplate Controls[] = {
    {ControlKind::Label, IDC_STATIC, {3, 3, 25, 8}, GbkLabel<u8"钢筋符">()},
    {ControlKind::EditBox, SteelsymEdit, {3, 12, 25, 12}},
    {ControlKind::ListBox, SteelsymList, {3, 26, 25, 40}},
    {ControlKind::Label, IDC_STATIC, {30, 3, 20, 8}, GbkLabel<u8"直径">()},
    {ControlKind::EditBox, DiaEdit, {30, 12, 20, 12}},
    {ControlKind::ListBox, DiaList, {30, 26, 20, 40}},
    {ControlKind::Label, IDC_STATIC, {51, 14, 6, 8}, "@", ControlStyle::AlignCenter},
    {ControlKind::Label, IDC_STATIC, {58, 3, 34, 8}, GbkLabel<u8"加密间距">()},
    {ControlKind::EditBox, JiamiIntervalEdit, {58, 12, 34, 12}},
    {ControlKind::ListBox, JiamiIntervalList, {58, 26, 34, 40}},
    {ControlKind::Label, IDC_STATIC, {94, 3, 34, 8}, GbkLabel<u8"加密肢数">()},
    {ControlKind::EditBox, JiamiZhishuEdit, {94, 12, 34, 12}},
    {ControlKind::ListBox, JiamiZhishuList, {94, 26, 34, 40}},
    {ControlKind::Label, IDC_STATIC, {129, 14, 6, 8}, "/", ControlStyle::AlignCenter},
    {ControlKind::Label, IDC_STATIC, {136, 3, 24, 8}, GbkLabel<u8"间距">()},
    {ControlKind::EditBox, IntervalEdit, {136, 12, 24, 12}},
    {ControlKind::ListBox, IntervalList, {136, 26, 24, 40}},
    {ControlKind::Label, IDC_STATIC, {162, 3, 24, 8}, GbkLabel<u8"肢数">()},
    {ControlKind::EditBox, ZhishuEdit, {162, 12, 24, 12}},
    {ControlKind::ListBox, ZhishuList, {162, 26, 24, 40}},
};

inline constexpr DialogTemplate Shape = {367, 189, 69, GbkLabel<u8"宋体">(), 9, Controls};

inline constexpr const char* SteelsymRows[] = {"A", "B"};
inline constexpr const char* DiaRows[] = {"6", "8", "10", "12"};                                      // mm
inline constexpr const char* JiamiIntervalRows[] = {GbkLabel<u8"无">(), "100", "120", "130", "150"};  // mm
inline constexpr const char* JiamiZhishuRows[] = {GbkLabel<u8"无">(), "(2)", "(3)", "(4)"};
inline constexpr const char* IntervalRows[] = {"150", "200", "250"};  // mm
inline constexpr const char* ZhishuRows[] = {"(2)", "(3)", "(4)"};

}  // namespace BeamGujinTemplate
