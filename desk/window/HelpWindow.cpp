#include "desk/window/HelpWindow.h"

#include "desk/window/HelpTexts.h"

namespace Desk {

namespace {

QString InLanguage(const char* text) { return QCoreApplication::translate("Desk", text); }

QString RowOf(const QString& sign, const QString& meaning, const QString& style = {})
{
    return QStringLiteral("<tr><td style=\"white-space:nowrap;%1\">%2&nbsp;&nbsp;</td><td>%3</td></tr>")
        .arg(style, sign.toHtmlEscaped(), meaning.toHtmlEscaped());
}

QString TableOf(const QString& title, const QString& rows)
{
    return QStringLiteral("<h3>%1</h3><table cellpadding=\"2\">%2</table>")
        .arg(title.toHtmlEscaped(), rows);
}

QString TablesOf(std::span<const HelpGroup> groups, const PlanColors& colors)
{
    QString tables;
    for (const HelpGroup& group : groups) {
        QString rows;
        for (const HelpRow& row : group.rows) {
            const QString style = row.color == nullptr
                                      ? QString()
                                      : QStringLiteral("color:%1;background:%2;")
                                            .arg((colors.*row.color).name(), colors.ground.name());
            rows += RowOf(InLanguage(row.sign), InLanguage(row.meaning), style);
        }
        tables += TableOf(InLanguage(group.title), rows);
    }
    return tables;
}

// A menu's text without its mnemonic.
QString Plain(QString text)
{
    static const QRegularExpression key(QStringLiteral("\\(&.\\)"));
    return text.remove(key).remove(QLatin1Char('&'));
}

}  // namespace

HelpWindow::HelpWindow(QMainWindow& window)
    : QDialog(&window), m_window(window), m_text(new QTextBrowser), m_close(new QPushButton)
{
    setObjectName("help");
    m_text->setObjectName("helpText");
    m_close->setObjectName("closeHelp");
    m_close->setAutoDefault(false);
    auto* const column = new QVBoxLayout(this);
    column->addWidget(m_text);
    column->addWidget(m_close, 0, Qt::AlignRight);
    connect(m_close, &QPushButton::clicked, this, &QDialog::close);
    resize(QSize(680, 720).boundedTo(window.screen()->availableSize()));
}

void HelpWindow::ShowAt(const QString& anchor)
{
    Fill();
    show();
    raise();
    activateWindow();
    m_text->setFocus();
    if (anchor.isEmpty()) {
        m_text->moveCursor(QTextCursor::Start);
    } else {
        m_text->scrollToAnchor(anchor);
    }
}

void HelpWindow::changeEvent(QEvent* event)
{
    QDialog::changeEvent(event);
    const bool looksOther =
        event->type() == QEvent::LanguageChange || event->type() == QEvent::PaletteChange;
    if (looksOther && isVisible()) {
        Fill();
    }
}

// Of the commands, so that no key is told that is none.
QString HelpWindow::OfMenus() const
{
    QString tables;
    for (const QAction* const title : m_window.menuBar()->actions()) {
        QString rows;
        for (const QAction* const command : title->menu()->actions()) {
            if (!command->shortcut().isEmpty()) {
                rows += RowOf(command->shortcut().toString(QKeySequence::NativeText), command->statusTip());
            }
        }
        tables += rows.isEmpty() ? rows : TableOf(tr("Menu %1").arg(Plain(title->text())), rows);
    }
    return tables;
}

void HelpWindow::Fill()
{
    constexpr int HalfLight = 128;
    const PlanColors& colors = ColorsFor(palette().color(QPalette::Base).lightness() < HalfLight);
    setWindowTitle(tr("Help"));
    m_close->setText(tr("Close"));
    m_text->setAccessibleName(tr("Keys, signs, version and licences"));
    const auto heading = [](const char* anchor, const QString& text) {
        return QStringLiteral("<h2><a name=\"%1\">%2</a></h2>").arg(QLatin1String(anchor), text);
    };
    const auto paragraph = [](const QString& text) { return QStringLiteral("<p>%1</p>").arg(text); };
    const auto link = [](const char* anchor, const QString& text) {
        return QStringLiteral("<a href=\"#%1\">%2</a>&nbsp;&nbsp; ").arg(QLatin1String(anchor), text);
    };
    const QString keys = tr("Keys");
    const QString meanings = tr("What things mean");
    const QString version = tr("Version and licences");
    const int before = m_text->verticalScrollBar()->value();
    m_text->setHtml(
        paragraph(link("keys", keys) + link("meanings", meanings) + link("version", version)) +
        heading("keys", keys) + TablesOf(KeysBesideMenus(), colors) + OfMenus() +
        heading("meanings", meanings) + TablesOf(Meanings(), colors) + heading("version", version) +
        paragraph(QCoreApplication::applicationVersion()) +
        paragraph(tr(
            "A small drafting desk for the annotations of reinforced-concrete beams and walls: it offers "
            "the texts that you most likely want, and panels that compose them by mouse.")) +
        paragraph(tr("It uses")) +
        QStringLiteral("<ul><li>%1</li><li>%2</li><li>%3</li></ul>")
            .arg(tr("Qt %1, as shared libraries, under the GNU Lesser General Public License, version 3")
                     .arg(QLatin1String(qVersion())),
                 tr("nlohmann/json by Niels Lohmann, under the MIT License"),
                 tr("CLI11 by the University of Cincinnati, under the BSD 3-Clause License")));
    m_text->verticalScrollBar()->setValue(before);
}

}  // namespace Desk
