// Every change of a text is one command on the undo stack.
#include "desk/window/Document.h"

#include <algorithm>
#include <utility>

#include "desk/project/Encoding.h"
#include "desk/project/ProjectFile.h"
#include "desk/window/FieldNames.h"
#include "desk/window/Languages.h"

namespace Desk {

namespace {

constexpr int RecoveryDelay = 2000;  // ms from a change to its recovery copy

}  // namespace

class TextChange : public QUndoCommand {
public:
    TextChange(Document& document, const FieldRef& ref, std::string text)
        : m_document(document), m_ref(ref), m_before(TextAt(document.Get(), ref)), m_after(std::move(text))
    {
        setText(
            QStringLiteral("%1: %2").arg(OwnerName(document.Get(), ref), FieldName(document.Get(), ref)));
    }

    void undo() override { m_document.PutText(m_ref, m_before); }
    void redo() override { m_document.PutText(m_ref, m_after); }

private:
    Document& m_document;
    FieldRef m_ref;
    std::string m_before;
    std::string m_after;
};

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
    Replace(ReadProject(path.toStdString()), path);
}

void Document::OpenLost(const LostWork& lost)
{
    Project project = ReadProject(lost.copy.toStdString());
    Replace(std::move(project), lost.file);
    m_fileTime = lost.fileTime;  // what another program saved since is not in the copy: saving asks
    m_changes.resetClean();
    if (!m_recovery.TakeOver(lost)) {
        WriteRecoveryCopy();
    }
}

void Document::SaveAs(const QString& file)
{
    const QString path = QFileInfo(file).absoluteFilePath();
    SaveProject(m_project, path.toStdString());
    m_file = path;
    NoteFileTime();
    m_changes.setClean();
    DropRecoveryCopy();
    emit FileChanged();
}

bool Document::IsFileNewer() const
{
    return !m_file.isEmpty() && QFileInfo::exists(m_file) && QFileInfo(m_file).lastModified() != m_fileTime;
}

QString Document::SetText(const FieldRef& ref, const QString& text)
{
    const std::string wanted = text.trimmed().toStdString();
    if (wanted == TextAt(m_project, ref)) {
        return {};
    }
    const auto isControl = [](char ch) { return static_cast<unsigned char>(ch) < ' ' || ch == '\x7F'; };
    if (std::any_of(wanted.begin(), wanted.end(), isControl)) {
        return tr("An annotation is a single line without control characters.");
    }
    if (!GbkFromUtf8(wanted)) {
        return tr("\"%1\" contains a character that drawings cannot store.").arg(text.trimmed());
    }
    m_changes.push(new TextChange(*this, ref, wanted));
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

void Document::PutText(const FieldRef& ref, const std::string& text)
{
    TextAt(m_project, ref) = text;
    if (!m_recoverySoon.isActive()) {
        m_recoverySoon.start();
    }
    emit TextChanged(ref);
}

void Document::Replace(Project project, const QString& file)
{
    DropRecoveryCopy();
    m_project = std::move(project);
    m_file = file;
    NoteFileTime();
    m_changes.clear();
    emit Replaced();
    emit FileChanged();
}

void Document::NoteFileTime()
{
    m_fileTime = m_file.isEmpty() ? QDateTime() : QFileInfo(m_file).lastModified();
}

}  // namespace Desk
