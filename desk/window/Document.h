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
    // What a broken-off session left: its texts count as unsaved changes of the file that it came from.
    void OpenLost(const LostWork& lost);

    // Throws Failure and leaves the old file when it cannot be done.
    void SaveAs(const QString& file);
    // Another program has written the file since it was read or saved here.
    [[nodiscard]] bool IsFileNewer() const;

    // Sets an annotation, which can be taken back. Answers why the text is refused, empty when it is
    // taken; blanks around it go, and the text that stands there already is no change.
    QString SetText(const FieldRef& place, const QString& text);

    // The recovery copy is of no use any more: all is saved, or the person gave the changes up.
    void DropRecoveryCopy();
    // Writes the copy at once that is else written a moment after a change.
    void WriteRecoveryCopy();

signals:
    void TextChanged(const Desk::FieldRef& place);
    void Replaced();     // another project
    void FileChanged();  // its name
    void RecoveryFailed(const QString& why);

private:
    friend class TextChange;
    void PutText(const FieldRef& place, const std::string& text);
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
