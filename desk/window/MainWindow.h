// MainWindow: the drafting desk. The drawing in the middle, the texts for the chosen annotation, its
// owner's properties and its section beside it.
#pragma once

#include <optional>

#include "desk/Toolkit.h"
#include "desk/plan/FloorView.h"
#include "desk/plan/SectionSketch.h"
#include "desk/ranking/Ranking.h"
#include "desk/shell/QtDisplay.h"
#include "desk/window/ChoiceBox.h"
#include "desk/window/Document.h"
#include "desk/window/Languages.h"
#include "desk/window/PanelHost.h"
#include "desk/window/PropertyGrid.h"
#include "desk/window/Theme.h"

namespace Desk {

class MainWindow : public QMainWindow {
    Q_OBJECT

public:
    // Settings, recent files and recovery copies are those of the person who runs the program.
    explicit MainWindow(QtDisplay& display, QWidget* parent = nullptr);

    // Opens a project file, the sample for an empty name. False, when the person was told why it fails.
    bool OpenFile(const QString& file);
    // Offers what a broken-off session left, the latest first; true when the person took one.
    bool OfferLostWork();

    // Chooses an annotation, as a click on it does; nothing for none.
    void Choose(const std::optional<FieldRef>& place);
    [[nodiscard]] const std::optional<FieldRef>& Chosen() const { return m_chosen; }
    void OpenPanel();

    void SetAppearance(Appearance appearance);
    void SetLanguage(Language language);

    [[nodiscard]] Document& TheDocument() { return m_document; }
    [[nodiscard]] FloorView& Drawing() { return *m_floor; }
    [[nodiscard]] PanelHost& Panels() { return m_panels; }
    [[nodiscard]] QtDisplay& Display() { return m_display; }

protected:
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    // An action whose texts follow the language: source texts for its name and its hint.
    struct Command {
        QAction* action;
        const char* name;
        const char* hint;
    };

    void MakeDocks();
    void MakeActions();
    void MakeMenus();
    void MakeChoiceMenus();
    void MakeSearch();
    void Connect();
    QAction* Add(const char* objectName, const char* name, const char* hint, const QKeySequence& keys,
                 void (MainWindow::*slot)());
    void Retranslate();

    // What the menus do.
    void AskOpen();
    void OpenSample();
    bool Save();
    bool SaveUnderNewName();
    void SaveNow() { Save(); }
    void SaveAsNow() { SaveUnderNewName(); }
    void NextField() { StepField(1); }
    void PreviousField() { StepField(-1); }
    void NextOwner() { StepOwner(1); }
    void PreviousOwner() { StepOwner(-1); }
    void FindNext() { Find(1); }
    void FindPrevious() { Find(-1); }
    void StartSearch();
    void StartTyping() { TypeChoice(QString()); }
    void StartEditing();
    void ZoomIn();
    void ZoomOut();
    void Fit();
    void About();

    // Takes what stands in an editor of the grid; false when it was refused.
    bool CommitEdit();
    bool SaveTo(const QString& file);
    // Asks about unsaved changes; false when the person wants to stay.
    bool MayLeave();
    void Take(const FieldRef& place, const QString& text);
    void TypeChoice(const QString& first);
    void ShowChosen();
    void ShowChoices();
    void ShowTitle();
    void StepField(int by);
    void StepOwner(int by);
    void Find(int by);
    void NoteRecent(const QString& file);
    void FillRecent();
    void FillSearchWords();
    void Report(const QString& what, const QString& why);

    QSettings m_settings;
    Document m_document;
    PanelHost m_panels;
    QtDisplay& m_display;
    FloorView* m_floor;
    ChoiceBox* m_choices;
    PropertyGrid* m_properties;
    SectionSketch* m_sketch;
    QDockWidget* m_choiceDock = nullptr;
    QDockWidget* m_propertyDock = nullptr;
    QDockWidget* m_sketchDock = nullptr;
    QLineEdit* m_search = nullptr;
    QMenu* m_recent = nullptr;
    QLabel* m_counts = nullptr;
    QList<Command> m_commands;
    QList<std::pair<QMenu*, const char*>> m_menus;
    QMap<QByteArray, QAction*> m_actions;  // by object name
    std::optional<FieldRef> m_chosen;
    bool m_isRefused = false;  // the last text to be taken
    QTimer m_findSoon;
};

}  // namespace Desk
