// SearchLine: where a person types the name or text to go to; completes names.
#pragma once

#include "desk/Toolkit.h"
#include "desk/project/Project.h"

namespace Desk {

class SearchLine : public QLineEdit {
    Q_OBJECT

public:
    explicit SearchLine(QWidget* parent = nullptr);

    // Completes the names of the project's beams and walls.
    void Complete(const Project& project);
    void Start();  // takes the keyboard
    void Retranslate();
    [[nodiscard]] QString Wanted() const { return text().trimmed(); }

signals:
    void Asked();  // Enter, or a completed name

private:
    QTimer m_askSoon;
};

}  // namespace Desk
