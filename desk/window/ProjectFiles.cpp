#include "desk/window/ProjectFiles.h"

#include <utility>

#include "desk/project/Progress.h"
#include "desk/window/Ask.h"
#include "desk/window/Folders.h"
#include "desk/window/Languages.h"

namespace Desk {

namespace {

constexpr int MaxRecent = 10;
constexpr const char* RecentKey = "recent";

}  // namespace

ProjectFiles::ProjectFiles(Document& document, QWidget& window, QMenu& recent,
                           std::function<bool()> endEdit)
    : QObject(&window), m_document(document), m_window(window), m_recent(recent),
      m_endEdit(std::move(endEdit))
{
    FillRecent();
}

bool ProjectFiles::Open(const QString& file) { return MayLeave() && OpenAnyhow(file); }

bool ProjectFiles::OpenAnyhow(const QString& file)
{
    try {
        if (file.isEmpty()) {
            m_document.OpenSample();
        } else {
            m_document.Open(file);
            NoteRecent();
            if (m_document.IsReadOnly()) {
                emit Said(tr("%1 is open in another desk: here it is read only, and saving asks for "
                             "another name")
                              .arg(m_document.Name()));
            }
        }
        return true;
    } catch (const Cancelled&) {
        return false;
    } catch (const Failure& failure) {
        Tell(&m_window, tr("%1 could not be opened").arg(QFileInfo(file).fileName()), Told(failure));
        return false;
    }
}

bool ProjectFiles::OfferLostWork()
{
    for (const LostWork& lost : FindLostWork(RecoveryFolder())) {
        const QString name = lost.file.isEmpty() ? tr("a project that was never saved") : lost.file;
        enum { Recover, Delete };
        const int answer = Ask(&m_window, "recovery", QMessageBox::Question,
                               tr("The last session ended before its work was saved."),
                               tr("A recovery copy of %1 was kept at %2.")
                                   .arg(name, QLocale().toString(lost.time, QLocale::ShortFormat)),
                               {{tr("Recover"), QMessageBox::AcceptRole},
                                {tr("Delete the copy"), QMessageBox::DestructiveRole},
                                {tr("Decide later"), QMessageBox::RejectRole}});
        if (answer == Delete) {
            DropLostWork(lost);
        } else if (answer == Recover) {
            try {
                if (!m_document.OpenLost(lost)) {
                    Tell(&m_window, tr("The drawing is no longer as it was"),
                         tr("The work on %1 was opened as a project without a file.").arg(name));
                }
                return true;
            } catch (const Failure& failure) {
                Tell(&m_window, tr("The recovery copy could not be opened"), Told(failure));
            }
        }
    }
    return false;
}

void ProjectFiles::AskOpen()
{
    const QString start = QFileInfo(m_document.File()).absolutePath();
    const QString file =
        QFileDialog::getOpenFileName(&m_window, tr("Open a project or a drawing"), start,
                                     tr("Projects and drawings (*.json *.dxf);;All files (*)"));
    if (!file.isEmpty()) {
        Open(file);
    }
}

QString ProjectFiles::Dragged(const QMimeData& data)
{
    const QList<QUrl> urls = data.urls();
    return urls.size() == 1 ? urls.front().toLocalFile() : QString();
}

void ProjectFiles::OpenSoon(const QString& file)
{
    QMetaObject::invokeMethod(
        this, [this, file] { Open(file); }, Qt::QueuedConnection);
}

bool ProjectFiles::MayLeave()
{
    if (!m_endEdit()) {
        return false;
    }
    if (!m_document.IsChanged()) {
        return true;
    }
    enum { SaveFirst, Leave };
    const int answer = Ask(&m_window, "unsaved", QMessageBox::Question,
                           tr("%1 has unsaved changes.").arg(m_document.Name()), {},
                           {{tr("Save"), QMessageBox::AcceptRole},
                            {tr("Leave without saving"), QMessageBox::DestructiveRole},
                            {tr("Stay"), QMessageBox::RejectRole}});
    return answer == SaveFirst ? Save() : answer == Leave;
}

void ProjectFiles::NoteRecent()
{
    QStringList recent = m_settings.value(RecentKey).toStringList();
    recent.removeAll(m_document.File());
    recent.prepend(m_document.File());
    m_settings.setValue(RecentKey, recent.mid(0, MaxRecent));
    FillRecent();
}

void ProjectFiles::FillRecent()
{
    m_recent.clear();
    for (const QString& file : m_settings.value(RecentKey).toStringList()) {
        connect(m_recent.addAction(file), &QAction::triggered, this, [this, file] { Open(file); });
    }
    m_recent.setEnabled(!m_recent.isEmpty());
}

}  // namespace Desk
