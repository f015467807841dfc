// Editing: data and texts in place.
#include <algorithm>
#include <optional>
#include <set>
#include <utility>
#include <vector>

#include "desk/project/Making.h"
#include "desk/window/Ask.h"
#include "desk/window/Editing.h"
#include "desk/window/FieldNames.h"
#include "desk/window/InPlaceDialog.h"
#include "desk/window/Languages.h"
#include "desk/window/NewNames.h"

namespace Desk {

void Editing::SetData(const FieldRef& owner, Datum datum, const QString& text)
{
    std::optional<Message> refusal;
    QString what = OwnerName(m_document.Get(), owner);
    bool isSame = false;
    const auto set = [&](auto& each) {
        const QString before = QString::fromStdString(DatumText(each, datum));
        refusal = SetDatum(each, datum, text.trimmed().toStdString());
        const QString now = QString::fromStdString(DatumText(each, datum));
        isSame = now == before;
        for (const DatumRow& row : DataOf(each)) {
            if (row.datum == datum) {
                what += QStringLiteral(", ") + QString::fromUtf8(IsChinese() ? row.chinese : row.english);
            }
        }
        what = isSame ? tr("%1: %2 already").arg(what, now) : tr("%1: %2 to %3").arg(what, before, now);
    };
    Edits edits;
    if (owner.isWall) {
        set(edits.walls.changed[owner.index] = m_document.Get().walls.at(owner.index));
    } else {
        set(edits.beams.changed[owner.index] = m_document.Get().beams.at(owner.index));
    }
    if (refusal) {
        Tell(&m_window, tr("The value was not taken"), Told(*refusal));
    }
    if (isSame || !Do(what, std::move(edits))) {
        m_selection.Choose(m_selection.Chosen());  // the value shows as it was
    }
    if (isSame && !refusal) {
        emit Said(what);
    }
}

void Editing::AddInPlace()
{
    const std::optional<FieldRef> chosen = m_selection.Chosen();
    if (!chosen || chosen->isWall) {
        emit Said(tr("Choose a beam first"));
        return;
    }
    const Beam& beam = m_document.Get().beams[chosen->index];
    if (const std::optional<InPlace> text = AskInPlace(m_window, SpansOf(beam))) {
        const int number = static_cast<int>(beam.inPlace.size());
        Edits edits;
        (edits.beams.changed[chosen->index] = beam).inPlace.push_back(*text);
        if (Do(tr("text in place of %1 added").arg(OwnerName(m_document.Get(), *chosen)),
               std::move(edits))) {
            m_selection.Choose(FieldRef{false, chosen->index, RowOf(text->role).field, number});
        }
    }
}

void Editing::Clear()
{
    const std::optional<FieldRef> chosen = m_selection.Chosen();
    if (!chosen || !m_selection.EndEdit()) {
        return;
    }
    const std::set<FieldRef> all = m_selection.All();
    const QString one = QStringLiteral("%1, %2").arg(OwnerName(m_document.Get(), *chosen),
                                                     FieldName(m_document.Get(), *chosen));
    const QString what = all.size() == 1 ? one : tr("%1 annotations").arg(all.size());
    const QString told = tr("%1 removed").arg(what);
    const bool isEmpty = std::all_of(all.begin(), all.end(), [this](const FieldRef& ref) {
        return TextAt(m_document.Get(), m_document.Target(ref)).empty();
    });
    const bool hasInPlace =
        std::any_of(all.begin(), all.end(), [](const FieldRef& ref) { return ref.inPlace >= 0; });
    if (chosen->field == Field::Name && m_document.From() != nullptr) {
        emit Said(tr("A label needs its name; deleting the beam removes the whole label"));
    } else if (isEmpty && (!hasInPlace || m_document.From() != nullptr)) {
        emit Said(tr("%1: no text already").arg(what));
    } else if (hasInPlace && m_document.From() == nullptr) {
        Edits edits;
        for (auto ref = all.rbegin(); ref != all.rend(); ++ref) {  // the last text in place first
            Beam& beam = edits.beams.changed.try_emplace(ref->index, m_document.Get().beams[ref->index])
                             .first->second;
            if (ref->inPlace >= 0) {
                beam.inPlace.erase(beam.inPlace.begin() + ref->inPlace);
            } else {
                (beam.*RowOf(ref->field).ofBeam).clear();
            }
        }
        Do(told, std::move(edits));
    } else {
        std::vector<std::pair<FieldRef, QString>> texts;
        for (const FieldRef& ref : all) {
            texts.emplace_back(ref, QString());
        }
        m_document.SetTexts(texts);
        emit Said(told);
    }
}

void Editing::MoveText(const FieldRef& ref, const PlanPoint& to)
{
    ChangeEach(
        tr("Text of %1 moved"), {ref}, [&](Beam& beam) { DraggedTo(beam, ref) = to; },
        [&](Wall& wall) { wall.textsAt = to; });
}

}  // namespace Desk
