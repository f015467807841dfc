// The frame, the panel in it, and what each step does to them.
#include "desk/console/panel/Run.h"

#include "desk/console/panel/Aim.h"
#include "desk/console/panel/Watched.h"

namespace Desk::Panels {

Run::Item::Item(Watch& watch) : m_watch(watch)
{
    SetHWnd(this);  // pickers use an item only while it is attached
}

void Run::Item::SetValue(CString strValue)
{
    m_watch.DeliveredToItem(strValue);
    CPropertyGridItem::SetValue(strValue);
}

Run::Run(const Setup& setup) : m_kind(setup.kind), m_item(m_watch), m_hands(m_watch)
{
    constexpr int FrameWidth = 1280, FrameHeight = 800;  // pixels
    m_frame.CreateFrame(CRect(0, 0, FrameWidth, FrameHeight));
    m_frame.ShowWindow(SW_SHOW);
    m_panel = MakePanel<Watched>(static_cast<UINT>(setup.kind), {setup.to, &m_item, &m_hostData}, m_watch);
    m_panel->Create(setup.to == Receiver::Route::HostData ? nullptr : &m_frame);
    m_panel->Open(setup.use);
    m_watch.Know(m_panel->Window().m_hWnd, &m_frame, &m_hostData);
    m_panel->Window().ShowWindow(SW_SHOW);
    m_watch.Look();
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
    const bool isOfHost = step.verb == Verb::Text || step.verb == Verb::Kind || step.verb == Verb::Show ||
                          step.verb == Verb::Hide;
    if (isOfHost) {
        m_watch.WriteTo(&done.effects);
        DoAsHost(step);
        m_watch.Look();
        m_watch.WriteTo(nullptr);
    } else {
        if (!m_panel->Window().IsWindowVisible()) {
            ThrowAt(step, "the panel is hidden and takes no mouse or keys; use show first");
        }
        m_hands.WriteTo(&done.events);
        DoAsUser(step);
        m_hands.WriteTo(nullptr);
    }
    done.picture = Now();
    return done;
}

void Run::DoAsHost(const Step& step)
{
    switch (step.verb) {
    case Verb::Text:
        if (m_kind == PanelKind::Bars) {
            ThrowAt(step, "the bar panel takes no text, it starts empty; kind N opens it anew");
        }
        m_panel->Open({step.text, -1, 0, {}});
        break;
    case Verb::Kind:
        if (m_kind != PanelKind::Bars) {
            ThrowAt(step, "only the bar panel is opened for a kind");
        }
        m_panel->Open({{}, step.number, 0, {}});
        break;
    default: m_panel->Window().ShowWindow(step.verb == Verb::Show ? SW_SHOW : SW_HIDE); break;
    }
}

void Run::DoAsUser(const Step& step)
{
    const HWND hPanel = m_panel->Window().m_hWnd;
    const auto aim = [&] { return Aim(step, hPanel, m_hands); };
    switch (step.verb) {
    case Verb::Click:
    case Verb::Drag: {
        const CPoint from = aim();
        m_hands.Drag(from, CPoint(from.x + step.distance.x, from.y + step.distance.y));
        break;
    }
    case Verb::Double: m_hands.DoubleClick(aim()); break;
    case Verb::Press: m_hands.Press(aim()); break;
    case Verb::Release: m_hands.Release(aim()); break;
    case Verb::Right: m_hands.RightClick(aim()); break;
    case Verb::Wheel:
        m_hands.Wheel(Hands::MiddleOf(*CWnd::FromHandle(FindControl(step, hPanel).handle)), step.number);
        break;
    case Verb::Type: m_hands.TypeInto(FindBox(step), step.text); break;
    case Verb::Clear: m_hands.Clear(FindBox(step)); break;
    case Verb::Key:
        for (int i = 0; i < step.number; ++i) {
            m_hands.Key(step.key, step.shift);
        }
        break;
    default: break;
    }
}

const CWnd& Run::FindBox(const Step& step) const
{
    const Control box = FindControl(step, m_panel->Window().m_hWnd);
    if (box.kind != WindowKind::EditBox) {
        ThrowAt(step, NameOf(box.kind, box.id) + " takes no text; type and clear need an edit box");
    }
    return *CWnd::FromHandle(box.handle);
}

}  // namespace Desk::Panels
