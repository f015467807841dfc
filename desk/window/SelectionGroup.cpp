// Selection: several annotations at once, and texts that go from one to others.
#include <memory>
#include <utility>

#include "desk/window/FieldNames.h"
#include "desk/window/ReplaceDialog.h"
#include "desk/window/Selection.h"
#include "desk/window/Steps.h"
#include "desk/window/Typed.h"

namespace Desk {

std::set<FieldRef> Selection::All() const
{
    std::set<FieldRef> all = m_others;
    if (m_chosen) {
        all.insert(*m_chosen);
    }
    return all;
}

// A click in the drawing begins anew, or gives what is matched.
void Selection::Pick(const FieldRef& ref)
{
    m_others.clear();
    if (!m_matched) {
        Choose(ref);
    } else if (const Copied matched = *m_matched; EndEdit()) {
        Give(matched, ref);
    }
}

void Selection::Join(const FieldRef& pointedAt)
{
    if (!m_chosen) {
        Choose(pointedAt);
        return;
    }
    const std::optional<FieldRef> part = PartOf(m_document.Get(), *m_chosen, pointedAt);
    if (!part) {
        emit Said(tr("Beams and walls do not take the same texts"));
        return;
    }
    if (part != m_chosen) {
        if (m_others.erase(*part) == 0) {
            m_others.insert(*part);
        }
    } else if (!m_others.empty()) {
        m_chosen = *m_others.begin();
        m_others.erase(m_others.begin());
    }
    SayChosen();
}

void Selection::JoinAll(const std::vector<FieldRef>& refs)
{
    if (!m_chosen && !refs.empty()) {
        Choose(refs.front());
    }
    for (const FieldRef& ref : refs) {
        const std::optional<FieldRef> part = PartOf(m_document.Get(), *m_chosen, ref);
        if (part && part != m_chosen) {
            m_others.insert(*part);
        }
    }
    SayChosen();
}

void Selection::JoinSameText()
{
    if (m_chosen) {
        std::vector<FieldRef> all = WithSameText(m_document.Get(), *m_chosen);
        // On a drawing a label with a name alone takes part in another one and lacks nothing.
        std::erase_if(all, [this](const FieldRef& ref) { return m_document.Target(ref) != ref; });
        JoinAll(all);
    }
}

void Selection::JoinLikeOwners()
{
    if (m_chosen) {
        JoinAll(OfLikeOwners(m_document.Get(), *m_chosen));
    }
}

void Selection::SayChosen()
{
    Show();
    emit Said(m_others.empty() ? QString() : tr("%1 annotations chosen").arg(m_others.size() + 1));
}

NewTexts Selection::ForAll(const Texts& asked) const
{
    Texts all = asked;
    if (!m_chosen) {
        return all;
    }
    const Project& project = m_document.Get();
    for (const auto& [ref, text] : asked) {
        const bool isHere =
            ref.isWall == m_chosen->isWall &&
            (ref.index == m_chosen->index || ref.index == m_document.Target(*m_chosen).index);
        for (const FieldRef& other : m_others) {
            const FieldRef owner{other.isWall, other.index, Field::Name};
            if (ref == *m_chosen || ref == m_document.Target(*m_chosen)) {
                all.emplace_back(other, text);
            } else if (isHere && other.index != m_chosen->index) {
                all.emplace_back(Alike(project, owner, ref), text);
            }
        }
    }
    return all;
}

void Selection::Copy()
{
    if (m_chosen) {
        const Copied copied = CopyOf(m_document.Get(), *m_chosen);
        QApplication::clipboard()->setMimeData(ToClipboard(copied));
        emit Said(tr("Copied: %1").arg(copied.texts.front().second));
    }
}

void Selection::CopyOwner()
{
    if (m_chosen) {
        QApplication::clipboard()->setMimeData(ToClipboard(CopyOfOwner(m_document.Get(), *m_chosen)));
        emit Said(tr("Copied: all texts of %1 but its name").arg(OwnerName(m_document.Get(), *m_chosen)));
    }
}

void Selection::Paste()
{
    const QMimeData* const data = QApplication::clipboard()->mimeData();
    if (!m_chosen || data == nullptr || !EndEdit()) {
        return;
    }
    if (const std::optional<Copied> copied = FromClipboard(*data, *m_chosen)) {
        Give(*copied, *m_chosen);
    } else {
        emit Said(tr("The clipboard has no single line of text"));
    }
}

void Selection::Repeat()
{
    if (m_last.texts.empty()) {
        emit Said(tr("Nothing was taken yet"));
    } else if (m_chosen && EndEdit()) {
        Give(m_last, *m_chosen);
    }
}

void Selection::StartMatching()
{
    if (!m_chosen || !EndEdit()) {
        return;
    }
    const Project& project = m_document.Get();
    const bool isOwner = m_chosen->field == Field::Name;
    m_others.clear();
    Show();
    m_matched = isOwner ? CopyOfOwner(project, *m_chosen) : CopyOf(project, *m_chosen);
    emit Said(isOwner ? tr("Click what gets all texts of %1 but its name; Esc ends")
                            .arg(OwnerName(project, *m_chosen))
                      : tr("Click what gets %1; Esc ends").arg(m_matched->texts.front().second));
}

void Selection::Replace()
{
    if (EndEdit()) {
        const Texts asked = AskReplace(m_window, m_document.Get(), m_chosen);
        if (const auto read = asked.empty() ? std::nullopt : Read(asked)) {
            const Texts& texts = *read;
            const Copied last = m_last;
            m_others.clear();
            const int steps = m_document.Changes().index();
            if (TakeAll(texts) && m_document.Changes().index() != steps) {
                emit Said(tr("%1 texts replaced").arg(texts.size()));
            }
            m_last = last;
        }
    }
}

void Selection::Give(const Copied& copied, const FieldRef& to)
{
    const Texts texts = TextsAt(to, copied);
    if (texts.empty()) {
        emit Said(tr("Beams and walls do not take the same texts"));
    } else if (const std::optional<Texts> read = Read(texts)) {
        TakeAll(*read);
    }
}

// Texts that come from elsewhere are read as typed ones are.
std::optional<NewTexts> Selection::Read(Texts texts) const
{
    for (auto& [ref, text] : texts) {
        ref = m_document.Target(ref);
    }
    return AskGiven(m_document.Get(), texts, &m_window);
}

}  // namespace Desk
