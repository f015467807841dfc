// Recovery copies: what is kept of unsaved work when the program or the machine stops in the middle.
#pragma once

#include <memory>
#include <optional>

#include <QtCore>

#include "desk/drawing/Drawing.h"

namespace Desk {

// One copy that a session left when it broke off.
struct LostWork {
    QString copy;  // the file that holds the project
    QString file;  // where the project came from, empty for one that was never saved
    QDateTime time;
    QByteArray content;  // of the file when the project was read from it or saved to it; empty for none
};

// Copies in the folder whose program has ended, the latest first.
[[nodiscard]] QList<LostWork> FindLostWork(const QString& folder);
void DropLostWork(const LostWork& lost);
// The project of a drawing, which is as it was then, with the copy's texts and what was pointed. Nothing
// when a text of the copy is none of the drawing's.
[[nodiscard]] std::optional<Project> OntoDrawing(const Drawing& drawing, const Project& copy);

// The copy of one document: NAME.json with the project; NAME.from with the name of its file and, in the
// next line, a number for the file's content; NAME.lock, held for as long as this program runs.
class RecoveryCopy {
public:
    // An empty folder name: no copy is kept.
    explicit RecoveryCopy(QString folder);
    ~RecoveryCopy();
    RecoveryCopy(const RecoveryCopy&) = delete;
    RecoveryCopy& operator=(const RecoveryCopy&) = delete;

    // Throws Failure when it cannot be written.
    void Write(const Project& project, const QString& file, const QByteArray& content);
    void Drop();
    // Goes on with a copy that another session left, in place of an own one. False when another
    // program has taken it over.
    bool TakeOver(const LostWork& lost);

private:
    [[nodiscard]] QString Path(const char* suffix) const;
    void Lock();

    QString m_folder;
    QString m_name;
    std::unique_ptr<QLockFile> m_lock;
};

}  // namespace Desk
