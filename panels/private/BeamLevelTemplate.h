// The elevation panel's window: an edit box over a calculator keypad.
#pragma once

#include "platform/windows/DialogTemplate.h"

namespace BeamLevelTemplate {

inline constexpr int LevelEdit = 1320;
inline constexpr int Button1 = 1367, Button2 = 1360, Button3 = 1308, Button4 = 1309, Button5 = 1052;
inline constexpr int Button6 = 1310, Button7 = 1311, Button8 = 1312, Button9 = 1313, Button0 = 1314;
inline constexpr int ButtonDot = 1315, ButtonBrack = 1316, ButtonNegative = 1317;
inline constexpr int ButtonBack = 1318, ButtonClean = 1319;

inline constexpr ControlTemplate Controls[] = {
    {ControlKind::Label, IDC_STATIC, {2, 4, 17, 8}, GbkLabel<u8"标高">()},
    {ControlKind::EditBox, LevelEdit, {20, 2, 50, 12}, "", ControlStyle::AlignRight},
    {ControlKind::Button, Button7, {2, 16, 10, 11}, "7"},
    {ControlKind::Button, Button8, {13, 16, 10, 11}, "8"},
    {ControlKind::Button, Button9, {24, 16, 10, 11}, "9"},
    {ControlKind::Button, ButtonNegative, {35, 16, 10, 11}, "-"},
    {ControlKind::Button, ButtonBrack, {46, 16, 24, 11}, "(   )"},
    {ControlKind::Button, Button4, {2, 28, 10, 11}, "4"},
    {ControlKind::Button, Button5, {13, 28, 10, 11}, "5"},
    {ControlKind::Button, Button6, {24, 28, 10, 11}, "6"},
    {ControlKind::Button, ButtonDot, {35, 28, 10, 11}, "."},
    {ControlKind::Button, ButtonBack, {46, 28, 24, 11}, "BK"},
    {ControlKind::Button, Button1, {2, 40, 10, 11}, "1"},
    {ControlKind::Button, Button2, {13, 40, 10, 11}, "2"},
    {ControlKind::Button, Button3, {24, 40, 10, 11}, "3"},
    {ControlKind::Button, Button0, {35, 40, 10, 11}, "0"},
    {ControlKind::Button, ButtonClean, {46, 40, 24, 11}, "CE"},
};

inline constexpr DialogTemplate Shape = {542, 72, 53, GbkLabel<u8"宋体">(), 9, Controls};

}  // namespace BeamLevelTemplate
