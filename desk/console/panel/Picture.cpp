// Reading a panel's picture out of the window records.
#include "desk/console/panel/Picture.h"

#include <algorithm>

#include "desk/console/Print.h"
#include "desk/project/Encoding.h"

namespace Desk::Panels {

namespace {

Control ReadControl(const WindowRecord& window, HWND focus)
{
    Control control;
    control.handle = window.handle;
    control.id = window.id;
    control.kind = window.kind;
    control.style = window.style;
    control.place = window.place;
    control.text = Utf8FromGbk(window.text);
    control.enabled = window.enabled;
    control.focused = window.handle == focus;
    if (control.focused && window.kind == WindowKind::EditBox) {
        control.caret = static_cast<int>(Utf8FromGbk(window.text.Left(window.caret)).size());
    }
    for (const CString& row : window.list.rows) {
        control.rows.push_back(Utf8FromGbk(row));
    }
    control.selection = window.list.selection;
    control.top = window.list.top;
    control.inView = window.RowsInView();
    return control;
}

std::string SelectionOf(const Control& list)
{
    return list.selection == -1 ? "on no row"
                                : "on " + Visible(list.rows[static_cast<std::size_t>(list.selection)]);
}

void AddChanges(const Control& before, const Control& after, std::vector<std::string>& changes)
{
    const std::string id = std::to_string(after.id) + " ";
    if (before.text != after.text) {
        changes.push_back(id + "= " + Visible(after.text));
    }
    if (before.rows != after.rows) {
        const std::size_t count = after.rows.size();
        changes.push_back(id + "has " + std::to_string(count) + (count == 1 ? " row" : " rows"));
    }
    if (before.selection != after.selection) {
        changes.push_back(id + SelectionOf(after));
    }
    if (before.top != after.top) {
        changes.push_back(id + "from row #" + std::to_string(after.top));
    }
}

}  // namespace

Picture TakePicture(HWND hPanel)
{
    Picture picture;
    const WindowRecord* const panel = FindWindowRecord(hPanel);
    if (panel == nullptr) {
        return picture;
    }
    picture.shown = panel->visible;
    picture.place = panel->place;
    const CWnd* const focus = CWnd::GetFocus();
    for (const HWND child : panel->children) {
        picture.controls.push_back(
            ReadControl(*FindWindowRecord(child), focus != nullptr ? focus->m_hWnd : nullptr));
    }
    return picture;
}

const char* KindName(WindowKind kind)
{
    switch (kind) {
    case WindowKind::ListBox: return "list";
    case WindowKind::EditBox: return "box";
    case WindowKind::Button: return "button";
    default: return "label";
    }
}

std::string NameOf(WindowKind kind, int id)
{
    const std::string name = KindName(kind);
    return kind == WindowKind::Label ? name : name + " " + std::to_string(id);
}

std::vector<std::string> Changes(const Picture& before, const Picture& after)
{
    std::vector<std::string> changes;
    if (before.shown != after.shown) {
        changes.emplace_back(after.shown ? "shown" : "hidden");
    }
    const CPoint from = before.place.TopLeft();
    const CPoint to = after.place.TopLeft();
    if (!(from == to)) {
        changes.push_back("moved by " + std::to_string(to.x - from.x) + "," +
                          std::to_string(to.y - from.y));
    }
    const std::size_t count = std::min(before.controls.size(), after.controls.size());
    for (std::size_t i = 0; i < count; ++i) {
        AddChanges(before.controls[i], after.controls[i], changes);
    }
    return changes;
}

}  // namespace Desk::Panels
