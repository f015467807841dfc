// Finding controls, rows and positions on a panel.
#include "desk/console/panel/Aim.h"

#include <algorithm>
#include <functional>

#include "desk/console/Print.h"

namespace Desk::Panels {

namespace {

// "lists 552, 1062; buttons 1311 "7"".
std::string WhatThereIs(const std::vector<Control>& controls)
{
    std::string all;
    for (const auto& [kind, name] : {std::pair(WindowKind::ListBox, "lists "),
                                     {WindowKind::EditBox, "boxes "},
                                     {WindowKind::Button, "buttons "}}) {
        std::vector<std::string> names;
        for (const Control& control : controls) {
            if (control.kind == kind) {
                names.push_back(std::to_string(control.id) +
                                (kind == WindowKind::Button ? " " + Quoted(control.text) : ""));
            }
        }
        if (!names.empty()) {
            all += (all.empty() ? "" : "; ") + (name + Joined(names, std::identity()));
        }
    }
    return all;
}

std::string RowsOf(const Control& list)
{
    return list.rows.empty() ? "it has no rows" : "it has " + Joined(list.rows, Quoted);
}

int RowOf(const Step& step, const Control& list)
{
    const int count = static_cast<int>(list.rows.size());
    const std::string name = NameOf(list.kind, list.id);
    if (const std::optional<int> number = step.target.rowNumber) {
        if (*number < 0 || *number >= count) {
            ThrowAt(step,
                    name + " has no row #" + std::to_string(*number) + "; " +
                        (count == 0 ? "it has no rows" : "the last one is #" + std::to_string(count - 1)));
        }
        return *number;
    }
    const auto row = std::find(list.rows.begin(), list.rows.end(), *step.target.rowText);
    if (row == list.rows.end()) {
        ThrowAt(step, name + " has no row " + Quoted(*step.target.rowText) + "; " + RowsOf(list));
    }
    return static_cast<int>(row - list.rows.begin());
}

CPoint AimAtControl(const Step& step, HWND hPanel, Hands& hands)
{
    const Control control = FindControl(step, hPanel);
    const CWnd& window = *CWnd::FromHandle(control.handle);
    const bool isList = control.kind == WindowKind::ListBox;
    const bool hasRow = step.target.rowNumber || step.target.rowText;
    const bool picks = step.verb == Verb::Click || step.verb == Verb::Double || step.verb == Verb::Press;
    if (!isList && hasRow) {
        ThrowAt(step, NameOf(control.kind, control.id) + " has no rows; write: " +
                          step.source.substr(0, step.source.find(' ')) + " " + step.target.control);
    }
    if (isList && !hasRow && picks) {
        ThrowAt(step, "which row of " + NameOf(control.kind, control.id) + "? " + RowsOf(control));
    }
    return hasRow ? hands.ReachRow(dynamic_cast<const CListBox&>(window), RowOf(step, control))
                  : Hands::MiddleOf(window);
}

// The first position, line by line, where the panel itself shows.
CPoint AimAtSurface(const Step& step, HWND hPanel)
{
    const CRect place = FindWindowRecord(hPanel)->place;
    for (int y = place.top; y < place.bottom; ++y) {
        for (int x = place.left; x < place.right; ++x) {
            if (WindowFromPoint(CPoint(x, y)) == hPanel) {
                return {x, y};
            }
        }
    }
    ThrowAt(step, "controls cover the whole panel; name one of them");
}

CPoint AimAtPoint(const Step& step, HWND hPanel)
{
    const CRect place = FindWindowRecord(hPanel)->place;
    const CPoint point(place.left + step.target.point->x, place.top + step.target.point->y);
    if (step.verb != Verb::Release && !place.PtInRect(point)) {
        ThrowAt(step, "the position is outside the panel, which is " + std::to_string(place.Width()) + "," +
                          std::to_string(place.Height()) + " pixels");
    }
    return point;
}

}  // namespace

Control FindControl(const Step& step, HWND hPanel)
{
    std::vector<Control> controls = TakePicture(hPanel).controls;
    std::erase_if(controls, [](const Control& control) { return control.kind == WindowKind::Label; });
    const std::string& wanted = step.target.control;
    auto found = std::find_if(controls.begin(), controls.end(),
                              [&](const Control& control) { return std::to_string(control.id) == wanted; });
    if (found == controls.end()) {
        found = std::find_if(controls.begin(), controls.end(), [&](const Control& control) {
            return control.kind == WindowKind::Button && control.text == wanted;
        });
    }
    if (found == controls.end()) {
        ThrowAt(step, "the panel has no control " + Quoted(wanted) + "; it has " + WhatThereIs(controls));
    }
    return *found;
}

CPoint Aim(const Step& step, HWND hPanel, Hands& hands)
{
    if (step.target.point) {
        return AimAtPoint(step, hPanel);
    }
    return step.target.IsBare() ? AimAtSurface(step, hPanel) : AimAtControl(step, hPanel, hands);
}

}  // namespace Desk::Panels
