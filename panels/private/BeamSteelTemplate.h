// The bar panel's window and what its column lists hold: type, count, grade, diameter, upper and lower
// row and terminator side by side under their headings, and the list of all pieces along the foot.
#pragma once

#include "panels/BarPiece.h"
#include "platform/windows/DialogTemplate.h"

namespace BeamSteelTemplate {

inline constexpr int SteeltypeList = 1062, VdiaList = 1345;
inline constexpr int SteelnumList = 1338, SteelsymList = 1339, SteeldiaList = 1340;
inline constexpr int UpList = 1361, SlashList = 1363, DownList = 1362;
inline constexpr int SepList = 1341, PosList = 1346, DeleteButton = 1347;

// Nine rows fit into each column, so that every row can be seen; the column for another diameter shows
// one of its two.
inline constexpr ControlTemplate Controls[] = {
    {ControlKind::Label, IDC_STATIC, {2, 1, 48, 8}, GbkLabel<u8"钢筋成份">()},
    {ControlKind::ListBox, SteeltypeList, {2, 10, 48, 48}},
    {ControlKind::ListBox, VdiaList, {2, 60, 48, 8}},
    {ControlKind::Label, IDC_STATIC, {52, 1, 26, 8}, GbkLabel<u8"钢筋数">()},
    {ControlKind::ListBox, SteelnumList, {52, 10, 26, 72}},
    {ControlKind::Label, IDC_STATIC, {80, 1, 26, 8}, GbkLabel<u8"钢筋符">()},
    {ControlKind::ListBox, SteelsymList, {80, 10, 26, 72}},
    {ControlKind::Label, IDC_STATIC, {108, 1, 22, 8}, GbkLabel<u8"直径">()},
    {ControlKind::ListBox, SteeldiaList, {108, 10, 22, 72}},
    {ControlKind::Label, IDC_STATIC, {132, 1, 36, 8}, GbkLabel<u8"上下排">()},
    {ControlKind::ListBox, UpList, {132, 10, 14, 72}},
    {ControlKind::ListBox, SlashList, {146, 10, 8, 72}, "", ControlStyle::Disabled},
    {ControlKind::ListBox, DownList, {154, 10, 14, 72}},
    {ControlKind::Label, IDC_STATIC, {170, 1, 28, 8}, GbkLabel<u8"分隔符">()},
    {ControlKind::ListBox, SepList, {170, 10, 28, 72}},
    {ControlKind::ListBox, PosList, {2, 84, 196, 8}, "", ControlStyle::MultiColumn},
    {ControlKind::Button, DeleteButton, {2, 70, 48, 12}, GbkLabel<u8"删除">()},
};

inline constexpr DialogTemplate Shape = {543, 200, 93, GbkLabel<u8"宋体">(), 9, Controls};

inline constexpr int PosColumnWidth = 65;  // pixels

// Rows beside those of BarPiece.
inline constexpr const char* None = GbkLabel<u8"无">();
inline constexpr const char* SepRows[] = {BarPiece::Terminators[0], BarPiece::Terminators[1], None};
inline constexpr const char* VdiaRows[] = {GbkLabel<u8"+不同直径">(), "   "};
inline constexpr int LaterRow = 0, BlankRow = 1;  // of the list for another diameter
inline constexpr const char* SlashRows[] = {" ", "/", "/", "/", "/", "/", "/", "/", "/"};

}  // namespace BeamSteelTemplate
