// What a person does to a document, each one command on its undo stack.
#pragma once

#include <string>
#include <utility>

#include "desk/window/Document.h"
#include "desk/window/FieldNames.h"

namespace Desk {

// Another text of an annotation.
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

// A beam with an open text that a person has pointed to it, or without it again.
class PointChange : public QUndoCommand {
public:
    PointChange(Document& document, std::string handle, Drawing::Pointed pointed, const PlanPoint& at)
        : m_document(document), m_handle(std::move(handle)), m_pointed(std::move(pointed)), m_at(at)
    {
        setText(OwnerName(document.Get(), m_pointed.ref));
    }

    void undo() override
    {
        m_document.m_project.pointed.erase(m_handle);
        Swap({false, m_pointed.beam, Field::Name});
    }
    void redo() override
    {
        m_document.m_project.pointed[m_handle] = m_at;
        Swap(m_pointed.ref);
    }

private:
    void Swap(const FieldRef& shown)
    {
        std::swap(m_document.m_project.beams[m_pointed.beam], m_pointed.as);
        emit m_document.OpenTextsChanged();
        m_document.Changed(shown);
    }

    Document& m_document;
    std::string m_handle;
    Drawing::Pointed m_pointed;
    PlanPoint m_at;
};

// Beams and walls exchanged for others.
class OwnersChange : public QUndoCommand {
public:
    OwnersChange(Document& document, Edits edits)
        : m_document(document), m_beams(std::move(edits.beams), document.Get().beams.size()),
          m_walls(std::move(edits.walls), document.Get().walls.size())
    {
        setText(QString::fromStdString(edits.what));
    }

    void undo() override { redo(); }
    void redo() override
    {
        Project& project = m_document.m_project;
        const Exchanged done{m_beams.Do(project.beams), m_walls.Do(project.walls)};
        m_document.WriteCopySoon();
        emit m_document.OwnersChanged(done);
    }

private:
    Document& m_document;
    Exchange<Beam> m_beams;
    Exchange<Wall> m_walls;
};

}  // namespace Desk
