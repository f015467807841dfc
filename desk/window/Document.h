// Document: the project in work, from a project file or a drawing, with its changes that can be taken back
// and its recovery copy.
#pragma once

#include <chrono>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include <QtCore>

#include "desk/Toolkit.h"
#include "desk/drawing/Drawing.h"
#include "desk/project/Edits.h"
#include "desk/project/Fields.h"
#include "desk/window/HeldFile.h"
#include "desk/window/RecoveryCopy.h"

namespace Desk {

// Each step on the stack of changes has as its text what it does: "KL1(7) bottom bars 2B16 to 2B25".
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
    [[nodiscard]] bool IsSample() const { return m_isSample; }
    // What a person calls it: its file without the folder, its title, "New floor".
    [[nodiscard]] QString Name() const;

    // The drawing that the project was read from; null for a project file and for the sample.
    [[nodiscard]] const Drawing* From() const { return m_drawing ? &*m_drawing : nullptr; }
    // Texts of the drawing whose beam nobody has told yet, by their numbers in it.
    [[nodiscard]] std::vector<std::size_t> OpenTexts() const;

    // Each replaces the project and throws Failure, with nothing changed, when it cannot be done.
    void OpenSample();
    void Open(const QString& file);
    // A project without a file: a floor that was just made, which loses nothing when it is left again, or
    // one that was imported.
    void OpenNew(Project project, bool imported);
    // What a session that broke off left: its texts count as unsaved changes of the file that it came from.
    // False when that is a drawing that they fit no more: then they are a project that was never saved.
    bool OpenLost(const LostWork& lost);

    // A name that ends in .dxf or .json says what is written, else it is what was opened. A project that
    // becomes a drawing, or the other way, is opened from the new file. Throws Failure and leaves the old
    // file when it cannot be done, or when another desk has it open.
    void SaveAs(const QString& file);
    // Another desk had the file open first, so that this one does not write it.
    [[nodiscard]] bool IsReadOnly() const { return m_held.IsOthers(); }
    // Asks whether the other desk still has it; the file can be written from here when it has not.
    void TryToHold();
    // The file, to look for what another program wrote into it since it was read or saved here.
    [[nodiscard]] HeldFile& Held() { return m_held; }
    // What the file holds now is known and not wanted: the project is unsaved, and saving replaces it.
    void KeepInsteadOfFile();

    // The annotation that is set where a person sets this one: a beam of a drawing that has only a name
    // takes part in the one that is written out.
    [[nodiscard]] FieldRef Target(FieldRef ref) const;
    // Sets an annotation, which can be taken back. Answers why the text is refused, empty when it is
    // taken. Blanks around it are removed, and setting the present text is no change.
    QString SetText(const FieldRef& ref, const QString& text) { return SetTexts({{ref, text}}); }
    // The same for several at once: all in one step, or none of them. Of two texts for an annotation the
    // last one counts.
    QString SetTexts(const std::vector<std::pair<FieldRef, QString>>& texts);

    // The rules that are not checked, which can be taken back; what tells the change.
    void SetChecksOff(std::vector<std::string> keys, const QString& what);

    // Makes beams and walls what the edits say, which can be taken back. Answers why that is refused, empty
    // when it is done: the beams of a drawing stay where it has them, and a position lies on the plan.
    QString Edit(Edits edits);

    // Gives an open text to the beam at a position, which can be taken back. The text's annotation, or
    // nothing where no beam takes it.
    std::optional<FieldRef> PointTo(std::size_t text, const PlanPoint& at);

    // Removes the recovery copy: all is saved, or the person gave the changes up.
    void DropRecoveryCopy();
    // Writes the recovery copy at once instead of a moment after a change.
    void WriteRecoveryCopy();
    // From a change to its recovery copy.
    void SetRecoveryDelay(std::chrono::seconds delay) { m_recoverySoon.setInterval(delay); }
    [[nodiscard]] std::chrono::seconds RecoveryDelay() const
    {
        return std::chrono::duration_cast<std::chrono::seconds>(m_recoverySoon.intervalAsDuration());
    }

signals:
    void TextChanged(const Desk::FieldRef& ref);                // each text of a step
    void StepDone(const std::vector<Desk::FieldRef>& changed);  // after them; not empty
    void ChecksOffChanged();
    // Beams and walls came, changed or went, in one step; StepDone is for texts alone.
    void OwnersChanged(const Desk::Exchanged& exchanged);
    void OpenTextsChanged();
    void Replaced();     // another project
    void FileChanged();  // its name
    void RecoveryFailed(const QString& why);

private:
    friend class TextsChange;
    friend class PointChange;
    friend class RulesChange;
    friend class OwnersChange;
    void SwapTexts(std::map<FieldRef, std::string>& others);
    void Changed(const std::vector<FieldRef>& refs);
    void WriteCopySoon();
    // The content is what the file had before it was read.
    void Replace(Project project, const QString& file = {}, const QByteArray& content = {},
                 std::optional<Drawing> drawing = std::nullopt);
    void Write(const std::string& file, bool asDrawing) const;

    Project m_project;
    std::optional<Drawing> m_drawing;
    QString m_file;
    bool m_isSample = false;
    HeldFile m_held;
    QUndoStack m_changes;
    RecoveryCopy m_recovery;
    QTimer m_recoverySoon;
};

}  // namespace Desk
