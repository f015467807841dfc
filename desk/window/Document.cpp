#include "desk/window/Document.h"

#include <algorithm>
#include <utility>

#include "desk/drawing/Export.h"
#include "desk/project/Encoding.h"
#include "desk/project/FindBeam.h"
#include "desk/project/ProjectFile.h"
#include "desk/project/SafeFile.h"
#include "desk/window/Changes.h"
#include "desk/window/Languages.h"

namespace Desk {

namespace {

constexpr int RecoveryDelay = 2000;  // ms from a change to its recovery copy

bool IsDrawingName(const QString& file)
{
    return file.endsWith(QLatin1String(".dxf"), Qt::CaseInsensitive);
}

}  // namespace

Document::Document(const QString& recoveryFolder, QObject* parent)
    : QObject(parent), m_recovery(recoveryFolder)
{
    m_recoverySoon.setSingleShot(true);
    m_recoverySoon.setInterval(RecoveryDelay);
    connect(&m_recoverySoon, &QTimer::timeout, this, &Document::WriteRecoveryCopy);
}

Document::~Document() = default;

void Document::OpenSample() { Replace(SampleProject(), QString()); }

void Document::Open(const QString& file)
{
    const QString path = QFileInfo(file).absoluteFilePath();
    Opened opened = OpenFile(path.toStdString());
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
    Write(path.toStdString(), asDrawing);
    if (asDrawing != m_drawing.has_value()) {
        Open(path);
        return;
    }
    m_file = path;
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
        const std::string companion = Drawing::CompanionOf(m_project);
        if (!companion.empty()) {
            ReplaceFile(CompanionFile(file), companion);
        } else {
            std::error_code isNone;
            std::filesystem::remove(CompanionFile(file), isNone);  // of another drawing
        }
        ReplaceFile(file, FormatDrawing(m_project));
    }
}

std::vector<std::size_t> Document::OpenTexts() const
{
    std::vector<std::size_t> open;
    if (m_drawing) {
        const std::vector<AnnotationText>& texts = m_drawing->Texts();
        for (std::size_t i = 0; i < texts.size(); ++i) {
            if (texts[i].open && !m_project.pointed.contains(texts[i].handle)) {
                open.push_back(i);
            }
        }
    }
    return open;
}

std::optional<FieldRef> Document::PointTo(std::size_t text, const PlanPoint& at)
{
    std::optional<Drawing::Pointed> pointed =
        m_drawing ? m_drawing->PointTo(m_project, text, at) : std::nullopt;
    if (!pointed) {
        return std::nullopt;
    }
    const FieldRef ref = pointed->ref;
    m_changes.push(new PointChange(*this, m_drawing->Texts()[text].handle, std::move(*pointed), at));
    return ref;
}

FieldRef Document::Target(FieldRef ref) const
{
    if (m_drawing && !ref.isWall && ref.inPlace < 0 && ref.field != Field::Name) {
        ref.index = WrittenOut(m_project, ref.index);
    }
    return ref;
}

bool Document::IsFileNewer() const
{
    return !m_file.isEmpty() && QFileInfo::exists(m_file) && QFileInfo(m_file).lastModified() != m_fileTime;
}

QString Document::SetTexts(const std::vector<std::pair<FieldRef, QString>>& texts)
{
    const auto isControl = [](char ch) { return static_cast<unsigned char>(ch) < ' ' || ch == '\x7F'; };
    std::map<FieldRef, std::string> wanted;
    for (const auto& [asked, text] : texts) {
        const FieldRef ref = Target(asked);
        std::string trimmed = text.trimmed().toStdString();
        if (trimmed != TextAt(m_project, ref)) {
            if (std::any_of(trimmed.begin(), trimmed.end(), isControl)) {
                return tr("An annotation is a single line without control characters.");
            }
            if (!GbkFromUtf8(trimmed)) {
                return tr("\"%1\" contains a character that drawings cannot store.").arg(text.trimmed());
            }
        }
        wanted[ref] = std::move(trimmed);
    }
    std::erase_if(wanted,
                  [this](const auto& each) { return each.second == TextAt(m_project, each.first); });
    if (!wanted.empty()) {
        m_changes.push(new TextsChange(*this, std::move(wanted)));
    }
    return {};
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

void Document::SwapTexts(std::map<FieldRef, std::string>& others)
{
    std::vector<FieldRef> refs;
    for (auto& [ref, text] : others) {
        std::swap(TextAt(m_project, ref), text);
        refs.push_back(ref);
    }
    Changed(refs);
}

void Document::Changed(const std::vector<FieldRef>& refs)
{
    if (!m_recoverySoon.isActive()) {
        m_recoverySoon.start();
    }
    for (const FieldRef& ref : refs) {
        emit TextChanged(ref);
    }
    emit StepDone(refs);
}

void Document::Replace(Project project, const QString& file, std::optional<Drawing> drawing)
{
    DropRecoveryCopy();
    m_project = std::move(project);
    m_drawing = std::move(drawing);
    m_file = file;
    NoteFileTime();
    m_changes.clear();
    emit Replaced();
    emit OpenTextsChanged();
    emit FileChanged();
}

void Document::NoteFileTime()
{
    m_fileTime = m_file.isEmpty() ? QDateTime() : QFileInfo(m_file).lastModified();
}

}  // namespace Desk
