// Document: its files and its recovery copy.
#include <utility>

#include "desk/drawing/Export.h"
#include "desk/project/ProjectFile.h"
#include "desk/window/Document.h"
#include "desk/window/Languages.h"
#include "desk/window/Watched.h"

namespace Desk {

namespace {

bool IsDrawingName(const QString& file)
{
    return file.endsWith(QLatin1String(".dxf"), Qt::CaseInsensitive);
}

}  // namespace

void Document::OpenSample()
{
    Replace(SampleProject(), QString());
    m_isSample = true;
    emit FileChanged();
}

void Document::OpenNew(Project project, bool imported)
{
    Replace(std::move(project), QString());
    if (imported) {
        m_changes.resetClean();
        WriteRecoveryCopy();
    }
}

void Document::Open(const QString& file)
{
    const QString path = QFileInfo(file).absoluteFilePath();
    Opened opened = Watched(tr("Opening %1").arg(QFileInfo(path).fileName()),
                            [&] { return OpenFile(path.toStdString()); });
    Replace(std::move(opened.project), path, std::move(opened.drawing));
}

bool Document::OpenLost(const LostWork& lost)
{
    Project copy = ReadProject(lost.copy.toStdString());
    const QFileInfo file(lost.file);
    bool fits = true;
    if (IsDrawingName(lost.file)) {
        std::optional<Drawing> drawing;
        std::optional<Project> onDrawing;
        if (file.exists() && file.lastModified() == lost.fileTime) {
            drawing = OpenFile(lost.file.toStdString()).drawing;
            onDrawing = drawing ? OntoDrawing(*drawing, copy) : std::nullopt;
        }
        fits = onDrawing.has_value();
        if (fits) {
            Replace(std::move(*onDrawing), lost.file, std::move(drawing));
        } else {
            Replace(std::move(copy), QString());
        }
    } else {
        Replace(std::move(copy), lost.file);
    }
    m_fileTime = fits ? lost.fileTime
                      : QDateTime();  // what another program saved since is not in the copy: saving asks
    m_changes.resetClean();
    if (!m_recovery.TakeOver(lost)) {
        WriteRecoveryCopy();
    }
    return fits;
}

void Document::SaveAs(const QString& file)
{
    const QString path = QFileInfo(file).absoluteFilePath();
    const bool isProject = path.endsWith(QLatin1String(".json"), Qt::CaseInsensitive);
    const bool asDrawing = IsDrawingName(path) || (m_drawing && !isProject);
    Watched(tr("Saving %1").arg(QFileInfo(path).fileName()), [&] { Write(path.toStdString(), asDrawing); });
    if (asDrawing != m_drawing.has_value()) {
        Open(path);
        return;
    }
    m_file = path;
    m_isSample = false;
    NoteFileTime();
    m_changes.setClean();
    DropRecoveryCopy();
    emit FileChanged();
}

void Document::Write(const std::string& file, bool asDrawing) const
{
    if (!asDrawing) {
        SaveProject(m_project, file);
    } else if (m_drawing) {
        m_drawing->Save(m_project, file);
    } else {
        ExportDrawing(m_project, file);
    }
}

bool Document::IsFileNewer() const
{
    return !m_file.isEmpty() && QFileInfo::exists(m_file) && QFileInfo(m_file).lastModified() != m_fileTime;
}

void Document::DropRecoveryCopy()
{
    m_recoverySoon.stop();
    m_recovery.Drop();
}

void Document::WriteRecoveryCopy()
{
    m_recoverySoon.stop();
    try {
        m_recovery.Write(m_project, m_file, m_fileTime);
    } catch (const Failure& failure) {
        emit RecoveryFailed(tr("There is no recovery copy: %1").arg(Told(failure)));
    }
}

void Document::Replace(Project project, const QString& file, std::optional<Drawing> drawing)
{
    DropRecoveryCopy();
    m_project = std::move(project);
    m_drawing = std::move(drawing);
    m_file = file;
    m_isSample = false;
    NoteFileTime();
    m_changes.clear();
    emit Replaced();
    emit ChecksOffChanged();
    emit OpenTextsChanged();
    emit FileChanged();
}

void Document::NoteFileTime()
{
    m_fileTime = m_file.isEmpty() ? QDateTime() : QFileInfo(m_file).lastModified();
}

}  // namespace Desk
