// ProjectFiles: saving, and files that others write or have open.
#include "desk/project/Progress.h"
#include "desk/window/Ask.h"
#include "desk/window/CompareDialog.h"
#include "desk/window/Languages.h"
#include "desk/window/ProjectFiles.h"

namespace Desk {

bool ProjectFiles::Save()
{
    if (!m_endEdit()) {
        return false;
    }
    if (m_document.File().isEmpty()) {
        return SaveUnderNewName();
    }
    m_document.TryToHold();
    if (m_document.IsReadOnly()) {
        enum { NewName, Cancel };
        const QString holder = m_document.Held().Holder();
        return Ask(&m_window, "read-only", QMessageBox::Warning,
                   tr("%1 is open in another desk.").arg(m_document.File()),
                   holder.isEmpty() || holder == QSysInfo::machineHostName()
                       ? tr("Saved under another name nothing of it is lost.")
                       : tr("It is on the computer %1. Saved under another name nothing of it is lost.")
                             .arg(holder),
                   {{tr("Save as..."), QMessageBox::AcceptRole},
                    {tr("Cancel"), QMessageBox::RejectRole}}) == NewName &&
               SaveUnderNewName();
    }
    if (!m_document.Held().IsOther()) {
        return SaveTo(m_document.File());
    }
    switch (AskOther(true)) {
    case Other::KeepMine: return SaveTo(m_document.File());
    case Other::SaveAs: return SaveUnderNewName();
    case Other::Reload: return OpenAnyhow(m_document.File());
    case Other::Cancel: break;
    }
    return false;
}

ProjectFiles::Other ProjectFiles::AskOther(bool isSaving)
{
    enum { Reload, KeepMine, Compare, NewName };
    QList<Answer> answers{
        {tr("Reload"), QMessageBox::DestructiveRole},
        {isSaving ? tr("Save mine over it") : tr("Keep mine"), QMessageBox::DestructiveRole},
        {tr("Compare..."), QMessageBox::ActionRole}};
    if (isSaving) {
        answers << Answer{tr("Save as..."), QMessageBox::AcceptRole};
    }
    answers << Answer{isSaving ? tr("Cancel") : tr("Decide later"), QMessageBox::RejectRole};
    const QString why = m_document.IsChanged()
                            ? tr("Reloading gives up what was changed here and not saved.")
                            : tr("Nothing was changed here since.");
    for (;;) {
        const int answer =
            Ask(&m_window, "newer", QMessageBox::Warning,
                tr("Another program has written %1 since it was opened here.").arg(m_document.File()), why,
                answers);
        if (answer == Compare) {
            CompareWithFile();
        } else if (answer == Reload || answer == KeepMine) {
            return answer == Reload ? Other::Reload : Other::KeepMine;
        } else {
            return isSaving && answer == NewName ? Other::SaveAs : Other::Cancel;
        }
    }
}

void ProjectFiles::CompareWithFile()
{
    try {
        const Opened opened = OpenFile(m_document.File().toStdString());
        ShowDifferences(m_window, m_document.Name(), DifferencesOf(m_document.Get(), opened.project));
    } catch (const Failure& failure) {
        Tell(&m_window, tr("%1 could not be compared").arg(m_document.Name()), Told(failure));
    }
}

void ProjectFiles::LookAtFile()
{
    if (QApplication::activeModalWidget() != nullptr) {
        return;
    }
    const bool wasReadOnly = m_document.IsReadOnly();
    m_document.TryToHold();
    if (wasReadOnly && !m_document.IsReadOnly()) {
        emit Said(tr("The other desk has closed %1: it can be saved here").arg(m_document.Name()));
    }
    if (!m_document.Held().IsOther(true)) {
        return;
    }
    const QByteArray content = HeldFile::ContentOf(m_document.File());
    if (content == m_asked || !m_endEdit()) {
        return;
    }
    m_asked = content;
    switch (AskOther(false)) {
    case Other::Reload: OpenAnyhow(m_document.File()); break;
    case Other::KeepMine: m_document.KeepInsteadOfFile(); break;
    case Other::SaveAs:
    case Other::Cancel: break;
    }
}

bool ProjectFiles::SaveUnderNewName()
{
    if (!m_endEdit()) {
        return false;
    }
    const QDir documents(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
    const QString start = m_document.File().isEmpty()
                              ? (documents.exists() ? documents : QDir::home()).filePath("project.json")
                              : m_document.File();
    const bool drawing = m_document.From() != nullptr;
    const QString drawings = tr("Drawings (*.dxf)");
    const QString projects = tr("Projects (*.json)");
    QFileDialog dialog(&m_window, tr("Save as"), start);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setNameFilters({drawing ? drawings : projects, drawing ? projects : drawings});
    dialog.setDefaultSuffix(drawing ? "dxf" : "json");
    connect(&dialog, &QFileDialog::filterSelected, &dialog,
            [&](const QString& filter) { dialog.setDefaultSuffix(filter == drawings ? "dxf" : "json"); });
    dialog.selectFile(start);
    return dialog.exec() == QDialog::Accepted && SaveTo(dialog.selectedFiles().constFirst());
}

bool ProjectFiles::SaveTo(const QString& file)
{
    try {
        m_document.SaveAs(file);
    } catch (const Cancelled&) {
        return false;
    } catch (const Failure& failure) {
        enum { NewName, Cancel };
        return Ask(&m_window, "save-failed", QMessageBox::Warning,
                   tr("%1 could not be saved").arg(QFileInfo(file).fileName()), Told(failure),
                   {{tr("Save as..."), QMessageBox::AcceptRole},
                    {tr("Cancel"), QMessageBox::RejectRole}}) == NewName &&
               SaveUnderNewName();
    }
    NoteRecent();
    emit Saved(m_document.File());
    return true;
}

}  // namespace Desk
