#include "desk/window/PlanTools.h"

#include <algorithm>
#include <utility>

#include "desk/plan/Points.h"
#include "desk/project/Making.h"

namespace Desk {

PlanTools::PlanTools(Document& document, FloorView& floor, Editing& editing)
    : QObject(&floor), m_document(document), m_floor(floor), m_editing(editing), m_box(new QFrame(&floor)),
      m_wanted(new QLabel), m_typed(new QLineEdit)
{
    constexpr int Width = 150;
    m_box->setObjectName("coordinateBox");
    m_box->setFrameShape(QFrame::StyledPanel);
    m_box->setAutoFillBackground(true);
    m_typed->setObjectName("coordinates");
    m_typed->setFixedWidth(Width);
    auto* const row = new QHBoxLayout(m_box);
    row->setContentsMargins(6, 3, 6, 3);
    row->addWidget(m_wanted);
    row->addWidget(m_typed);
    m_box->move(8, 8);
    m_box->hide();
    connect(m_typed, &QLineEdit::returnPressed, this, &PlanTools::TakeTyped);
    connect(&document, &Document::Replaced, this, [this] {
        End();
        m_last.reset();
        m_floor.SetHandles(m_document.From() == nullptr, true);
    });
    connect(&floor, &FloorView::EndDragged, &editing, &Editing::SetEnd);
    connect(&floor, &FloorView::TextDragged, &editing, &Editing::MoveText);
}

void PlanTools::Start(Tool tool)
{
    End();
    const bool isOnDrawing = m_document.From() != nullptr;
    if (tool == Tool::Move || tool == Tool::Copy) {
        const std::vector<FieldRef> owners = m_editing.Owners();
        const bool hasBeam =
            std::any_of(owners.begin(), owners.end(), [](const FieldRef& owner) { return !owner.isWall; });
        if (owners.empty() || (isOnDrawing && hasBeam)) {
            emit Said(owners.empty() ? tr("Choose a beam or a wall first")
                                     : tr("The beams of a drawing are where it has their outlines"));
            return;
        }
    }
    if (isOnDrawing && tool == Tool::Beam) {
        tool = Tool::Label;
    }
    m_tool = tool;
    m_floor.StartPointing([this](const PlanPoint& at) { Press(at); },
                          [this](const PlanPoint& at) { Point(at); });
    m_floor.setFocus();
    Ask();
}

void PlanTools::End()
{
    if (!IsActive()) {
        return;
    }
    m_tool = Tool::None;
    m_first.reset();
    m_box->hide();
    m_floor.EndPointing();
    m_floor.setFocus();
    emit Said({});
}

void PlanTools::StepBack()
{
    m_typed->clear();
    if (m_first) {
        m_first.reset();
        m_floor.setFocus();
        ShowSketch();
        Ask();
    } else {
        End();
    }
}

bool PlanTools::TakeKey(const QKeyEvent& key)
{
    if (!IsActive()) {
        return false;
    }
    if (key.key() == Qt::Key_Escape) {
        if (!key.isAutoRepeat()) {
            StepBack();
        }
        return true;
    }
    const bool plain = (key.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier)) == Qt::NoModifier;
    if (plain && !key.text().isEmpty() && key.text().front().isPrint()) {
        m_typed->setFocus();
        m_typed->insert(key.text());
        return true;
    }
    return key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
}

void PlanTools::Point(const PlanPoint& at)
{
    m_pointer = m_tool == Tool::Label ? at : m_floor.CaughtAt(at, m_first);
    ShowSketch();
}

void PlanTools::Press(const PlanPoint& at)
{
    Take(m_tool == Tool::Label ? at : m_floor.CaughtAt(at, m_first));
}

void PlanTools::TakeTyped()
{
    const std::optional<PlanPoint>& from = m_first ? m_first : m_last;
    if (const auto at = TypedPoint(m_typed->text().toStdString(), from, m_pointer)) {
        m_typed->clear();
        Take(*at);
    } else {
        emit Said(
            tr("\"%1\" is no position; \"8000,0\", \"@6000,0\" and \"@6000<90\" are").arg(m_typed->text()));
        m_typed->selectAll();
    }
}

void PlanTools::Take(const PlanPoint& at)
{
    m_last = at;
    m_pointer = at;
    if (m_tool == Tool::Label) {
        m_editing.AddLabel(at);
        return;
    }
    if (!m_first) {
        m_first = at;
    } else if (!IsSame(*m_first, at)) {
        const PlanPoint first = *m_first;
        const PlanPoint by{at.x - first.x, at.y - first.y};
        // Copies are all made from where the first one was taken.
        if (m_tool != Tool::Copy) {
            m_first.reset();
        }
        switch (m_tool) {
        case Tool::Beam: m_editing.AddBeam(first, at); break;
        case Tool::Wall: m_editing.AddWall(first, at); break;
        case Tool::Copy: m_editing.Copy(by); break;
        case Tool::Move:
            End();
            m_editing.Move(by);
            return;
        case Tool::Label:
        case Tool::None: break;
        }
    }
    ShowSketch();
    Ask();
}

// What the second press would make.
void PlanTools::ShowSketch()
{
    if (!IsActive()) {
        return;
    }
    std::vector<PlanLine> lines;
    if (m_first) {
        lines.push_back({*m_first, m_pointer});
        const PlanPoint by{m_pointer.x - m_first->x, m_pointer.y - m_first->y};
        const Project& project = m_document.Get();
        if (m_tool == Tool::Move || m_tool == Tool::Copy) {
            for (const FieldRef& owner : m_editing.Owners()) {
                const auto add = [&](const auto& each) {
                    lines.push_back({Shifted(each.start, by), Shifted(each.end, by)});
                };
                owner.isWall ? add(project.walls[owner.index]) : add(project.beams[owner.index]);
            }
        }
    }
    m_floor.SetSketch(std::move(lines), m_pointer);
}

void PlanTools::Ask()
{
    if (!IsActive()) {
        return;
    }
    const bool isFirst = !m_first;
    switch (m_tool) {
    case Tool::Beam: m_wanted->setText(isFirst ? tr("Start of the beam") : tr("End of the beam")); break;
    case Tool::Label: m_wanted->setText(tr("Outline without a label")); break;
    case Tool::Wall: m_wanted->setText(isFirst ? tr("Start of the wall") : tr("End of the wall")); break;
    case Tool::Move: m_wanted->setText(isFirst ? tr("Move from") : tr("Move to")); break;
    case Tool::Copy: m_wanted->setText(isFirst ? tr("Copy from") : tr("Copy to")); break;
    case Tool::None: break;
    }
    m_typed->setPlaceholderText(isFirst ? QStringLiteral("8000,0") : QStringLiteral("@6000<90"));
    m_typed->setToolTip(
        tr("A position: x,y in mm; @x,y or @length<degrees from the one before; or the length alone"));
    m_typed->setAccessibleName(m_wanted->text());
    m_box->adjustSize();
    m_box->show();
    emit Said(tr("%1: press a position on the plan or type it; Esc goes back").arg(m_wanted->text()));
}

void PlanTools::Retranslate() { Ask(); }

}  // namespace Desk
