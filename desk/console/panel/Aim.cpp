// Finding controls, rows and positions on a panel.
#include "desk/console/panel/Aim.h"

#include <algorithm>

#include "desk/project/Encoding.h"

namespace Desk::Panels {

namespace {

std::vector<const WindowRecord*> ControlsOf(HWND hPanel)
{
    std::vector<const WindowRecord*> controls;
    for (const HWND child : FindWindowRecord(hPanel)->children) {
        const WindowRecord* const control = FindWindowRecord(child);
        if (control->kind != WindowKind::Label) {
            controls.push_back(control);
        }
    }
    return controls;
}

// "lists 552, 1062; boxes 1316, 1643".
std::string WhatThereIs(HWND hPanel)
{
    struct Group {
        WindowKind kind;
        const char* name;
    };
    std::string all;
    for (const Group group : {Group{WindowKind::ListBox, "lists"}, Group{WindowKind::EditBox, "boxes"},
                              Group{WindowKind::Button, "buttons"}}) {
        std::string names;
        for (const WindowRecord* const control : ControlsOf(hPanel)) {
            if (control->kind == group.kind) {
                names += (names.empty() ? " " : ", ") + std::to_string(control->id);
                if (group.kind == WindowKind::Button) {
                    names.append(" ").append(Quoted(Utf8FromGbk(control->text)));
                }
            }
        }
        if (!names.empty()) {
            all += (all.empty() ? "" : "; ") + std::string(group.name) + names;
        }
    }
    return all;
}

std::string RowsOf(const WindowRecord& list)
{
    std::string rows;
    for (const CString& row : list.list.rows) {
        rows += (rows.empty() ? "" : ", ") + Quoted(Utf8FromGbk(row));
    }
    return rows.empty() ? "it has no rows" : "it has " + rows;
}

int RowOf(const Step& step, const WindowRecord& list)
{
    const std::vector<CString>& rows = list.list.rows;
    const std::string name = NameOf(list.kind, list.id);
    if (step.place.rowNumber) {
        if (*step.place.rowNumber < 0 || *step.place.rowNumber >= static_cast<int>(rows.size())) {
            ThrowAt(step, name + " has no row #" + std::to_string(*step.place.rowNumber) + "; " +
                              (rows.empty() ? "it has no rows"
                                            : "the last one is #" + std::to_string(rows.size() - 1)));
        }
        return *step.place.rowNumber;
    }
    const std::string& wanted = *step.place.rowText;
    const auto row = std::find_if(rows.begin(), rows.end(),
                                  [&](const CString& text) { return Utf8FromGbk(text) == wanted; });
    if (row == rows.end()) {
        ThrowAt(step, name + " has no row " + Quoted(wanted) + "; " + RowsOf(list));
    }
    return static_cast<int>(row - rows.begin());
}

// The wheel turns until the row shows whole, at most as often as there are rows.
CPoint AimAtRow(int row, const WindowRecord& list, Hand& hand)
{
    constexpr int Inside = 5;  // pixels from the row's corner
    const auto& box = dynamic_cast<const CListBox&>(*CWnd::FromHandle(list.handle));
    CRect client;
    CRect rect;
    box.GetClientRect(&client);
    for (int turns = box.GetCount(); turns > 0; --turns) {
        box.GetItemRect(row, &rect);
        const bool before = rect.left < client.left || rect.top < client.top;
        if (!before && rect.right <= client.right && rect.bottom <= client.bottom) {
            break;
        }
        hand.Wheel(MiddleOf(list), before ? 1 : -1);
    }
    box.GetItemRect(row, &rect);
    CPoint point(rect.left + Inside, rect.top + Inside);
    box.ClientToScreen(&point);
    return point;
}

CPoint AimAtControl(const Step& step, HWND hPanel, Hand& hand)
{
    const WindowRecord& control = FindControl(step, hPanel);
    const bool hasRow = step.place.rowNumber || step.place.rowText;
    const bool picks = step.verb == Verb::Click || step.verb == Verb::Double || step.verb == Verb::Press;
    if (control.kind != WindowKind::ListBox && hasRow) {
        ThrowAt(step, NameOf(control.kind, control.id) + " has no rows; it is: " +
                          step.source.substr(0, step.source.find(' ')) + " " + step.place.control);
    }
    if (control.kind == WindowKind::ListBox && !hasRow && picks) {
        ThrowAt(step, "which row of " + NameOf(control.kind, control.id) + "? " + RowsOf(control));
    }
    return hasRow ? AimAtRow(RowOf(step, control), control, hand) : MiddleOf(control);
}

// The first place, line by line, where the panel itself shows.
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
    ThrowAt(step, "the panel shows no surface of its own; name a control");
}

CPoint AimAtPoint(const Step& step, HWND hPanel)
{
    const CRect place = FindWindowRecord(hPanel)->place;
    const CPoint point(place.left + step.place.point->x, place.top + step.place.point->y);
    if (step.verb != Verb::Release && !place.PtInRect(point)) {
        ThrowAt(step, "the position is outside the panel, which is " + std::to_string(place.Width()) + "," +
                          std::to_string(place.Height()) + " pixels");
    }
    return point;
}

}  // namespace

const WindowRecord& FindControl(const Step& step, HWND hPanel)
{
    const std::vector<const WindowRecord*> controls = ControlsOf(hPanel);
    const auto isNamed = [&](const WindowRecord* control) {
        return std::to_string(control->id) == step.place.control;
    };
    auto found = std::find_if(controls.begin(), controls.end(), isNamed);
    if (found == controls.end()) {
        found = std::find_if(controls.begin(), controls.end(), [&](const WindowRecord* control) {
            return control->kind == WindowKind::Button && Utf8FromGbk(control->text) == step.place.control;
        });
    }
    if (found == controls.end()) {
        ThrowAt(step, "the panel has no control " + Quoted(step.place.control) + "; it has " +
                          WhatThereIs(hPanel));
    }
    return **found;
}

CPoint Aim(const Step& step, HWND hPanel, Hand& hand)
{
    if (step.place.point) {
        return AimAtPoint(step, hPanel);
    }
    return step.place.IsBare() ? AimAtSurface(step, hPanel) : AimAtControl(step, hPanel, hand);
}

CPoint MiddleOf(const WindowRecord& control)
{
    CRect rect;
    CWnd::FromHandle(control.handle)->GetWindowRect(&rect);
    return {(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2};
}

}  // namespace Desk::Panels
