#include "desk/window/MakeDialogs.h"

#include "desk/project/Encoding.h"
#include "desk/project/Making.h"

namespace Desk {

namespace {

QString Said(const char* text) { return QCoreApplication::translate("Desk", text); }

QDialogButtonBox* AddButtons(QDialog& dialog, QFormLayout& rows)
{
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    rows.addRow(buttons);
    return buttons;
}

QLineEdit* AddLine(QFormLayout& rows, const char* name, const QString& caption, const QString& text)
{
    auto* const line = new QLineEdit(text);
    line->setObjectName(name);
    line->setMinimumWidth(260);
    rows.addRow(caption, line);
    return line;
}

// "8 axes, 1 to 8, 56000 mm", or what is wrong.
QString Told(const std::optional<std::vector<Axis>>& axes)
{
    return !axes ? Said(QT_TRANSLATE_NOOP("Desk",
                                          "Distances in mm are needed, as in 7x8000 or 6000 2700 6000"))
                 : Said(QT_TRANSLATE_NOOP("Desk", "%1 axes, %2 to %3, %4 mm"))
                       .arg(axes->size())
                       .arg(QString::fromStdString(axes->front().label),
                            QString::fromStdString(axes->back().label))
                       .arg(axes->back().at);
}

}  // namespace

std::optional<Project> AskNewFloor(QWidget& over)
{
    QDialog dialog(&over);
    dialog.setObjectName("newFloor");
    dialog.setWindowTitle(Said(QT_TRANSLATE_NOOP("Desk", "New floor")));
    auto& rows = *new QFormLayout(&dialog);
    const QLineEdit* const title =
        AddLine(rows, "title", Said(QT_TRANSLATE_NOOP("Desk", "Title")), dialog.windowTitle());
    const QLineEdit* const across =
        AddLine(rows, "across", Said(QT_TRANSLATE_NOOP("Desk", "Distances of axes 1, 2, 3")),
                QStringLiteral("6x8000"));
    auto* const toldAcross = new QLabel;
    rows.addRow(QString(), toldAcross);
    const QLineEdit* const up =
        AddLine(rows, "up", Said(QT_TRANSLATE_NOOP("Desk", "Distances of axes A, B, C")),
                QStringLiteral("6000 2700 6000"));
    auto* const toldUp = new QLabel;
    rows.addRow(QString(), toldUp);
    QDialogButtonBox* const buttons = AddButtons(dialog, rows);
    std::optional<std::vector<Axis>> axesAcross;
    std::optional<std::vector<Axis>> axesUp;
    const auto read = [&] {
        axesAcross = AxesFrom(across->text().toStdString(), false);
        axesUp = AxesFrom(up->text().toStdString(), true);
        toldAcross->setText(Told(axesAcross));
        toldUp->setText(Told(axesUp));
        buttons->button(QDialogButtonBox::Ok)->setEnabled(axesAcross && axesUp);
    };
    read();
    QObject::connect(across, &QLineEdit::textChanged, &dialog, read);
    QObject::connect(up, &QLineEdit::textChanged, &dialog, read);
    if (dialog.exec() != QDialog::Accepted) {
        return std::nullopt;
    }
    return NewFloor(title->text().simplified().toStdString(), std::move(*axesAcross), std::move(*axesUp));
}

std::optional<Choices> AskChoices(QWidget& over)
{
    QDialog dialog(&over);
    dialog.setObjectName("choices");
    dialog.setWindowTitle(Said(QT_TRANSLATE_NOOP("Desk", "Texts of a drawing")));
    auto& rows = *new QFormLayout(&dialog);
    auto* const grade = new QComboBox;
    grade->setObjectName("grade");
    grade->addItems({Said(QT_TRANSLATE_NOOP("Desk", "B for bars, A for stirrups")), QStringLiteral("A"),
                     QStringLiteral("B"), QStringLiteral("C"), QStringLiteral("D")});
    rows.addRow(Said(QT_TRANSLATE_NOOP("Desk", "Grade where a sign tells none")), grade);
    auto* const legs = new QSpinBox;
    legs->setObjectName("legs");
    legs->setRange(0, 9);
    legs->setValue(Choices().legs);
    rows.addRow(Said(QT_TRANSLATE_NOOP("Desk", "Legs of stirrups that tell none")), legs);
    AddButtons(dialog, rows);
    if (dialog.exec() != QDialog::Accepted) {
        return std::nullopt;
    }
    Choices choices;
    if (grade->currentIndex() > 0) {
        choices.barGrade = static_cast<char>('A' + grade->currentIndex() - 1);
        choices.stirrupGrade = choices.barGrade;
    }
    choices.legs = legs->value();
    return choices;
}

}  // namespace Desk
