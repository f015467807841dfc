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
    Replace(SampleProject());
    m_isSample = true;
    emit FileChanged();
}

void Document::OpenNew(Project project, bool imported)
{
    Replace(std::move(project));
    if (imported) {
        m_changes.resetClean();
        WriteRecoveryCopy();
    }
}

void Document::Open(const QString& file)
{
    const QString path = QFileInfo(file).absoluteFilePath();
    const QByteArray content = HeldFile::ContentOf(path);
    Opened opened = Watched(tr("Opening %1").arg(QFileInfo(path).fileName()),
                            [&] { return OpenFile(path.toStdString()); });
    Replace(std::move(opened.project), path, content, std::move(opened.drawing));
}

bool Document::OpenLost(const LostWork& lost)
{
    Project copy = ReadProject(lost.copy.toStdString());
    bool fits = true;
    if (IsDrawingName(lost.file)) {
        std::optional<Drawing> drawing;
        std::optional<Project> onDrawing;
        if (!lost.content.isEmpty() && HeldFile::ContentOf(lost.file) == lost.content) {
            drawing = OpenFile(lost.file.toStdString()).drawing;
            onDrawing = drawing ? OntoDrawing(*drawing, copy) : std::nullopt;
        }
        fits = onDrawing.has_value();
        if (fits) {
            Replace(std::move(*onDrawing), lost.file, lost.content, std::move(drawing));
        } else {
            Replace(std::move(copy));
        }
    } else {
        Replace(std::move(copy), lost.file, lost.content);  // saving asks about what was saved since
    }
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
    const bool isHeld = m_held.Is(path);
    HeldFile other(isHeld ? QString() : path);
    if (isHeld) {
        TryToHold();
    }
    if ((isHeld ? m_held : other).IsOthers()) {
        throw Failure(Phrase("Desk", "%1: cannot be saved: %2"), path.toStdString(),
                      Phrase("Desk", "another desk has it open"));
    }
    Watched(tr("Saving %1").arg(QFileInfo(path).fileName()), [&] { Write(path.toStdString(), asDrawing); });
    if (asDrawing != m_drawing.has_value()) {
        other = HeldFile();
        Open(path);
        return;
    }
    if (!isHeld) {
        m_held = std::move(other);
    }
    m_held.KnowPresent();
    m_file = path;
    m_isSample = false;
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

QString Document::Name() const
{
    const QString title = QString::fromStdString(m_project.title);
    return m_isSample          ? tr("Sample project")
           : !m_file.isEmpty() ? QFileInfo(m_file).fileName()
           : title.isEmpty()   ? tr("New floor")
                               : title;
}

void Document::KeepInsteadOfFile()
{
    m_held.KnowPresent();
    m_changes.resetClean();
    WriteCopySoon();
}

void Document::TryToHold()
{
    if (m_held.IsOthers()) {
        m_held.TryAgain();
        emit FileChanged();
    }
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
        m_recovery.Write(m_project, m_file, m_held.Known());
    } catch (const Failure& failure) {
        emit RecoveryFailed(tr("There is no recovery copy: %1").arg(Told(failure)));
    }
}

void Document::Replace(Project project, const QString& file, const QByteArray& content,
                       std::optional<Drawing> drawing)
{
    DropRecoveryCopy();
    m_project = std::move(project);
    m_drawing = std::move(drawing);
    m_file = file;
    m_isSample = false;
    if (!m_held.Is(file)) {
        m_held = HeldFile();  // lets go of the file before
        m_held = HeldFile(file);
    }
    m_held.Know(content);
    m_changes.clear();
    emit Replaced();
    emit ChecksOffChanged();
    emit OpenTextsChanged();
    emit FileChanged();
}

}  // namespace Desk
