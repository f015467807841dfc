#include "desk/window/Ask.h"

namespace Desk {

int Ask(QWidget* over, const char* name, QMessageBox::Icon icon, const QString& what, const QString& why,
        const QList<Answer>& answers)
{
    QMessageBox box(icon, QStringLiteral("beamdesk"), what, QMessageBox::NoButton, over);
    box.setObjectName(name);
    box.setInformativeText(why);
    QList<QAbstractButton*> buttons;
    for (const Answer& answer : answers) {
        buttons.push_back(box.addButton(answer.text, answer.role));
    }
    box.setEscapeButton(buttons.back());
    box.exec();
    return static_cast<int>(buttons.indexOf(box.clickedButton()));
}

void Tell(QWidget* over, const QString& what, const QString& why)
{
    Ask(over, "report", QMessageBox::Warning, what, why,
        {{QCoreApplication::translate("Desk", "OK"), QMessageBox::AcceptRole}});
}

}  // namespace Desk
