// Opening, saving, leaving: nothing unsaved goes without a question.
#include "desk/project/Failure.h"
#include "desk/window/Folders.h"
#include "desk/window/MainWindow.h"

namespace Desk {

namespace {

constexpr int MaxRecent = 10;
constexpr const char* RecentKey = "recent";

QString Filter() { return QCoreApplication::translate("Desk", "Projects (*.json);;All files (*)"); }

}  // namespace

bool MainWindow::OpenFile(const QString& file)
{
    if (!MayLeave()) {
        return false;
    }
    try {
        if (file.isEmpty()) {
            m_document.OpenSample();
        } else {
            m_document.Open(file);
            NoteRecent(m_document.File());
        }
        return true;
    } catch (const Failure& failure) {
        Report(tr("The project could not be opened"), QString::fromStdString(failure.what()));
        return false;
    }
}

bool MainWindow::OfferLostWork()
{
    for (const LostWork& lost : FindLostWork(RecoveryFolder())) {
        const QString name = lost.file.isEmpty() ? tr("a project that was never saved") : lost.file;
        QMessageBox box(QMessageBox::Question, QStringLiteral("beamdesk"),
                        tr("The last session ended before its work was saved."), QMessageBox::NoButton,
                        this);
        box.setObjectName("recovery");
        box.setInformativeText(tr("A recovery copy of %1 was kept at %2.")
                                   .arg(name, QLocale().toString(lost.time, QLocale::ShortFormat)));
        const auto* const recover = box.addButton(tr("Recover"), QMessageBox::AcceptRole);
        const auto* const drop = box.addButton(tr("Delete the copy"), QMessageBox::DestructiveRole);
        box.addButton(tr("Decide later"), QMessageBox::RejectRole);
        box.exec();
        if (box.clickedButton() == drop) {
            DropLostWork(lost);
        } else if (box.clickedButton() == recover) {
            try {
                m_document.OpenLost(lost);
                return true;
            } catch (const Failure& failure) {
                Report(tr("The recovery copy could not be opened"), QString::fromStdString(failure.what()));
            }
        }
    }
    return false;
}

void MainWindow::AskOpen()
{
    const QString start = QFileInfo(m_document.File()).absolutePath();
    const QString file = QFileDialog::getOpenFileName(this, tr("Open a project"), start, Filter());
    if (!file.isEmpty()) {
        OpenFile(file);
    }
}

void MainWindow::OpenSample() { OpenFile(QString()); }

bool MainWindow::Save()
{
    if (!CommitEdit()) {
        return false;
    }
    if (m_document.File().isEmpty()) {
        return SaveUnderNewName();
    }
    if (m_document.IsFileNewer()) {
        QMessageBox box(
            QMessageBox::Warning, QStringLiteral("beamdesk"),
            tr("Another program has written %1 since it was opened here.").arg(m_document.File()),
            QMessageBox::NoButton, this);
        box.setObjectName("newer");
        const auto* const over = box.addButton(tr("Write over it"), QMessageBox::DestructiveRole);
        const auto* const other = box.addButton(tr("Save as..."), QMessageBox::AcceptRole);
        box.addButton(QMessageBox::Cancel);
        box.exec();
        if (box.clickedButton() == other) {
            return SaveUnderNewName();
        }
        if (box.clickedButton() != over) {
            return false;
        }
    }
    return SaveTo(m_document.File());
}

bool MainWindow::SaveUnderNewName()
{
    if (!CommitEdit()) {
        return false;
    }
    const QDir documents(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
    const QString start = m_document.File().isEmpty()
                              ? (documents.exists() ? documents : QDir::home()).filePath("project.json")
                              : m_document.File();
    QFileDialog dialog(this, tr("Save the project as"), start, Filter());
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix("json");
    dialog.selectFile(start);
    return dialog.exec() == QDialog::Accepted && SaveTo(dialog.selectedFiles().constFirst());
}

bool MainWindow::SaveTo(const QString& file)
{
    try {
        m_document.SaveAs(file);
    } catch (const Failure& failure) {
        Report(tr("The project could not be saved"), QString::fromStdString(failure.what()));
        return false;
    }
    NoteRecent(m_document.File());
    ShowTitle();
    statusBar()->showMessage(tr("Saved: %1").arg(m_document.File()));
    return true;
}

bool MainWindow::MayLeave()
{
    if (!CommitEdit()) {
        return false;
    }
    if (!m_document.IsChanged()) {
        return true;
    }
    QMessageBox box(QMessageBox::Question, QStringLiteral("beamdesk"),
                    tr("The project has unsaved changes."), QMessageBox::NoButton, this);
    box.setObjectName("unsaved");
    const auto* const save = box.addButton(tr("Save"), QMessageBox::AcceptRole);
    const auto* const drop = box.addButton(tr("Leave without saving"), QMessageBox::DestructiveRole);
    box.setEscapeButton(box.addButton(tr("Stay"), QMessageBox::RejectRole));
    box.exec();
    if (box.clickedButton() == save) {
        return Save();
    }
    return box.clickedButton() == drop;
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    m_panels.Close();
    if (!MayLeave()) {
        event->ignore();
        return;
    }
    m_document.DropRecoveryCopy();
    m_settings.setValue("geometry", saveGeometry());
    m_settings.setValue("state", saveState());
    event->accept();
}

void MainWindow::NoteRecent(const QString& file)
{
    QStringList recent = m_settings.value(RecentKey).toStringList();
    recent.removeAll(file);
    recent.prepend(file);
    m_settings.setValue(RecentKey, recent.mid(0, MaxRecent));
    FillRecent();
}

void MainWindow::FillRecent()
{
    m_recent->clear();
    for (const QString& file : m_settings.value(RecentKey).toStringList()) {
        connect(m_recent->addAction(file), &QAction::triggered, this, [this, file] { OpenFile(file); });
    }
    m_recent->setEnabled(!m_recent->isEmpty());
}

}  // namespace Desk
