// The frame, the panel in it, and what each step does to them.
#include "desk/console/panel/Run.h"

#include "desk/console/panel/Aim.h"

namespace Desk::Panels {

namespace {

constexpr int FrameWidth = 1280, FrameHeight = 800;  // pixels

bool IsOfHost(Verb verb)
{
    return verb == Verb::Text || verb == Verb::Kind || verb == Verb::Show || verb == Verb::Hide;
}

}  // namespace

void Run::Item::SetValue(CString strValue)
{
    m_watch.DeliveredToItem(strValue);
    CPropertyGridItem::SetValue(strValue);
}

Run::Run(const Setup& setup) : m_item(m_watch)
{
    m_frame.CreateFrame(CRect(0, 0, FrameWidth, FrameHeight));
    m_frame.ShowWindow(SW_SHOW);
    m_panel = MakePanel(setup, m_watch, &m_item, &m_hostData);
    m_panel->Open(setup.to == Route::Host ? nullptr : &m_frame);
    const HWND hPanel = m_panel->Window().m_hWnd;
    m_watch.Know(hPanel, &m_frame, &m_hostData);
    m_panel->Window().ShowWindow(SW_SHOW);
    m_watch.Look();
    m_hand = std::make_unique<Hand>(hPanel, m_watch);
}

Picture Run::Now() const
{
    Picture picture = TakePicture(m_panel->Window().m_hWnd);
    picture.holding = m_panel->Held();
    return picture;
}

Done Run::Do(const Step& step)
{
    Done done;
    done.source = step.source;
    if (IsOfHost(step.verb)) {
        m_watch.WriteTo(&done.effects);
        DoAsHost(step);
        m_watch.Look();
        m_watch.WriteTo(nullptr);
    } else {
        if (!m_panel->Window().IsWindowVisible()) {
            ThrowAt(step,
                    "the panel is hidden, so that it takes no mouse and no keys; show brings it back");
        }
        m_hand->WriteTo(&done.events);
        DoAsUser(step);
        m_hand->WriteTo(nullptr);
    }
    done.picture = Now();
    return done;
}

void Run::DoAsHost(const Step& step)
{
    switch (step.verb) {
    case Verb::Text:
        if (!m_panel->SetText(step.text)) {
            ThrowAt(step, "the bar panel takes no text, it starts empty; kind N opens it anew");
        }
        break;
    case Verb::Kind:
        if (!m_panel->SetKind(step.number)) {
            ThrowAt(step, "only the bar panel is opened for a kind");
        }
        break;
    case Verb::Show: m_panel->Window().ShowWindow(SW_SHOW); break;
    default: m_panel->Window().ShowWindow(SW_HIDE); break;
    }
}

void Run::DoAsUser(const Step& step)
{
    const HWND hPanel = m_panel->Window().m_hWnd;
    switch (step.verb) {
    case Verb::Click:
    case Verb::Drag: {
        const CPoint from = Aim(step, hPanel, *m_hand);
        m_hand->Press(from);
        m_hand->Release(CPoint(from.x + step.distance.x, from.y + step.distance.y));
        break;
    }
    case Verb::Double: m_hand->DoubleClick(Aim(step, hPanel, *m_hand)); break;
    case Verb::Press: m_hand->Press(Aim(step, hPanel, *m_hand)); break;
    case Verb::Release: m_hand->Release(Aim(step, hPanel, *m_hand)); break;
    case Verb::Right: m_hand->RightClick(Aim(step, hPanel, *m_hand)); break;
    case Verb::Wheel: m_hand->Wheel(MiddleOf(FindControl(step, hPanel)), step.number); break;
    case Verb::Type: Type(step); break;
    case Verb::Clear: Clear(step); break;
    case Verb::Key:
        for (int i = 0; i < step.number; ++i) {
            m_hand->Key(step.key, step.shift);
        }
        break;
    default: break;
    }
}

void Run::GoIntoBox(const Step& step)
{
    const WindowRecord& box = FindControl(step, m_panel->Window().m_hWnd);
    if (box.kind != WindowKind::EditBox) {
        ThrowAt(step, NameOf(box.kind, box.id) + " takes no text; type and clear go to an edit box");
    }
    const CPoint middle = MiddleOf(box);
    m_hand->Press(middle);
    m_hand->Release(middle);
    m_hand->Key(VK_END);
}

void Run::Type(const Step& step)
{
    GoIntoBox(step);
    m_hand->Type(step.text);
}

void Run::Clear(const Step& step)
{
    GoIntoBox(step);
    const HWND hBox = FindControl(step, m_panel->Window().m_hWnd).handle;
    for (int left = FindWindowRecord(hBox)->text.GetLength();
         left > 0 && !FindWindowRecord(hBox)->text.IsEmpty(); --left) {
        m_hand->Key(VK_BACK);
    }
}

}  // namespace Desk::Panels
