// Message boxes: questions, what did not work.
#pragma once

#include "desk/Toolkit.h"

namespace Desk {

struct Answer {
    QString text;
    QMessageBox::ButtonRole role;
};

// Asks over a window and gives the number of the answer; the last one is that of Esc as well. The name is
// the box's object name, by which programs find it.
int Ask(QWidget* over, const char* name, QMessageBox::Icon icon, const QString& what, const QString& why,
        const QList<Answer>& answers);

// Says over a window what did not work, and why.
void Tell(QWidget* over, const QString& what, const QString& why);

}  // namespace Desk
