#include "desk/window/Selection.h"

#include <algorithm>
#include <utility>

#include "desk/window/Ask.h"
#include "desk/window/FieldNames.h"
#include "desk/window/Filling.h"
#include "desk/window/Steps.h"
#include "desk/window/Typed.h"

namespace Desk {

namespace {

// The next annotation of the same beam that has a text; nothing after the last one.
std::optional<FieldRef> NextText(const Project& project, const FieldRef& from)
{
    const std::vector<FieldRef> refs = RefsOf(project, from);
    auto next = std::find(refs.begin(), refs.end(), from);
    while (next != refs.end() && (*next == from || TextAt(project, *next).empty())) {
        ++next;
    }
    return next != refs.end() ? std::optional(*next) : std::nullopt;
}

}  // namespace

Selection::Selection(Document& document, FloorView& floor, Docks& docks, PanelHost& panels, QWidget& window)
    : QObject(&window), m_document(document), m_floor(floor), m_docks(docks), m_panels(panels),
      m_window(window)
{
    connect(&floor, &FloorView::Picked, this, &Selection::Pick);
    connect(&floor, &FloorView::Joined, this, &Selection::Join);
    connect(&floor, &FloorView::Framed, this, &Selection::JoinAll);
    connect(&floor, &FloorView::NothingPicked, this, [this] { Choose(std::nullopt); });
    connect(&floor, &FloorView::PanelAsked, this, [this](const FieldRef& ref) {
        Choose(ref);
        OpenPanel();
    });
    connect(&docks, &Docks::Picked, this, &Selection::Choose);
    connect(&docks, &Docks::Edited, this,
            [this](const FieldRef& ref, const QString& text) { TakeTyped(ref, text, false); });
    connect(&docks, &Docks::Taken, this,
            [this](const FieldRef& ref, const QString& text) { TakeTyped(ref, text, true); });
    connect(&docks, &Docks::ProposalTaken, this, &Selection::TakeFromList);
    connect(&docks, &Docks::GoOn, this, &Selection::GoOn);
    connect(&docks, &Docks::PanelAsked, this, &Selection::OpenPanel);
    connect(&docks, &Docks::PanelAskedInGrid, this, [this](const FieldRef& ref) {
        if (EndEdit()) {
            Choose(ref);
            OpenPanelBeside(m_docks.OnScreen(ref));
        }
    });
    connect(&docks, &Docks::Left, &floor, [this] { m_floor.setFocus(); });
    connect(&docks, &Docks::Failed, this, &Selection::Said);
    connect(&panels, &PanelHost::Composed, this, &Selection::Take);
    connect(&document, &Document::TextChanged, this, [this](const FieldRef& ref) { m_floor.Refresh(ref); });
    connect(&document, &Document::StepDone, this, [this](const std::vector<FieldRef>& changed) {
        // Undo and redo go where they change something.
        const auto isHere = [this](const FieldRef& ref) {
            return m_chosen && ref.isWall == m_chosen->isWall && ref.index == m_chosen->index;
        };
        const auto here = std::find_if(changed.begin(), changed.end(), isHere);
        if (m_chosen && std::count(changed.begin(), changed.end(), *m_chosen) != 0) {
            Choose(m_chosen);
        } else {
            Choose(here != changed.end() ? *here : changed.front());
        }
    });
    connect(&document, &Document::OwnersChanged, this, &Selection::Follow);
    connect(&document, &Document::Replaced, this, [this] {
        m_panels.Close();  // it serves an annotation of the project before
        m_chosen.reset();
        m_others.clear();
        m_matched.reset();
        const Drawing* const from = m_document.From();
        m_floor.SetProject(&m_document.Get(), from != nullptr ? &from->Behind() : nullptr);
        Show();
    });
}

// Undo and redo go where they change something; where something went, nothing is chosen.
void Selection::Follow(const Exchanged& exchanged)
{
    if (exchanged.Renumbers()) {
        m_panels.Close();  // it may serve what is no more
        m_others.clear();
    }
    m_floor.Exchange(exchanged);
    const bool isWall = exchanged.beams.in.empty();
    const std::vector<std::size_t>& in = isWall ? exchanged.walls.in : exchanged.beams.in;
    const bool isHere = m_chosen && m_chosen->isWall == isWall && !exchanged.Renumbers() &&
                        std::binary_search(in.begin(), in.end(), m_chosen->index) &&
                        Exists(m_document.Get(), *m_chosen);
    if (in.empty()) {
        Choose(std::nullopt);
    } else {
        Choose(isHere ? *m_chosen : FieldRef{isWall, in.front(), Field::Name});
    }
}

void Selection::Choose(const std::optional<FieldRef>& ref)
{
    const Project& project = m_document.Get();
    const std::optional<FieldRef> before = m_chosen;
    m_chosen = ref && Exists(project, *ref) ? ref : std::nullopt;
    m_others = before && m_chosen ? WentOn(project, m_others, *before, *m_chosen) : std::set<FieldRef>();
    if (!m_chosen) {
        m_matched.reset();
    }
    emit Said({});  // it told of something else
    Show();
}

void Selection::GoTo(const std::optional<FieldRef>& ref)
{
    Choose(ref);
    if (m_chosen) {
        m_floor.BringClose(*m_chosen);
    }
}

void Selection::Show()
{
    m_floor.SetTogether(m_others);
    m_floor.SetChosen(m_chosen);
    m_docks.Show(m_chosen, m_others.size() + 1);
}

void Selection::Find(const QString& wanted, int by)
{
    if (wanted.isEmpty()) {
        return;
    }
    if (const auto found = FindText(m_document.Get(), m_chosen, by, wanted)) {
        GoTo(found->ref);
        emit Said(tr("%1 of %2").arg(found->number).arg(found->count));
    } else {
        emit Said(tr("No annotation contains \"%1\"").arg(wanted));
    }
}

void Selection::OpenPanel()
{
    if (m_chosen && EndEdit()) {
        const QRect inDrawing = m_floor.OnScreen(*m_chosen);
        const QRect drawing(m_floor.mapToGlobal(QPoint()), m_floor.size());
        const bool visible = m_floor.isVisible() && drawing.intersects(inDrawing);
        OpenPanelBeside(visible ? inDrawing : m_docks.OnScreen(*m_chosen));
    }
}

void Selection::OpenPanelBeside(const QRect& field)
{
    const Project& project = m_document.Get();
    m_panels.Open(*m_chosen, QString::fromStdString(TextAt(project, *m_chosen)),
                  OwnerName(project, *m_chosen) + QStringLiteral("  ") + FieldName(project, *m_chosen),
                  field, &m_window);
}

bool Selection::EndEdit()
{
    m_isRefused = false;
    m_docks.CommitEdit();
    return !m_isRefused;
}

void Selection::TakeTyped(const FieldRef& ref, const QString& text, bool goesOn)
{
    if (!Exists(m_document.Get(), ref)) {
        return;  // of a project that is gone
    }
    const std::optional<Texts> texts = AskTyped(m_document.Get(), m_document.Target(ref), text, &m_window);
    m_isRefused = !texts.has_value();
    if (!texts) {
        Show();
    } else if (goesOn) {
        TakeFromList(*texts, QString());
    } else {
        TakeAll(*texts);
    }
}

bool Selection::TakeAll(const Texts& asked, const QString& reason)
{
    const Project& project = m_document.Get();
    Texts texts;
    for (const auto& [ref, text] : ForAll(asked)) {
        if (!Exists(project, ref)) {
            return false;  // of a project that is gone
        }
        texts.emplace_back(m_document.Target(ref), text);
    }
    const FieldRef ref = texts.front().first;
    const QString owner = OwnerName(project, ref);  // a new name changes it
    const int steps = m_document.Changes().index();
    const QString refusal = m_document.SetTexts(texts);
    m_isRefused = !refusal.isEmpty();
    if (m_isRefused) {
        Tell(&m_window, tr("The text was not taken"), refusal);
        Show();
        return false;
    }
    Copied last{ref.isWall, {}};
    for (const auto& [each, text] : asked) {
        last.texts.emplace_back(each.field, text);
    }
    m_last = std::move(last);
    if (m_document.Changes().index() == steps) {
        Show();  // a change has shown itself
    }
    QStringList now;
    for (const auto& [each, text] : texts) {
        now << QString::fromStdString(TextAt(project, each));
    }
    now.removeDuplicates();
    const QString what = texts.size() > asked.size() ? tr("%1 annotations").arg(texts.size())
                         : texts.size() == 1 ? owner + QStringLiteral(", ") + FieldName(project, ref)
                                             : owner;
    m_told = QStringLiteral("%1: %2").arg(what, now.join(QStringLiteral(", "))) +
             (reason.isEmpty() ? QString() : QStringLiteral(" - ") + reason);
    emit Said(m_told);
    return true;
}

// A text for an annotation that had none goes on to the next one that lacks its own, which may be another
// beam's. A proposal in place of a text goes on within the beam, any other text stays where it is.
void Selection::TakeFromList(const Texts& asked, const QString& reason)
{
    const Project& project = m_document.Get();
    const FieldRef ref = asked.front().first;
    const FieldRef from = Exists(project, ref) ? m_document.Target(ref) : ref;
    const bool wasEmpty = Exists(project, ref) && TextAt(project, from).empty();
    if (!TakeAll(asked, reason) || from.isWall || !(wasEmpty || !reason.isEmpty())) {
        return;
    }
    std::optional<FieldRef> next = StepToFill(project, from, m_document.From() != nullptr);
    if ((!wasEmpty || !m_others.empty()) && (!next || next->index != from.index)) {
        next = NextText(project, from);
    }
    if (next) {
        const QString told = m_told;
        GoTo(next);
        emit Said(told);
    }
}

void Selection::GoOn()
{
    if (const std::optional<FieldRef> next =
            StepToFill(m_document.Get(), m_chosen, m_document.From() != nullptr)) {
        Choose(next);
    } else {
        emit Said(tr("No beam lacks a text"));
    }
}

}  // namespace Desk
