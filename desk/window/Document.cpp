#include "desk/window/Document.h"

#include <algorithm>
#include <utility>

#include "desk/project/Encoding.h"
#include "desk/project/FindBeam.h"
#include "desk/project/Making.h"
#include "desk/window/Changes.h"

namespace Desk {

namespace {

constexpr std::chrono::seconds UsualDelay(2);  // from a change to its recovery copy

template <class Owner>
bool LeavesPlan(const EditsOf<Owner>& edits)
{
    const auto leaves = [](const Owner& owner) { return !IsInRange(owner.start) || !IsInRange(owner.end); };
    return std::any_of(edits.added.begin(), edits.added.end(), leaves) ||
           std::any_of(edits.changed.begin(), edits.changed.end(),
                       [&](const auto& each) { return leaves(each.second); });
}

// What a drawing does not take: other positions than its outlines', fewer beams than it has, and new ones
// where it has no outline for a label.
bool IsAgainst(const Drawing& drawing, const EditsOf<Beam>& edits, const Project& project)
{
    const auto isMoved = [&](const auto& each) {
        const Beam& before = project.beams.at(each.first);
        const Beam& now = each.second;
        return !IsSame(now.start, before.start) || !IsSame(now.end, before.end) ||
               now.spans != before.spans;
    };
    const auto hasNoOutline = [&](const Beam& beam) {
        const PlanPoint middle{(beam.start.x + beam.end.x) / 2.0, (beam.start.y + beam.end.y) / 2.0};
        return beam.places.empty() || !drawing.LabelFor(project, middle);
    };
    return std::any_of(edits.changed.begin(), edits.changed.end(), isMoved) ||
           std::any_of(edits.added.begin(), edits.added.end(), hasNoOutline) ||
           (!edits.removed.empty() && *edits.removed.begin() < drawing.Get().beams.size());
}

}  // namespace

Document::Document(const QString& recoveryFolder, QObject* parent)
    : QObject(parent), m_recovery(recoveryFolder)
{
    m_recoverySoon.setSingleShot(true);
    SetRecoveryDelay(UsualDelay);
    connect(&m_recoverySoon, &QTimer::timeout, this, &Document::WriteRecoveryCopy);
}

Document::~Document() = default;

std::vector<std::size_t> Document::OpenTexts() const
{
    std::vector<std::size_t> open;
    if (m_drawing) {
        const std::vector<AnnotationText>& texts = m_drawing->Texts();
        for (std::size_t i = 0; i < texts.size(); ++i) {
            if (texts[i].open && !m_project.pointed.contains(texts[i].handle)) {
                open.push_back(i);
            }
        }
    }
    return open;
}

std::optional<FieldRef> Document::PointTo(std::size_t text, const PlanPoint& at)
{
    std::optional<Drawing::Pointed> pointed =
        m_drawing ? m_drawing->PointTo(m_project, text, at) : std::nullopt;
    if (!pointed) {
        return std::nullopt;
    }
    const FieldRef ref = pointed->ref;
    m_changes.push(new PointChange(*this, m_drawing->Texts()[text].handle, std::move(*pointed), at));
    return ref;
}

FieldRef Document::Target(FieldRef ref) const
{
    if (m_drawing && !ref.isWall && ref.inPlace < 0 && ref.field != Field::Name) {
        ref.index = WrittenOut(m_project, ref.index);
    }
    return ref;
}

QString Document::SetTexts(const std::vector<std::pair<FieldRef, QString>>& texts)
{
    const auto isControl = [](char ch) { return static_cast<unsigned char>(ch) < ' ' || ch == '\x7F'; };
    std::map<FieldRef, std::string> wanted;
    for (const auto& [asked, text] : texts) {
        const FieldRef ref = Target(asked);
        std::string trimmed = text.trimmed().toStdString();
        if (trimmed != TextAt(m_project, ref)) {
            if (std::any_of(trimmed.begin(), trimmed.end(), isControl)) {
                return tr("An annotation is a single line without control characters.");
            }
            if (!GbkFromUtf8(trimmed)) {
                return tr("\"%1\" contains a character that drawings cannot store.").arg(text.trimmed());
            }
        }
        wanted[ref] = std::move(trimmed);
    }
    std::erase_if(wanted,
                  [this](const auto& each) { return each.second == TextAt(m_project, each.first); });
    if (!wanted.empty()) {
        m_changes.push(new TextsChange(*this, std::move(wanted)));
    }
    return {};
}

void Document::SetChecksOff(std::vector<std::string> keys, const QString& what)
{
    m_changes.push(new RulesChange(*this, std::move(keys), what));
}

void Document::SwapTexts(std::map<FieldRef, std::string>& others)
{
    std::vector<FieldRef> refs;
    for (auto& [ref, text] : others) {
        std::swap(TextAt(m_project, ref), text);
        refs.push_back(ref);
    }
    Changed(refs);
}

void Document::Changed(const std::vector<FieldRef>& refs)
{
    WriteCopySoon();
    for (const FieldRef& ref : refs) {
        emit TextChanged(ref);
    }
    emit StepDone(refs);
}

void Document::WriteCopySoon()
{
    if (!m_recoverySoon.isActive()) {
        m_recoverySoon.start();
    }
}

QString Document::Edit(Edits edits)
{
    if (LeavesPlan(edits.beams) || LeavesPlan(edits.walls)) {
        return tr("The plan ends 1000 km from its origin.");
    }
    if (m_drawing && IsAgainst(*m_drawing, edits.beams, m_project)) {
        return tr(
            "The beams of a drawing are where it has their outlines, which the drawing program changes. "
            "Saved as a project they can be changed here.");
    }
    m_changes.push(new OwnersChange(*this, std::move(edits)));
    return {};
}

}  // namespace Desk
