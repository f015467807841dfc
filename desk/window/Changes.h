// What a person does to a document, each one command on its undo stack.
#pragma once

#include <map>
#include <string>
#include <utility>
#include <vector>

#include "desk/window/Document.h"
#include "desk/window/FieldNames.h"

namespace Desk {

// Other texts of annotations, in one step.
class TextsChange : public QUndoCommand {
public:
    TextsChange(Document& document, std::map<FieldRef, std::string> texts)
        : m_document(document), m_others(std::move(texts))
    {
        setText(ChangeName(document.Get(), m_others));
    }

    void undo() override { m_document.SwapTexts(m_others); }
    void redo() override { m_document.SwapTexts(m_others); }

private:
    Document& m_document;
    std::map<FieldRef, std::string> m_others;  // those that are not in the document now
};

// A beam with an open text that a person has pointed to it, or without it again.
class PointChange : public QUndoCommand {
public:
    PointChange(Document& document, std::string handle, Drawing::Pointed pointed, const PlanPoint& at)
        : m_document(document), m_handle(std::move(handle)), m_pointed(std::move(pointed)), m_at(at)
    {
        const Beam& beam = m_pointed.as;
        setText(QCoreApplication::translate("Desk", "a text pointed to %1")
                    .arg(QString::fromStdString(beam.name)));
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
        m_document.Changed({shown});
    }

    Document& m_document;
    std::string m_handle;
    Drawing::Pointed m_pointed;
    PlanPoint m_at;
};

// Other rules that are not checked.
class RulesChange : public QUndoCommand {
public:
    RulesChange(Document& document, std::vector<std::string> off, const QString& what)
        : m_document(document), m_other(std::move(off))
    {
        setText(what);
    }

    void undo() override { Swap(); }
    void redo() override { Swap(); }

private:
    void Swap()
    {
        std::swap(m_document.m_project.checksOff, m_other);
        m_document.WriteCopySoon();
        emit m_document.ChecksOffChanged();
    }

    Document& m_document;
    std::vector<std::string> m_other;
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
