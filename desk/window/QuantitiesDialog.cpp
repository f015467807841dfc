#include "desk/window/QuantitiesDialog.h"

#include "desk/checks/Quantities.h"
#include "desk/plan/PlanFile.h"
#include "desk/project/Failure.h"
#include "desk/project/SafeFile.h"
#include "desk/window/Ask.h"
#include "desk/window/FieldNames.h"
#include "desk/window/Languages.h"

namespace Desk {

namespace {

QString Tr(const char* text) { return QCoreApplication::translate("Desk", text); }

std::string Say(const Phrase& phrase)
{
    return QCoreApplication::translate(phrase.context, phrase.english).toStdString();
}

// The first row is the headings.
QTableWidget* TableWith(const std::vector<QuantityTable::Row>& rows)
{
    const auto columns = static_cast<int>(rows.front().size());
    auto* const table = new QTableWidget(static_cast<int>(rows.size()) - 1, columns);
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->verticalHeader()->hide();
    QStringList headings;
    for (std::size_t row = 0; row < rows.size(); ++row) {
        for (int column = 0; column < columns; ++column) {
            const QString text = QString::fromStdString(rows[row][static_cast<std::size_t>(column)]);
            if (row == 0) {
                headings << text;
                continue;
            }
            auto* const cell = new QTableWidgetItem(text);
            cell->setTextAlignment(column == 0 ? Qt::AlignLeft | Qt::AlignVCenter
                                               : Qt::AlignRight | Qt::AlignVCenter);
            table->setItem(static_cast<int>(row) - 1, column, cell);
        }
    }
    table->setHorizontalHeaderLabels(headings);
    table->resizeColumnsToContents();
    return table;
}

// Sums, what could not be counted, and how it was counted.
QString WordsUnder(const Project& project, const Quantities& all, const QuantityTable& table)
{
    QString words;
    for (const QuantityTable::Row& row : table.sums) {
        words +=
            QStringLiteral("%1: %2\n").arg(QString::fromStdString(row[0]), QString::fromStdString(row[1]));
    }
    for (const Uncounted& left : all.uncounted) {
        words += QStringLiteral("  %1, %2: %3\n")
                     .arg(OwnerName(project, left.at), FieldName(project, left.at), Told(left.why));
    }
    for (const std::string& note : table.notes) {
        words += QLatin1Char('\n') + QString::fromStdString(note);
    }
    return words;
}

}  // namespace

void ShowQuantities(const Project& project, QWidget* over)
{
    const Quantities all = QuantitiesOf(project);
    const QuantityTable list = TableOf(all, Say);
    auto* const dialog = new QDialog(over);
    dialog->setObjectName("quantities");
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowTitle(Tr(QT_TRANSLATE_NOOP("Desk", "Quantities, an estimate")));
    auto* const table = TableWith(list.bars);
    table->setObjectName("quantityTable");
    table->setAccessibleName(dialog->windowTitle());
    auto* const words = new QPlainTextEdit(WordsUnder(project, all, list));
    words->setObjectName("quantityNotes");
    words->setReadOnly(true);
    words->setAccessibleName(Tr(QT_TRANSLATE_NOOP("Desk", "Sums, and how it was counted")));
    auto* const buttons = new QDialogButtonBox;
    const std::string title = project.title;
    const auto add = [&](const char* name, const QString& text, const QString& filter, const auto& write) {
        QPushButton* const button = buttons->addButton(text, QDialogButtonBox::ActionRole);
        button->setObjectName(name);
        QObject::connect(button, &QPushButton::clicked, dialog, [dialog, filter, write] {
            const QString suffix = filter.section(QLatin1String("*"), 1, 1).chopped(1);
            QString file = QFileDialog::getSaveFileName(dialog, dialog->windowTitle(), {}, filter);
            if (file.isEmpty()) {
                return;
            }
            file += file.endsWith(suffix, Qt::CaseInsensitive) ? QString() : suffix;
            try {
                write(file.toStdString());
            } catch (const Failure& failure) {
                Tell(dialog, Tr(QT_TRANSLATE_NOOP("Desk", "The list was not written")), Told(failure));
            }
        });
    };
    add("csv", Tr(QT_TRANSLATE_NOOP("Desk", "Write &CSV...")), QStringLiteral("CSV (*.csv)"),
        [list](const std::string& file) { ReplaceFile(file, CsvOf(list)); });
    add("pdf", Tr(QT_TRANSLATE_NOOP("Desk", "Write &PDF...")), QStringLiteral("PDF (*.pdf)"),
        [list, title](const std::string& file) {
            WriteTables(title, {list.bars, list.sums}, list.notes, file);
        });
    buttons->addButton(Tr(QT_TRANSLATE_NOOP("Desk", "Close")), QDialogButtonBox::RejectRole);
    QObject::connect(buttons, &QDialogButtonBox::rejected, dialog, &QDialog::close);
    auto* const column = new QVBoxLayout(dialog);
    column->addWidget(table, 2);
    column->addWidget(words, 1);
    column->addWidget(buttons);
    dialog->resize(QSize(820, 560).boundedTo(over->screen()->availableSize()));
    dialog->open();
}

}  // namespace Desk
