#include "desk/window/HeldFile.h"

#include "desk/drawing/Drawing.h"

namespace Desk {

namespace {

// The name that all names of a file lead to, also of one that is still to be made.
QString OneName(const QString& file)
{
    const QFileInfo info(file);
    if (info.exists()) {
        return info.canonicalFilePath();
    }
    const QString folder = info.dir().canonicalPath();
    return folder.isEmpty() ? info.absoluteFilePath() : QDir(folder).filePath(info.fileName());
}

// The file, and what is beside a drawing.
QStringList All(const QString& file)
{
    QStringList all{file};
    if (file.endsWith(QLatin1String(".dxf"), Qt::CaseInsensitive)) {
        all << QString::fromStdString(CompanionFile(file.toStdString()).string());
    }
    return all;
}

}  // namespace

HeldFile::HeldFile(const QString& file) : m_file(file)
{
    if (!file.isEmpty()) {
        const QFileInfo one(OneName(file));
        m_lock =
            std::make_unique<QLockFile>(one.dir().filePath(QStringLiteral(".%1.lock").arg(one.fileName())));
        m_lock->setStaleLockTime(0);  // a desk may be open for days
        TryAgain();
    }
}

bool HeldFile::Is(const QString& file) const
{
    return !m_file.isEmpty() && OneName(m_file) == OneName(file);
}

QString HeldFile::Holder() const
{
    qint64 process = 0;
    QString computer;
    QString program;
    return m_lock != nullptr && m_lock->getLockInfo(&process, &computer, &program) ? computer : QString();
}

void HeldFile::TryAgain()
{
    if (m_lock != nullptr && !m_lock->isLocked()) {
        m_isOthers = !m_lock->tryLock(0) && m_lock->error() == QLockFile::LockFailedError;
    }
}

QByteArray HeldFile::ContentOf(const QString& file)
{
    constexpr qint64 Most = qint64{1} << 30;  // bytes; no project is that long
    const QFileInfo info(file);
    if (!info.isFile() || info.size() > Most) {
        return {};
    }
    QCryptographicHash hash(QCryptographicHash::Sha256);
    for (const QString& name : All(file)) {
        QFile each(name);
        const bool isRead = each.open(QIODevice::ReadOnly) && hash.addData(&each);
        hash.addData(isRead ? "." : "-");
    }
    return hash.result();
}

void HeldFile::Know(const QByteArray& content)
{
    m_known = content;
    m_stamp.clear();
}

QString HeldFile::Stamp() const
{
    QString stamp;
    for (const QString& name : All(m_file)) {
        const QFileInfo info(name);
        stamp += QStringLiteral("%1 %2;").arg(info.lastModified().toMSecsSinceEpoch()).arg(info.size());
    }
    return stamp;
}

bool HeldFile::IsOther(bool quick)
{
    const QString stamp = Stamp();
    if (m_file.isEmpty() || (quick && stamp == m_stamp)) {
        return false;
    }
    const QByteArray now = ContentOf(m_file);
    if (now != m_known) {
        return !now.isEmpty();
    }
    m_stamp = stamp;
    return false;
}

}  // namespace Desk
