#include "desk/window/PanelHost.h"

#include "desk/project/Encoding.h"
#include "desk/reading/Bars.h"

namespace Desk {

namespace {

QString Shown(const CString& text) { return QString::fromStdString(Utf8FromGbk(text)); }

// A text such as "2B25+1B22" or "G4B12" goes into the bar panel as bare pieces.
PanelUse UseFor(Field field, const CString& present)
{
    constexpr int StarTorsion = 3;  // the type of pieces with the head "*"
    const FieldRow& row = RowOf(field);
    PanelUse use = {present, row.panelBars, row.pieceType, {}};
    if (row.panel != PanelKind::Bars) {
        return use;
    }
    std::string_view rest = present.View();
    if (const std::string_view head = HeadOf(rest); *row.heads != '\0' && !head.empty()) {
        rest.remove_prefix(head.size());
        use.pieceType = field == Field::Torsion && head == "*" ? StarTorsion : use.pieceType;
    }
    for (const std::string& piece : BarPieces(rest)) {
        use.pieces.emplace_back(piece);
    }
    return use;
}

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

bool PanelHost::HasPanel(const FieldRef& place) { return PanelOf(place) != PanelKind::None; }

void PanelHost::Open(const FieldRef& place, const QString& present, const QString& title,
                     const QRect& field, QWidget* owner)
{
    const std::optional<CString> text = GbkFromUtf8(present.toStdString());
    if (!HasPanel(place) || !text) {
        return;
    }
    Close();
    m_place = place;
    const qsizetype spacing = place.field == Field::VerticalBars ? present.indexOf(QLatin1Char('@')) : -1;
    m_tail = spacing >= 0 ? present.mid(spacing) : QString();
    m_item.SetListShowFlag(TRUE);
    Panel& panel = PanelFor(PanelOf(place));
    panel.Open(UseFor(place.field, *text));
    m_open = panel.Window().m_hWnd;
    m_display.OpenBeside(m_open, field, owner, title);
}

void PanelHost::Close()
{
    if (CWnd* const open = CWnd::FromHandle(m_open)) {
        open->ShowWindow(SW_HIDE);
    }
}

bool PanelHost::MayClose() { return m_open == nullptr || m_display.MayHide(m_open); }

std::optional<FieldRef> PanelHost::Serving() const
{
    return m_open != nullptr ? std::optional(m_place) : std::nullopt;
}

HWND PanelHost::Window() const { return m_open; }

// Panels are made anew for each use, so that nothing of an older text is left in them. A picker stays, and
// with it what its boxes show where the item's text says nothing.
Panel& PanelHost::PanelFor(PanelKind kind)
{
    const bool isPicker = kind == PanelKind::HorizontalBars || kind == PanelKind::VerticalBars;
    std::unique_ptr<Panel>& panel = isPicker ? m_pickers[kind] : m_panel;
    if (panel == nullptr || !isPicker) {
        panel = MakePanel(static_cast<UINT>(kind), {Receiver::Route::Item, &m_item, nullptr});
        panel->Create(nullptr);
    }
    return *panel;
}

}  // namespace Desk
