// MainWindow: the drafting desk. It puts the drawing, the docks, the panels, the menus and the files of one
// document together.
#pragma once

#include <optional>
#include <set>
#include <utility>

#include "desk/Toolkit.h"
#include "desk/shell/QtDisplay.h"
#include "desk/window/HelpWindow.h"
#include "desk/window/ImportExport.h"
#include "desk/window/Languages.h"
#include "desk/window/Menus.h"
#include "desk/window/OpenTexts.h"
#include "desk/window/PlanTools.h"
#include "desk/window/Problems.h"
#include "desk/window/ProjectFiles.h"
#include "desk/window/SearchLine.h"
#include "desk/window/Selection.h"
#include "desk/window/Theme.h"

namespace Desk {

class MainWindow : public QMainWindow {
    Q_OBJECT

public:
    // Settings, recent files and recovery copies are those of the person who runs the program.
    explicit MainWindow(QtDisplay& display, QWidget* parent = nullptr);

    void Choose(const std::optional<FieldRef>& ref) { m_selection->Choose(ref); }
    [[nodiscard]] const std::optional<FieldRef>& Chosen() const { return m_selection->Chosen(); }
    [[nodiscard]] std::set<FieldRef> AllChosen() const { return m_selection->All(); }
    void OpenPanel() { m_selection->OpenPanel(); }

    void SetAppearance(Appearance appearance);
    void SetLanguage(Language language);

    [[nodiscard]] Document& TheDocument() { return m_document; }
    [[nodiscard]] ProjectFiles& Files() { return *m_files; }
    [[nodiscard]] ImportExport& Exchanges() { return *m_exchanges; }
    [[nodiscard]] FloorView& Drawing() { return *m_floor; }
    [[nodiscard]] PanelHost& Panels() { return m_panels; }
    [[nodiscard]] QtDisplay& Display() { return m_display; }

protected:
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;  // of a file
    void dropEvent(QDropEvent* event) override;

private:
    void AddSettings();
    void ConnectParts();
    void ConnectCommands();
    void ShowTitle();
    void ShowSettings();
    struct NumberSetting {
        const char* key;
        int usual;
        std::pair<int, int> range;
    };
    static constexpr NumberSetting RecoverySeconds{"recoverySeconds", 2, {1, 600}};
    static constexpr NumberSetting TextPixels{"leastTextSize", 9, {6, 24}};
    [[nodiscard]] int Get(const NumberSetting& setting) const;

    QSettings m_settings;
    Document m_document;
    PanelHost m_panels;
    QtDisplay& m_display;
    FloorView* m_floor;
    Docks* m_docks;
    OpenTexts* m_openTexts;
    Problems* m_problems;
    Menus* m_menus;
    Selection* m_selection;
    Editing* m_editing;
    PlanTools* m_tools;
    ProjectFiles* m_files;
    ImportExport* m_exchanges;
    SearchLine* m_search;
    QLabel* m_counts;
    HelpWindow* m_help;
};

}  // namespace Desk
