// Problems: what the checks find in the project, as a list beside the drawing, and the way from one to the
// next. The project says which rules count.
#pragma once

#include <optional>
#include <vector>

#include "desk/Toolkit.h"
#include "desk/checks/Checks.h"
#include "desk/plan/FloorView.h"
#include "desk/window/Document.h"
#include "desk/window/ProblemRows.h"

namespace Desk {

class Problems : public QDockWidget {
    Q_OBJECT

public:
    Problems(Document& document, FloorView& floor, QWidget* parent);

    void Retranslate();
    // Goes from the chosen annotation to the next one with a problem, or to the one before, around the
    // project.
    void Go(int by);
    // Says how many problems there are, and shows and hides the list; for the status bar.
    [[nodiscard]] QToolButton& Count() { return *m_count; }

signals:
    void Picked(const Desk::FieldRef& ref);
    void Said(const QString& text);  // for the status bar

private:
    // A change is looked at a moment later, when what the person did shows already.
    void LookSoon(const std::vector<FieldRef>& changed);
    void Follow(const Exchanged& exchanged);
    void LookAtAllSoon();
    void Look();
    void ShowCount();
    void Tell(std::size_t problem);
    void FillRules();
    void Switch(const Rule& rule, bool on);
    void ShowRowMenu(const QPoint& at);

    Document& m_document;
    FloorView& m_floor;
    Checks m_checks;
    ProblemRows* m_rows;
    QTreeView* m_list;
    QToolButton* m_rules;
    QToolButton* m_count;
    QTimer m_soon;
    std::vector<FieldRef> m_changed;
    bool m_isAllChanged = false;
};

}  // namespace Desk
