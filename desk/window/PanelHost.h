// PanelHost: keeps the module's panels and pickers and opens the one that composes an annotation.
#pragma once

#include <map>
#include <memory>
#include <optional>

#include <QtCore>

#include "desk/project/Fields.h"
#include "desk/shell/Panel.h"
#include "desk/shell/QtDisplay.h"

namespace Desk {

class PanelHost : public QObject {
    Q_OBJECT

public:
    explicit PanelHost(QtDisplay& display, QObject* parent = nullptr);
    ~PanelHost() override;

    // A wall's name has none.
    [[nodiscard]] static bool HasPanel(const FieldRef& place);

    // Opens the panel for the place on its present text, beside a field on the screen, with a title. What
    // it had not confirmed for another place is given up, as by Esc.
    void Open(const FieldRef& place, const QString& present, const QString& title, const QRect& field,
              QWidget* owner);
    // Hides an open panel; what it had not confirmed is given up.
    void Close();
    // False where an open panel has composed something that is not taken: then it asks, and stays open.
    [[nodiscard]] bool MayClose();
    // The place that an open panel serves.
    [[nodiscard]] std::optional<FieldRef> Serving() const;
    // The window of the open panel, null when none is open.
    [[nodiscard]] HWND Window() const;

signals:
    void Composed(const Desk::FieldRef& place, const QString& text);

private:
    // The property item that panels and pickers hand their text to.
    class Item : public CPropertyGridItem {
    public:
        explicit Item(PanelHost& host) : m_host(host) {}
        void SetValue(CString strValue) override;

    private:
        PanelHost& m_host;
    };

    Panel& PanelFor(PanelKind kind);

    QtDisplay& m_display;
    Item m_item;
    FieldRef m_place;
    QString m_tail;  // of a wall's vertical bars, after what the picker composes: "@200"
    HWND m_open = nullptr;
    std::unique_ptr<Panel> m_panel;  // the one that was open last
    std::map<PanelKind, std::unique_ptr<Panel>> m_pickers;
};

}  // namespace Desk
