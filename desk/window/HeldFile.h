// HeldFile: the file of a document, which one desk alone writes, and what it held when it was read or
// written here.
#pragma once

#include <memory>

#include <QtCore>

namespace Desk {

// A lock file beside the file, ".NAME.lock", tells other desks; one that a killed desk left is taken over.
class HeldFile {
public:
    // Holds nothing.
    HeldFile() = default;
    // An empty name holds nothing.
    explicit HeldFile(const QString& file);
    // The same file, also under another name of it.
    [[nodiscard]] bool Is(const QString& file) const;

    // Another desk holds it. Where no lock can be made, as in a folder that is write-protected, nobody
    // does.
    [[nodiscard]] bool IsOthers() const { return m_isOthers; }
    // The computer that another desk runs on; empty where that is not told.
    [[nodiscard]] QString Holder() const;
    // Holds it where the other desk does no more.
    void TryAgain();

    // A number for the bytes of a file, with a drawing its companion's too; empty where there is no file.
    [[nodiscard]] static QByteArray ContentOf(const QString& file);
    // What the file is known to hold.
    void Know(const QByteArray& content);
    void KnowPresent() { Know(ContentOf(m_file)); }
    [[nodiscard]] const QByteArray& Known() const { return m_known; }
    // There is a file, with another content than the known one. A quick look believes the file's time and
    // size where they are as at the last look.
    [[nodiscard]] bool IsOther(bool quick = false);

private:
    [[nodiscard]] QString Stamp() const;

    QString m_file;
    std::unique_ptr<QLockFile> m_lock;  // not locked while another desk holds the file
    bool m_isOthers = false;
    QByteArray m_known;
    QString m_stamp;  // of the last look that found the known content
};

}  // namespace Desk
