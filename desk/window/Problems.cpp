#include "desk/window/Problems.h"

#include <algorithm>

#include "desk/window/FieldNames.h"
#include "desk/window/Languages.h"

namespace Desk {

Problems::Problems(Document& document, FloorView& floor, QWidget* parent)
    : QDockWidget(parent), m_document(document), m_floor(floor), m_checks(document.Get()),
      m_rows(new ProblemRows(document.Get(), m_checks.All(), this)), m_list(new QTreeView),
      m_rules(new QToolButton), m_count(new QToolButton)
{
    setObjectName("problemsDock");
    m_list->setObjectName("problems");
    m_list->setModel(m_rows);
    m_list->setRootIsDecorated(false);
    m_list->setUniformRowHeights(true);
    m_list->setContextMenuPolicy(Qt::CustomContextMenu);
    m_list->header()->setStretchLastSection(true);
    m_list->header()->resizeSection(3, 380);
    m_rules->setObjectName("rules");
    m_rules->setPopupMode(QToolButton::InstantPopup);
    m_rules->setMenu(new QMenu(m_rules));
    m_count->setObjectName("problemCount");
    m_count->setAutoRaise(true);
    m_count->setFocusPolicy(Qt::TabFocus);
    auto* const inside = new QWidget;
    auto* const lines = new QHBoxLayout(inside);
    lines->setContentsMargins(0, 0, 0, 0);
    lines->addWidget(m_list);
    lines->addWidget(m_rules, 0, Qt::AlignTop);
    setWidget(inside);
    hide();

    m_soon.setSingleShot(true);
    m_soon.setInterval(0);
    connect(&m_soon, &QTimer::timeout, this, &Problems::Look);
    connect(&document, &Document::StepDone, this, &Problems::LookSoon);
    connect(&document, &Document::OwnersChanged, this, &Problems::Follow);
    connect(&document, &Document::Replaced, this, &Problems::LookAtAllSoon);
    connect(&document, &Document::ChecksOffChanged, this, [this] {
        FillRules();
        LookAtAllSoon();
    });
    const auto choose = [this](const QModelIndex& row) {
        Look();
        if (const auto at = static_cast<std::size_t>(row.row()); at < m_checks.All().size()) {
            Tell(at);
        }
    };
    connect(m_list, &QTreeView::clicked, this, choose);
    connect(m_list, &QTreeView::activated, this, choose);
    connect(m_list, &QTreeView::customContextMenuRequested, this, &Problems::ShowRowMenu);
    connect(m_count, &QToolButton::clicked, this, [this] { setVisible(!isVisible()); });
}

void Problems::LookSoon(const std::vector<FieldRef>& changed)
{
    m_changed.insert(m_changed.end(), changed.begin(), changed.end());
    m_soon.start();
}

void Problems::Follow(const Exchanged& exchanged)
{
    if (exchanged.Renumbers()) {
        LookAtAllSoon();
        return;
    }
    std::vector<FieldRef> changed;
    for (const std::size_t beam : exchanged.beams.in) {
        changed.push_back({false, beam, Field::Name});
    }
    for (const std::size_t wall : exchanged.walls.in) {
        changed.push_back({true, wall, Field::Name});
    }
    LookSoon(changed);
}

void Problems::LookAtAllSoon()
{
    m_isAllChanged = true;
    m_soon.start();
}

void Problems::Look()
{
    m_soon.stop();
    if (!m_isAllChanged && m_changed.empty()) {
        return;
    }
    m_rows->Renew([this] {
        if (m_isAllChanged) {
            m_checks.Renew();
        } else {
            m_checks.Update(m_changed);
        }
    });
    m_isAllChanged = false;
    m_changed.clear();
    std::vector<FieldRef> refs;
    for (const Problem& each : m_checks.All()) {
        if (refs.empty() || refs.back() != each.at) {
            refs.push_back(each.at);
        }
    }
    m_floor.SetProblems(std::move(refs));
    ShowCount();
}

void Problems::ShowCount()
{
    const std::size_t count = m_checks.All().size();
    m_count->setText(count == 0   ? tr("No problems")
                     : count == 1 ? QStringLiteral("\u26A0 ") + tr("1 problem")
                                  : QStringLiteral("\u26A0 ") + tr("%1 problems").arg(count));
}

void Problems::Go(int by)
{
    Look();
    const std::vector<Problem>& all = m_checks.All();
    if (all.empty()) {
        emit Said(tr("No problems"));
        return;
    }
    const std::optional<FieldRef> from = m_floor.Chosen();
    const auto isBefore = [](const Problem& problem, const FieldRef& ref) { return problem.at < ref; };
    const auto isAfter = [](const FieldRef& ref, const Problem& problem) { return ref < problem.at; };
    auto next = all.begin();
    if (by > 0 && from) {
        next = std::upper_bound(all.begin(), all.end(), *from, isAfter);
        next = next == all.end() ? all.begin() : next;
    } else if (by < 0) {
        next = from ? std::lower_bound(all.begin(), all.end(), *from, isBefore) : all.begin();
        next = (next == all.begin() ? all.end() : next) - 1;
        next = std::lower_bound(all.begin(), all.end(), next->at, isBefore);  // the first of its own
    }
    Tell(static_cast<std::size_t>(next - all.begin()));
}

// All that is wrong with the annotation of the problem, in the status line.
void Problems::Tell(std::size_t problem)
{
    const std::vector<Problem>& all = m_checks.All();
    const FieldRef at = all[problem].at;
    QStringList messages;
    for (const Problem& each : all) {
        if (each.at == at) {
            messages << Told(each.message);
        }
    }
    emit Picked(at);
    m_list->setCurrentIndex(m_rows->index(static_cast<int>(problem), 0));
    emit Said(QStringLiteral("%1, %2: %3 (%4)")
                  .arg(OwnerName(m_document.Get(), at), FieldName(m_document.Get(), at),
                       messages.join(QStringLiteral("; ")),
                       tr("%1 of %2").arg(problem + 1).arg(all.size())));
}

void Problems::FillRules()
{
    m_rules->menu()->clear();
    const std::vector<std::string>& off = m_document.Get().checksOff;
    m_rules->menu()->setToolTipsVisible(true);
    for (const Rule& rule : AllRules()) {
        QAction* const action = m_rules->menu()->addAction(Told(Message(rule.title)));
        action->setObjectName(QStringLiteral("rule-") + QString::fromLatin1(rule.key));
        action->setToolTip(Told(rule.source));
        action->setCheckable(true);
        action->setChecked(std::find(off.begin(), off.end(), rule.key) == off.end());
        connect(action, &QAction::triggered, this, [this, &rule](bool on) { Switch(rule, on); });
    }
}

void Problems::Switch(const Rule& rule, bool on)
{
    std::vector<std::string> off = m_document.Get().checksOff;
    std::erase(off, rule.key);
    if (!on) {
        off.emplace_back(rule.key);
    }
    m_document.SetChecksOff(std::move(off),
                            (on ? tr("rule on: %1") : tr("rule off: %1")).arg(Told(Message(rule.title))));
}

void Problems::ShowRowMenu(const QPoint& at)
{
    Look();
    const QModelIndex row = m_list->indexAt(at);
    if (!row.isValid()) {
        return;
    }
    const Rule& rule = *m_checks.All()[static_cast<std::size_t>(row.row())].rule;
    auto* const menu = new QMenu(m_list);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    connect(menu->addAction(tr("Do not check: %1").arg(Told(Message(rule.title)))), &QAction::triggered,
            this, [this, &rule] { Switch(rule, false); });
    menu->popup(m_list->viewport()->mapToGlobal(at));
}

void Problems::Retranslate()
{
    setWindowTitle(tr("Problems"));
    m_list->setAccessibleName(tr("Problems"));
    m_rules->setText(tr("Rules"));
    m_rules->setToolTip(tr("Which rules this project is checked by"));
    m_count->setToolTip(tr("Shows or hides the list of problems; F8 goes to the next one"));
    m_rows->Renew([] {});
    FillRules();
    ShowCount();
}

}  // namespace Desk
