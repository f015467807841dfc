// MainWindow: what the commands of its menus do.
#include "desk/window/Ask.h"
#include "desk/window/MainWindow.h"
#include "desk/window/QuantitiesDialog.h"
#include "desk/window/Steps.h"

namespace Desk {

void MainWindow::ConnectCommands()
{
    m_menus->On("new", m_exchanges, &ImportExport::AskNew);
    m_menus->On("import", m_exchanges, &ImportExport::AskImport);
    m_menus->On("export", m_exchanges, &ImportExport::AskExport);
    m_menus->On("print", m_exchanges, &ImportExport::Print);
    m_menus->On("open", m_files, &ProjectFiles::AskOpen);
    m_menus->On("sample", m_files, &ProjectFiles::OpenSample);
    m_menus->On("save", m_files, &ProjectFiles::Save);
    m_menus->On("saveAs", m_files, &ProjectFiles::SaveUnderNewName);
    m_menus->On("quit", this, &QWidget::close);
    m_menus->Undoes(m_document.Changes());
    const auto draw = [this](const char* command, PlanTools::Tool tool) {
        m_menus->On(command, m_tools, [this, tool] { m_tools->Start(tool); });
    };
    draw("beam", PlanTools::Tool::Beam);
    draw("wall", PlanTools::Tool::Wall);
    draw("move", PlanTools::Tool::Move);
    draw("copy", PlanTools::Tool::Copy);
    m_menus->On("turnRound", m_editing, &Editing::TurnRound);
    m_menus->On("delete", m_editing, &Editing::Remove);
    m_menus->On("inPlace", m_editing, &Editing::AddInPlace);
    m_menus->On("clear", m_editing, &Editing::Clear);
    m_menus->On("find", m_search, &SearchLine::Start);
    m_menus->On("copyText", m_selection, &Selection::Copy);
    m_menus->On("copyTexts", m_selection, &Selection::CopyOwner);
    m_menus->On("paste", m_selection, &Selection::Paste);
    m_menus->On("repeat", m_selection, &Selection::Repeat);
    m_menus->On("match", m_selection, &Selection::StartMatching);
    m_menus->On("allSame", m_selection, &Selection::JoinSameText);
    m_menus->On("allLike", m_selection, &Selection::JoinLikeOwners);
    m_menus->On("replace", m_selection, &Selection::Replace);
    m_menus->On("type", m_docks, [this] { m_docks->StartTyping(); });
    m_menus->On("edit", m_docks, &Docks::StartEditing);
    m_menus->On("panel", m_selection, &Selection::OpenPanel);
    m_menus->On("fit", m_floor, &FloorView::Fit);
    m_menus->On("zoomIn", m_floor, [this] { m_floor->ZoomBy(1.25); });
    m_menus->On("zoomOut", m_floor, [this] { m_floor->ZoomBy(0.8); });
    m_menus->On("about", this, [this] { ShowAbout(this); });
    const auto step = [this](const char* command, auto where, int by) {
        m_menus->On(command, m_selection, [this, where, by] {
            m_selection->GoTo(where(m_document.Get(), m_selection->Chosen(), by));
        });
    };
    m_menus->On("nextProblem", m_problems, [this] { m_problems->Go(1); });
    m_menus->On("previousProblem", m_problems, [this] { m_problems->Go(-1); });
    m_menus->On("quantities", this, [this] { ShowQuantities(m_document.Get(), this); });
    m_menus->On("nextEmpty", m_selection, &Selection::GoOn);
    step("nextField", &StepField, 1);
    step("previousField", &StepField, -1);
    step("nextOwner", &StepOwner, 1);
    step("previousOwner", &StepOwner, -1);
    m_menus->On("findNext", this, [this] { m_selection->Find(m_search->Wanted(), 1); });
    m_menus->On("findAlike", this, [this] {
        if (Chosen() && !TextAt(m_document.Get(), *Chosen()).empty()) {
            m_search->setText(
                QStringLiteral("\"%1\"").arg(QString::fromStdString(TextAt(m_document.Get(), *Chosen()))));
            m_selection->Find(m_search->Wanted(), 1);
        }
    });
    m_menus->On("findPrevious", this, [this] { m_selection->Find(m_search->Wanted(), -1); });
}

}  // namespace Desk
