#include "desk/shell/Surface.h"

#include <algorithm>

#include "RankerModule.h"

namespace Desk {

namespace {

// The texts of the boxes, and the pieces of the bar panel's list at its foot.
std::vector<CString> Composition(const WindowRecord& popUp)
{
    std::vector<CString> texts;
    for (const HWND child : popUp.children) {
        const WindowRecord& control = *FindWindowRecord(child);
        if (control.kind == WindowKind::EditBox) {
            texts.push_back(control.text);
        } else if (control.kind == WindowKind::ListBox && control.IsMultiColumn()) {
            texts.insert(texts.end(), control.list.rows.begin(), control.list.rows.end());
        }
    }
    return texts;
}

}  // namespace

Surface::Surface(const WindowRecord& popUp)
    : QWidget(nullptr, Qt::Tool | Qt::FramelessWindowHint), m_shape(popUp.shape),
      m_strip(new QWidget(this)), m_titleLabel(new QLabel(m_strip)), m_take(new QPushButton(m_strip)),
      m_cancel(new QPushButton(m_strip)), m_hint(new QLabel(m_strip)), m_panel(new QWidget(this))
{
    setObjectName("panel");
    setFocusPolicy(Qt::StrongFocus);
    setContextMenuPolicy(Qt::PreventContextMenu);
    setAutoFillBackground(true);
    m_titleLabel->setObjectName("title");
    m_take->setObjectName("take");
    m_cancel->setObjectName("cancel");
    m_hint->setObjectName("hint");
    m_hint->setWordWrap(true);
    m_hint->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    m_hint->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    for (QLabel* const label : {m_titleLabel, m_hint}) {
        label->setTextFormat(Qt::PlainText);
    }
    for (QPushButton* const button : {m_take, m_cancel}) {
        button->setFocusPolicy(Qt::NoFocus);
        button->setAutoDefault(false);
    }
    auto* const grid = new QGridLayout(m_strip);
    grid->setColumnStretch(0, 1);
    grid->addWidget(m_titleLabel, 0, 0);
    grid->addWidget(m_take, 0, 1);
    grid->addWidget(m_cancel, 0, 2);
    grid->addWidget(m_hint, 1, 0, 1, 3);
    connect(m_take, &QPushButton::clicked, this, &Surface::Taken);
    connect(m_cancel, &QPushButton::clicked, this, &Surface::Left);
}

QString Surface::Hint() const
{
    switch (m_shape != nullptr ? m_shape->id : 0) {
    case CBeamNameDlg::IDD:
        return tr("Left picks and adds a digit, a double click sets it; right or Enter takes, Esc cancels");
    case CBeamSecDlg::IDD: return tr("Left picks; right, double click or Enter takes, Esc cancels");
    default: return tr("Left picks, right or Enter takes, Esc cancels");
    }
}

QString Surface::Question() { return tr("Not taken yet: take it or cancel?"); }

// Asked anew each time, since the language may have changed.
void Surface::ShowTexts()
{
    m_take->setText(tr("Take"));
    m_cancel->setText(tr("Cancel"));
    m_take->setToolTip(tr("Takes the composed text (Enter)"));
    m_cancel->setToolTip(tr("Leaves the annotation as it was (Esc)"));
    m_hint->setText(m_asks ? Question() : Hint());
    m_hint->setForegroundRole(m_asks ? QPalette::HighlightedText : QPalette::WindowText);
    m_hint->setBackgroundRole(m_asks ? QPalette::Highlight : QPalette::Window);
    m_hint->setAutoFillBackground(m_asks);
}

void Surface::TakePlace(const WindowRecord& popUp, const Scale& scale)
{
    constexpr int Margin = 3, TitleHeight = 11, TitleWidth = 200;  // pixels of the window layer
    QFont plain = font();
    plain.setPixelSize(scale.ToWidget(TitleHeight));
    m_strip->setFont(plain);
    plain.setBold(true);
    m_titleLabel->setFont(plain);
    ShowTexts();
    m_titleLabel->setText(
        m_titleLabel->fontMetrics().elidedText(m_title, Qt::ElideRight, scale.ToWidget(TitleWidth)));
    const int margin = scale.ToWidget(Margin);
    for (QPushButton* const button : {m_take, m_cancel}) {  // a style's least width is too much here
        button->setFixedWidth(button->fontMetrics().horizontalAdvance(button->text()) + 6 * margin);
    }
    auto& grid = *m_strip->layout();
    grid.setContentsMargins(margin, margin, margin, margin);
    grid.setSpacing(margin);
    const QRect panel = scale.ToWidget(popUp.place);
    const int width = std::max(panel.width(), grid.minimumSize().width());
    const QRect room(0, 0, width - 2 * margin, QWIDGETSIZE_MAX);
    int height = 0;  // of the longer text, so that a question moves nothing
    for (const QString& text : {Hint(), Question()}) {
        height =
            std::max(height, m_hint->fontMetrics().boundingRect(room, Qt::TextWordWrap, text).height());
    }
    m_hint->setFixedHeight(height);
    const int strip = grid.minimumSize().height();
    m_strip->setGeometry(0, 0, width, strip);
    m_panel->setGeometry(QRect(QPoint(0, strip), panel.size()));
    setGeometry(panel.left(), panel.top() - strip, width, strip + panel.height());
}

void Surface::Begin(const WindowRecord& popUp)
{
    m_before = Composition(popUp);
    Ask(false);
}

bool Surface::IsUnfinished(const WindowRecord& popUp) const { return Composition(popUp) != m_before; }

void Surface::Ask(bool asks)
{
    m_asks = asks;
    ShowTexts();
    if (asks) {
        activateWindow();  // so that Enter takes and Esc cancels
    }
}

void Surface::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    painter.drawLine(0, m_panel->y() - 1, width(), m_panel->y() - 1);
}

}  // namespace Desk
