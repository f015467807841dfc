// Document: the project in work with its file, its changes that can be taken back, its recovery copy.
#pragma once

#include <QtCore>

#include "desk/Toolkit.h"
#include "desk/project/Fields.h"
#include "desk/window/RecoveryCopy.h"

namespace Desk {

class Document : public QObject {
    Q_OBJECT

public:
    // Recovery copies go to the folder; an empty name keeps none.
    explicit Document(const QString& recoveryFolder, QObject* parent = nullptr);
    ~Document() override;

    [[nodiscard]] const Project& Get() const { return m_project; }
    [[nodiscard]] QUndoStack& Changes() { return m_changes; }
    [[nodiscard]] bool IsChanged() const { return !m_changes.isClean(); }

    // Empty for the sample and for a project that was never saved.
    [[nodiscard]] QString File() const { return m_file; }

    // Each replaces the project and throws Failure, with nothing changed, when it cannot be done.
    void OpenSample();
    void Open(const QString& file);
    // What a session that broke off left: its texts count as unsaved changes of the file that it came from.
    void OpenLost(const LostWork& lost);

    // Throws Failure and leaves the old file when it cannot be done.
    void SaveAs(const QString& file);
    // Another program has written the file since it was read or saved here.
    [[nodiscard]] bool IsFileNewer() const;

    // Sets an annotation, which can be taken back. Answers why the text is refused, empty when it is
    // taken. Blanks around it are removed, and setting the present text is no change.
    QString SetText(const FieldRef& ref, const QString& text);

    // Removes the recovery copy: all is saved, or the person gave the changes up.
    void DropRecoveryCopy();
    // Writes the recovery copy at once instead of a moment after a change.
    void WriteRecoveryCopy();

signals:
    void TextChanged(const Desk::FieldRef& ref);
    void Replaced();     // another project
    void FileChanged();  // its name
    void RecoveryFailed(const QString& why);

private:
    friend class TextChange;
    void PutText(const FieldRef& ref, const std::string& text);
    void Replace(Project project, const QString& file);
    void NoteFileTime();

    Project m_project;
    QString m_file;
    QDateTime m_fileTime;
    QUndoStack m_changes;
    RecoveryCopy m_recovery;
    QTimer m_recoverySoon;
};

}  // namespace Desk
