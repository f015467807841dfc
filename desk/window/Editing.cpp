#include "desk/window/Editing.h"

#include <algorithm>
#include <set>
#include <utility>

#include "desk/project/Making.h"
#include "desk/window/Ask.h"
#include "desk/window/FieldNames.h"
#include "desk/window/NewNames.h"

namespace Desk {

namespace {

// Nothing is left of its label.
void EmptyTexts(Beam& beam)
{
    for (const Field field : BeamFields()) {
        (beam.*RowOf(field).ofBeam).clear();
    }
    for (InPlace& text : beam.inPlace) {
        text.text.clear();
    }
}

}  // namespace

Editing::Editing(Document& document, Selection& selection, QWidget& window)
    : QObject(&window), m_document(document), m_selection(selection), m_window(window)
{
}

bool Editing::Do(const QString& what, Edits edits)
{
    if (!m_selection.EndEdit()) {
        return false;
    }
    edits.what = what.toStdString();
    const QString refusal = m_document.Edit(std::move(edits));
    if (!refusal.isEmpty()) {
        Tell(&m_window, tr("This cannot be done: %1").arg(what), refusal);
        return false;
    }
    emit Said(what);
    return true;
}

void Editing::AddBeam(const PlanPoint& start, const PlanPoint& end)
{
    Beam beam;
    beam.start = start;
    beam.end = end;
    AddNamed(std::move(beam), tr("New beam %1"));
}

void Editing::AddLabel(const PlanPoint& at)
{
    const Drawing* const from = m_document.From();
    if (std::optional<Beam> beam = from != nullptr ? from->LabelFor(m_document.Get(), at) : std::nullopt) {
        AddNamed(std::move(*beam), tr("New label %1"));
    } else {
        emit Said(tr("There is no outline of one beam without a label"));
    }
}

void Editing::AddNamed(Beam beam, const QString& what)
{
    Project with = m_document.Get();
    if (!with.beams.empty()) {
        const Beam& last = with.beams.back();
        beam.floor = last.floor;
        beam.concreteGrade = last.concreteGrade;
        beam.seismicClass = last.seismicClass;
    }
    with.beams.push_back(beam);
    beam.name = NewBeamName(with);
    const QString name = QString::fromStdString(beam.name);
    Edits edits;
    edits.beams.added.push_back(std::move(beam));
    if (Do(what.arg(name), std::move(edits))) {
        m_selection.Choose(FieldRef{false, m_document.Get().beams.size() - 1, Field::Section});
    }
}

void Editing::AddWall(const PlanPoint& start, const PlanPoint& end)
{
    constexpr int UsualThickness = 200;  // mm
    const std::vector<Wall>& walls = m_document.Get().walls;
    Wall wall;
    wall.thickness = walls.empty() ? UsualThickness : walls.back().thickness;
    wall.name = NextWallName(m_document.Get(), walls.empty() ? std::string() : walls.back().name);
    wall.start = start;
    wall.end = end;
    const QString name = QString::fromStdString(wall.name);
    Edits edits;
    edits.walls.added.push_back(std::move(wall));
    if (Do(tr("New wall %1").arg(name), std::move(edits))) {
        m_selection.Choose(FieldRef{true, m_document.Get().walls.size() - 1, Field::HorizontalBars});
    }
}

std::vector<FieldRef> Editing::Owners() const
{
    std::set<FieldRef> owners;
    for (const FieldRef& ref : m_selection.All()) {
        owners.insert({ref.isWall, ref.index, Field::Name});
    }
    return {owners.begin(), owners.end()};
}

QString Editing::Name(const std::vector<FieldRef>& owners) const
{
    return owners.size() == 1 ? OwnerName(m_document.Get(), owners.front())
                              : tr("%1 beams and walls").arg(owners.size());
}

bool Editing::ChangeEach(const QString& what, const std::vector<FieldRef>& owners, const EditBeam& beam,
                         const EditWall& wall)
{
    Edits edits;
    for (const FieldRef& owner : owners) {
        if (owner.isWall) {
            wall(edits.walls.changed[owner.index] = m_document.Get().walls[owner.index]);
        } else {
            beam(edits.beams.changed[owner.index] = m_document.Get().beams[owner.index]);
        }
    }
    return !owners.empty() && Do(what.arg(Name(owners)), std::move(edits));
}

void Editing::Move(const PlanPoint& by)
{
    const auto move = [&](auto& owner) { Shift(owner, by); };
    ChangeEach(tr("%1 moved"), Owners(), move, move);
}

void Editing::TurnRound()
{
    ChangeEach(
        tr("%1 turned round"), Owners(), [](Beam& beam) { Desk::TurnRound(beam, SpansOf(beam)); },
        [](Wall& wall) { Desk::TurnRound(wall); });
}

void Editing::Copy(const PlanPoint& by)
{
    const std::vector<FieldRef> owners = Owners();
    Project with = m_document.Get();  // so that each copy has a name of its own
    Edits edits;
    const auto add = [&](auto copy, std::string name, auto& all, auto& added) {
        copy.name = std::move(name);
        copy.inFile = nullptr;
        Shift(copy, by);
        all.push_back(copy);
        added.push_back(std::move(copy));
    };
    for (const FieldRef& owner : owners) {
        if (owner.isWall) {
            const Wall& wall = with.walls[owner.index];
            add(wall, NextWallName(with, wall.name), with.walls, edits.walls.added);
        } else {
            const Beam& beam = with.beams[owner.index];
            add(beam, NextBeamName(with, beam.name), with.beams, edits.beams.added);
        }
    }
    const std::optional<FieldRef> chosen = m_selection.Chosen();
    if (!owners.empty() && Do(tr("%1 copied").arg(Name(owners)), std::move(edits))) {
        m_selection.Choose(chosen);  // for the next copy
    }
}

void Editing::Remove()
{
    const std::vector<FieldRef> owners = Owners();
    Edits edits;
    for (const FieldRef& owner : owners) {
        if (owner.isWall) {
            edits.walls.removed.insert(owner.index);
        } else if (m_document.From() != nullptr && owner.index < m_document.From()->Get().beams.size()) {
            EmptyTexts(edits.beams.changed[owner.index] = m_document.Get().beams[owner.index]);
        } else {
            edits.beams.removed.insert(owner.index);
        }
    }
    if (!owners.empty()) {
        Do(tr("%1 deleted").arg(Name(owners)), std::move(edits));
    }
}

void Editing::SetEnd(const FieldRef& owner, bool isStart, const PlanPoint& to)
{
    const auto set = [&](auto& each) { SetEnds(each, isStart ? to : each.start, isStart ? each.end : to); };
    ChangeEach(isStart ? tr("Start of %1") : tr("End of %1"), {owner}, set, set);
}

}  // namespace Desk
