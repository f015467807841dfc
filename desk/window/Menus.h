// Menus: the desk's commands in menus, in the tool bar and on keys, in the interface's language.
#pragma once

#include <functional>
#include <initializer_list>

#include "desk/Toolkit.h"

namespace Desk {

class Menus : public QObject {
    Q_OBJECT

public:
    // Makes the window's menu bar and a tool bar; the commands do nothing yet.
    explicit Menus(QMainWindow& window);

    // The action of a command by its name, which is the action's object name.
    [[nodiscard]] QAction& Command(const char* name) const;
    template <class Receiver, class Slot>
    void On(const char* name, Receiver* receiver, Slot slot)
    {
        connect(&Command(name), &QAction::triggered, receiver, slot);
    }
    // The commands that take changes back and make them again; enabled while the stack has some.
    void Undoes(QUndoStack& changes);

    [[nodiscard]] QToolBar& ToolBar() { return *m_bar; }
    // What the plan offers at the pointer.
    [[nodiscard]] QMenu& OnPlan() { return *m_onPlan; }
    [[nodiscard]] QMenu& Recent() { return *m_recent; }
    [[nodiscard]] QMenu& View() { return *m_view; }
    // A submenu of View, one of whose entries is checked; chosen gets the number of an entry. The texts
    // are source texts of the context "Desk".
    void AddChoice(const char* title, std::initializer_list<const char*> entries, int checked,
                   const std::function<void(int)>& chosen);

    // Texts in the language that the application has now.
    void Retranslate();

private:
    // Source texts of an action's name and hint.
    struct Texts {
        QAction* action;
        const char* name;
        const char* hint;
    };

    QMainWindow& m_window;
    QToolBar* m_bar;
    QMenu* m_onPlan;
    QMenu* m_recent = nullptr;
    QMenu* m_view = nullptr;
    QList<Texts> m_texts;
    QList<std::pair<QMenu*, const char*>> m_titles;
};

}  // namespace Desk
