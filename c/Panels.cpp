// Panels and pickers: made, given a text, shown, read.
#include <utility>

#include "c/private/PanelCalls.h"
#include "c/private/Texts.h"

using namespace RankerC;

namespace RankerC {

// An event that a display feeds finds no frame; the panel may go in it, and stays until it is over.
BOOL Panel::Offer(const std::function<BOOL()>& offer)
{
    const std::lock_guard lock(CallLock());
    if (Frame::Of(*this) != nullptr) {
        return offer();
    }
    const auto self = shared_from_this();
    Frame frame(m_context, this, nullptr);
    return offer();
}

void Panel::Take(const CString& text)
{
    const std::lock_guard lock(CallLock());
    if (Frame* const frame = Frame::Of(*this)) {
        frame->Deliver(RK_TO_ITEM, 0, text, 0);
        return;
    }
    const auto self = shared_from_this();
    Frame(m_context, this, nullptr).Deliver(RK_TO_ITEM, 0, text, 0);
}

void Panel::Retire()
{
    if (m_face != nullptr) {
        m_face->Dialog().DestroyWindow();
    }
}

CWnd& NeedControl(Panel& panel, std::int32_t id)
{
    CWnd* const control = panel.m_face->Dialog().GetDlgItem(id);
    if (control == nullptr) {
        throw Refusal{RK_BAD_INDEX, "the panel has no control " + std::to_string(id)};
    }
    return *control;
}

CListBox& NeedListBox(Panel& panel, std::int32_t id)
{
    auto* const list = dynamic_cast<CListBox*>(&NeedControl(panel, id));
    if (list == nullptr) {
        throw Refusal{RK_BAD_ARGUMENT, "control " + std::to_string(id) + " is no list box"};
    }
    return *list;
}

CWnd* FocusIn(Panel& panel)
{
    CWnd* const focus = CWnd::GetFocus();
    const HWND dialog = panel.m_face->Dialog().GetSafeHwnd();
    return focus != nullptr && focus->GetParent() != nullptr && focus->GetParent()->m_hWnd == dialog
               ? focus
               : nullptr;
}

}  // namespace RankerC

namespace {

// Every call that runs the panel's code, which may deliver, tell the user or find itself destroyed.
template <class Body>
rk_status OnPanel(rk_panel panel, Body body)
{
    return Guarded([&] {
        const auto found = Find<Panel>(panel);
        Frame frame(found->m_context, found.get(), nullptr);
        body(*found);
        frame.NeedNoFailure();
    });
}

void CheckOptions(const rk_panel_options& options)
{
    const bool bPicker = options.kind == RK_HORIZONTAL_PICKER || options.kind == RK_VERTICAL_PICKER;
    const bool bNoHostData = options.kind == RK_NAME_PANEL && options.route == RK_TO_HOST;
    if (options.kind < RK_NAME_PANEL || options.kind > RK_VERTICAL_PICKER) {
        RefuseValue("options->kind", options.kind);
    }
    if (options.route < RK_TO_ITEM || options.route > RK_TO_HOST || bNoHostData ||
        (bPicker && options.route != RK_TO_ITEM)) {
        RefuseValue("options->route", options.route);
    }
}

rk_rect RectOf(const CRect& rect) { return {rect.left, rect.top, rect.right, rect.bottom}; }

int KindOf(const CWnd& control)
{
    if (dynamic_cast<const CEdit*>(&control) != nullptr) {
        return RK_AN_EDIT_BOX;
    }
    if (dynamic_cast<const CListBox*>(&control) != nullptr) {
        return RK_A_LIST_BOX;
    }
    return dynamic_cast<const CButton*>(&control) != nullptr ? RK_A_BUTTON : RK_A_LABEL;
}

rk_control ControlOf(Panel& panel, const CWnd& control)
{
    const CWnd& dialog = panel.m_face->Dialog();
    rk_control told{};
    told.id = control.GetDlgCtrlID();
    told.kind = KindOf(control);
    told.visible = control.IsWindowVisible() != FALSE ? 1 : 0;
    told.enabled = control.IsWindowEnabled() != FALSE ? 1 : 0;
    CRect place;
    control.GetWindowRect(&place);
    CPoint corner = place.TopLeft();
    dialog.ScreenToClient(&corner);
    told.place = {corner.x, corner.y, corner.x + place.Width(), corner.y + place.Height()};
    told.selection = -1;
    if (const auto* const list = dynamic_cast<const CListBox*>(&control)) {
        told.rows = list->GetCount();
        told.selection = list->GetCurSel();
        told.top = list->GetTopIndex();
    }
    CString text;
    control.GetWindowText(text);
    panel.m_text = SeenBy(*panel.m_context, text);
    told.text = {panel.m_text.data(), panel.m_text.size()};
    return told;
}

std::vector<const CWnd*> ControlsOf(const CWnd& dialog)
{
    std::vector<const CWnd*> controls;
    for (const CWnd* control = dialog.GetTopWindow(); control != nullptr;
         control = control->GetNextWindow()) {
        controls.push_back(control);
    }
    return controls;
}

// Only its address: the panel at work takes what it stands for.
char g_hostData = 0;

}  // namespace

rk_status rk_panel_create(rk_context context, const rk_panel_options* options, rk_panel* panel)
{
    return Guarded([&] {
        const auto found = Find<Context>(context);
        NeedStruct(options, "options");
        Need(panel, "panel");
        CheckOptions(*options);
        const auto made = std::make_shared<Panel>(found);
        Frame frame(found, made.get(), nullptr);
        made->m_face = MakePanel(*options, &g_hostData, *made);
        EnterAs(made, panel);
        frame.NeedNoFailure();
    });
}

rk_status rk_panel_destroy(rk_panel panel)
{
    return OnPanel(panel, [](Panel& found) { Leave(found); });
}

rk_status rk_panel_set_text(rk_panel panel, const char* text, size_t text_length)
{
    return OnPanel(panel, [&](Panel& found) {
        if (!found.m_face->SetText(TextOf(*found.m_context, text, text_length, "text"))) {
            throw Refusal{RK_BAD_ARGUMENT, "the bar panel starts empty"};
        }
    });
}

rk_status rk_panel_show(rk_panel panel, int32_t x, int32_t y)
{
    return OnPanel(panel, [&](Panel& found) {
        CDialog& dialog = found.m_face->Dialog();
        CRect place;
        dialog.GetWindowRect(&place);
        dialog.MoveWindow(x, y, place.Width(), place.Height());
        dialog.ShowWindow(SW_SHOW);
    });
}

rk_status rk_panel_hide(rk_panel panel)
{
    return OnPanel(panel, [](Panel& found) { found.m_face->Dialog().ShowWindow(SW_HIDE); });
}

rk_status rk_panel_event(rk_panel panel, const rk_event* event, int32_t* finished)
{
    return OnPanel(panel, [&](Panel& found) {
        NeedStruct(event, "event");
        const bool bFinished = FeedEvent(found, *event);
        if (finished != nullptr) {
            *finished = bFinished ? 1 : 0;
        }
    });
}

rk_status rk_panel_click(rk_panel panel, int32_t control, int32_t row, int32_t how)
{
    return OnPanel(panel, [&](Panel& found) { Click(found, control, row, how); });
}

rk_status rk_panel_edit(rk_panel panel, int32_t control, const char* text, size_t text_length)
{
    return OnPanel(panel, [&](Panel& found) {
        CWnd& box = NeedControl(found, control);
        if (KindOf(box) != RK_AN_EDIT_BOX) {
            throw Refusal{RK_BAD_ARGUMENT, "control " + std::to_string(control) + " is no edit box"};
        }
        if (!UserEditsText(box.m_hWnd, TextOf(*found.m_context, text, text_length, "text"))) {
            throw Refusal{RK_NOT_DONE, "the edit box refuses the text"};
        }
    });
}

rk_status rk_panel_get_state(rk_panel panel, rk_panel_state* state)
{
    return OnPanel(panel, [&](Panel& found) {
        NeedStruct(state, "state");
        CDialog& dialog = found.m_face->Dialog();
        CRect place;
        dialog.GetWindowRect(&place);
        const CWnd* const focus = FocusIn(found);
        rk_panel_state told{};
        told.visible = dialog.IsWindowVisible() != FALSE ? 1 : 0;
        told.focus = focus != nullptr ? focus->GetDlgCtrlID() : RK_THE_PANEL;
        told.controls = static_cast<std::int32_t>(ControlsOf(dialog).size());
        told.groups = found.m_face->Groups();
        told.new_piece = found.m_face->ComposesNewPiece() ? 1 : 0;
        told.place = RectOf(place);
        Give(told, state);
    });
}

rk_status rk_panel_result(rk_panel panel, int32_t group, char* buffer, size_t size, size_t* length)
{
    return OnPanel(panel, [&](Panel& found) {
        const int index = NeedIndex("group", group, found.m_face->Groups());
        Give(*found.m_context, found.m_face->Result(index), buffer, size, length);
    });
}

rk_status rk_panel_control_at(rk_panel panel, int32_t number, rk_control* control)
{
    return OnPanel(panel, [&](Panel& found) {
        NeedStruct(control, "control");
        const std::vector<const CWnd*> controls = ControlsOf(found.m_face->Dialog());
        const int index = NeedIndex("number", number, static_cast<long long>(controls.size()));
        Give(ControlOf(found, *controls[static_cast<std::size_t>(index)]), control);
    });
}

rk_status rk_panel_control(rk_panel panel, int32_t id, rk_control* control)
{
    return OnPanel(panel, [&](Panel& found) {
        NeedStruct(control, "control");
        Give(ControlOf(found, NeedControl(found, id)), control);
    });
}

rk_status rk_panel_rows(rk_panel panel, int32_t id, rk_list rows)
{
    return OnPanel(panel, [&](Panel& found) {
        const auto list = Find<List>(rows);
        const CListBox& box = NeedListBox(found, id);
        CStringArray texts;
        for (int row = 0; row < box.GetCount(); ++row) {
            CString text;
            box.GetText(row, text);
            texts.Add(text);
        }
        list->Changed();
        list->m_texts = std::move(texts);
        list->m_numbers.clear();
    });
}

rk_status rk_panel_row_place(rk_panel panel, int32_t id, int32_t row, rk_rect* place)
{
    return OnPanel(panel, [&](Panel& found) {
        Need(place, "place");
        const CListBox& box = NeedListBox(found, id);
        CRect rect;
        box.GetItemRect(NeedIndex("row", row, box.GetCount()), &rect);
        *place = RectOf(rect);
    });
}
