#include "desk/window/RecoveryCopy.h"

#include <algorithm>
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
            bool isTime = false;
            const qint64 time = told.mid(end + 1).toLongLong(&isTime);
            lost.fileTime = isTime ? QDateTime::fromMSecsSinceEpoch(time) : QDateTime();
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

std::optional<Project> OntoDrawing(const Drawing& drawing, const Project& copy)
{
    Project project = drawing.Get();
    if (project.beams.size() != copy.beams.size()) {
        return std::nullopt;
    }
    std::vector<int> taken(project.beams.size());  // texts that were pointed to each beam
    for (const auto& [handle, at] : copy.pointed) {
        const std::vector<AnnotationText>& texts = drawing.Texts();
        const auto text =
            std::find_if(texts.begin(), texts.end(), [&name = handle](const AnnotationText& each) {
                return each.open && each.handle == name;
            });
        if (text == texts.end()) {
            continue;  // pointed before the drawing was saved
        }
        const auto pointed = drawing.PointTo(project, static_cast<std::size_t>(text - texts.begin()), at);
        if (!pointed) {
            return std::nullopt;
        }
        taken[pointed->beam] += text->inPlace ? 1 : 0;
        project.beams[pointed->beam] = pointed->as;
    }
    for (std::size_t i = 0; i < copy.beams.size(); ++i) {
        Beam& beam = project.beams[i];
        const Beam& lost = copy.beams[i];
        for (const Field field : BeamFields()) {
            beam.*RowOf(field).ofBeam = lost.*RowOf(field).ofBeam;
        }
        const std::size_t drawn = beam.inPlace.size();
        // The order in which two or more were pointed, or pointed and added, is not known.
        if (lost.inPlace.size() < drawn || taken[i] > 1 || (taken[i] == 1 && lost.inPlace.size() > drawn)) {
            return std::nullopt;
        }
        for (std::size_t k = 0; k < lost.inPlace.size(); ++k) {
            if (k < drawn) {
                beam.inPlace[k].text = lost.inPlace[k].text;
            } else {
                beam.inPlace.push_back(lost.inPlace[k]);
            }
        }
    }
    project.pointed = copy.pointed;
    return project;
}

RecoveryCopy::RecoveryCopy(QString folder)
    : m_folder(std::move(folder)), m_name(QUuid::createUuid().toString(QUuid::WithoutBraces))
{
}

RecoveryCopy::~RecoveryCopy() = default;

void RecoveryCopy::Write(const Project& project, const QString& file, const QDateTime& fileTime)
{
    if (m_folder.isEmpty()) {
        return;
    }
    if (!QDir().mkpath(m_folder)) {
        throw Failure(Phrase("Desk", "%1: the folder cannot be made"), m_folder.toStdString());
    }
    Lock();
    const QByteArray time = fileTime.isValid() ? QByteArray::number(fileTime.toMSecsSinceEpoch()) : "";
    ReplaceFile(Path(FromSuffix).toStdString(), (file.toUtf8() + '\n' + time).toStdString());
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
