#include "desk/window/PanelHost.h"

#include "desk/project/Encoding.h"
#include "desk/window/PresentBars.h"

namespace Desk {

namespace {

QString Shown(const CString& text) { return QString::fromStdString(Utf8FromGbk(text)); }

}  // namespace

void PanelHost::Item::SetValue(CString strValue)
{
    CPropertyGridItem::SetValue(strValue);
    emit m_host.Composed(m_host.m_place, Shown(strValue) + m_host.m_tail);
}

PanelHost::PanelHost(QtDisplay& display, QObject* parent)
    : QObject(parent), m_display(display), m_item(*this)
{
    m_item.SetHWnd(this);  // the item counts as attached for as long as this lives
    connect(&display, &QtDisplay::Hidden, this, [this](HWND popUp) {
        if (popUp == m_open) {
            m_open = nullptr;
        }
    });
}

PanelHost::~PanelHost() = default;

bool PanelHost::HasPanel(const FieldRef& place) { return !place.isWall || place.field != Field::Name; }

void PanelHost::Open(const FieldRef& place, const QString& present, const QRect& field, QWidget* owner)
{
    const std::optional<CString> text = GbkFromUtf8(present.toStdString());
    if (!HasPanel(place) || !text) {
        return;
    }
    Close();
    m_place = place;
    const qsizetype spacing = place.field == Field::VerticalBars ? present.indexOf(QLatin1Char('@')) : -1;
    m_tail = spacing >= 0 ? present.mid(spacing) : QString();
    m_item.CPropertyGridItem::SetValue(*text);
    m_item.SetListShowFlag(TRUE);
    CDialog& panel = Prepare(place, *text);
    m_open = panel.m_hWnd;
    m_display.OpenBeside(panel.m_hWnd, field, owner);
}

void PanelHost::Close()
{
    if (CWnd* const open = CWnd::FromHandle(m_open)) {
        open->ShowWindow(SW_HIDE);
    }
}

std::optional<FieldRef> PanelHost::Serving() const
{
    return m_open != nullptr ? std::optional(m_place) : std::nullopt;
}

HWND PanelHost::Window() const { return m_open; }

// Panels are made anew for each use, so that nothing of an older text is left in them.
template <class Dialog>
Dialog& PanelHost::Make()
{
    auto made = std::make_unique<Dialog>();
    Dialog& dialog = *made;
    m_panel = std::move(made);
    dialog.m_bToItem = true;
    dialog.m_pItem = &m_item;
    dialog.Create(Dialog::IDD);
    return dialog;
}

CDialog& PanelHost::Prepare(const FieldRef& place, const CString& present)
{
    if (place.isWall) {
        return place.field == Field::HorizontalBars ? Bound(m_horizontal) : Bound(m_vertical);
    }
    switch (place.field) {
    case Field::Name: {
        auto& panel = Make<CBeamNameDlg>();
        panel.m_strResult = present;
        panel.Init();
        return panel;
    }
    case Field::Section: {
        auto& panel = Make<CBeamSecDlg>();
        panel.Init(present);
        return panel;
    }
    case Field::Elevation: {
        auto& panel = Make<CBeamLevelDlg>();
        panel.Init();
        panel.SetFocusLevel(present);
        return panel;
    }
    case Field::Stirrup: {
        auto& panel = Make<CBeamGujinDlg>();
        panel.m_strResult = present;
        panel.Init();
        return panel;
    }
    default: {
        auto& panel = Make<CBeamSteelDlg>();
        ShowBars(panel, place.field, present);
        return panel;
    }
    }
}

// A picker stays, and with it what its boxes show where the item's text says nothing.
template <class Picker>
CDialog& PanelHost::Bound(std::unique_ptr<Picker>& picker)
{
    if (picker == nullptr) {
        picker = std::make_unique<Picker>(nullptr);
        picker->Create(Picker::IDD);
    }
    picker->m_pItem = &m_item;
    picker->UpdateValue();
    return *picker;
}

}  // namespace Desk
