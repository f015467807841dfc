#include "desk/window/RecoveryCopy.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "desk/project/Failure.h"
#include "desk/project/ProjectFile.h"
#include "desk/project/SafeFile.h"

namespace Desk {

namespace {

constexpr const char* CopySuffix = ".json";
constexpr const char* FromSuffix = ".from";
constexpr const char* LockSuffix = ".lock";

QString WithSuffix(const LostWork& lost, const char* suffix)
{
    const QFileInfo copy(lost.copy);
    return copy.dir().filePath(copy.completeBaseName() + QLatin1String(suffix));
}

// Held by nobody, or by a program that has ended.
bool IsFree(const QString& lockName)
{
    QLockFile lock(lockName);
    lock.setStaleLockTime(0);
    return lock.tryLock(0);
}

}  // namespace

QList<LostWork> FindLostWork(const QString& folder)
{
    QList<LostWork> found;
    const QFileInfoList copies = QDir(folder).entryInfoList(
        {QStringLiteral("*") + QLatin1String(CopySuffix)}, QDir::Files, QDir::Time);
    for (const QFileInfo& copy : copies) {
        LostWork lost{copy.absoluteFilePath(), {}, copy.lastModified(), {}};
        if (!IsFree(WithSuffix(lost, LockSuffix))) {
            continue;
        }
        QFile from(WithSuffix(lost, FromSuffix));
        if (from.open(QIODevice::ReadOnly)) {
            const QByteArray told = from.readAll();
            const qsizetype end = told.lastIndexOf('\n');
            lost.file = QString::fromUtf8(told.left(end));
            lost.content = QByteArray::fromHex(told.mid(end + 1));
        }
        found.push_back(lost);
    }
    return found;
}

void DropLostWork(const LostWork& lost)
{
    if (!IsFree(WithSuffix(lost, LockSuffix))) {
        return;  // another program has taken it over since
    }
    for (const char* const suffix : {CopySuffix, FromSuffix, LockSuffix}) {
        QFile::remove(WithSuffix(lost, suffix));
    }
}

namespace {

// The text in place that a drawing has there; null for none.
InPlace* DrawnAt(Beam& beam, const InPlace& lost)
{
    constexpr double Same = 0.01;  // mm
    const auto found = std::find_if(beam.inPlace.begin(), beam.inPlace.end(), [&](const InPlace& each) {
        return each.role == lost.role && std::abs(each.place.at.x - lost.place.at.x) < Same &&
               std::abs(each.place.at.y - lost.place.at.y) < Same;
    });
    return found != beam.inPlace.end() ? &*found : nullptr;
}

// Points an open text as it was pointed before the work was lost; false when no beam takes it any more.
bool PointAgain(const Drawing& drawing, const std::string& handle, const PlanPoint& at, Project& project)
{
    const std::vector<AnnotationText>& texts = drawing.Texts();
    for (std::size_t i = 0; i < texts.size(); ++i) {
        if (texts[i].open && texts[i].handle == handle) {
            const std::optional<Drawing::Pointed> pointed = drawing.PointTo(project, i, at);
            if (pointed) {
                project.beams[pointed->beam] = pointed->as;
            }
            return pointed.has_value();
        }
    }
    return true;  // the drawing was saved since
}

}  // namespace

std::optional<Project> OntoDrawing(const Drawing& drawing, const Project& copy)
{
    Project project = drawing.Get();
    if (project.beams.size() > copy.beams.size()) {
        return std::nullopt;
    }
    for (std::size_t i = project.beams.size(); i < copy.beams.size(); ++i) {  // labels that were added
        const Beam& beam = copy.beams[i];
        std::optional<Beam> label = drawing.LabelFor(
            project, {(beam.start.x + beam.end.x) / 2.0, (beam.start.y + beam.end.y) / 2.0});
        if (!label) {
            return std::nullopt;
        }
        project.beams.push_back(std::move(*label));
        project.beams.back().name = beam.name;  // no second label goes there
    }
    for (const auto& [handle, at] : copy.pointed) {
        if (!PointAgain(drawing, handle, at, project)) {
            return std::nullopt;
        }
    }
    project.pointed = copy.pointed;
    project.walls = copy.walls;
    project.checksOff = copy.checksOff;
    for (std::size_t i = 0; i < copy.beams.size(); ++i) {
        Beam& beam = project.beams[i];
        for (const Field field : BeamFields()) {
            beam.*RowOf(field).ofBeam = copy.beams[i].*RowOf(field).ofBeam;
        }
        beam.floor = copy.beams[i].floor;
        beam.concreteGrade = copy.beams[i].concreteGrade;
        beam.seismicClass = copy.beams[i].seismicClass;
        beam.area = copy.beams[i].area;
        for (const InPlace& lost : copy.beams[i].inPlace) {
            if (lost.place.height <= 0.0) {
                beam.inPlace.push_back(lost);
            } else if (InPlace* const drawn = DrawnAt(beam, lost)) {
                drawn->text = lost.text;
            } else {
                return std::nullopt;
            }
        }
    }
    return project;
}

RecoveryCopy::RecoveryCopy(QString folder)
    : m_folder(std::move(folder)), m_name(QUuid::createUuid().toString(QUuid::WithoutBraces))
{
}

RecoveryCopy::~RecoveryCopy() = default;

void RecoveryCopy::Write(const Project& project, const QString& file, const QByteArray& content)
{
    if (m_folder.isEmpty()) {
        return;
    }
    if (!QDir().mkpath(m_folder)) {
        throw Failure(Phrase("Desk", "%1: the folder cannot be made"), m_folder.toStdString());
    }
    Lock();
    ReplaceFile(Path(FromSuffix).toStdString(), (file.toUtf8() + '\n' + content.toHex()).toStdString());
    SaveProject(project, Path(CopySuffix).toStdString());
}

void RecoveryCopy::Drop()
{
    if (m_lock == nullptr) {
        return;  // nothing was written
    }
    QFile::remove(Path(CopySuffix));
    QFile::remove(Path(FromSuffix));
    m_lock.reset();
}

bool RecoveryCopy::TakeOver(const LostWork& lost)
{
    Drop();
    auto lock = std::make_unique<QLockFile>(WithSuffix(lost, LockSuffix));
    lock->setStaleLockTime(0);
    if (!lock->tryLock(0)) {
        return false;
    }
    m_folder = QFileInfo(lost.copy).absolutePath();
    m_name = QFileInfo(lost.copy).completeBaseName();
    m_lock = std::move(lock);
    return true;
}

QString RecoveryCopy::Path(const char* suffix) const
{
    return QDir(m_folder).filePath(m_name + QLatin1String(suffix));
}

void RecoveryCopy::Lock()
{
    if (m_lock == nullptr) {
        m_lock = std::make_unique<QLockFile>(Path(LockSuffix));
        m_lock->setStaleLockTime(0);
        m_lock->tryLock(0);
    }
}

}  // namespace Desk
