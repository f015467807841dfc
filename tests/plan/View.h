// A floor that is shown, with what it signals.
#pragma once

#include <optional>
#include <tuple>
#include <vector>

#include <QtTest/QtTest>

#include "desk/plan/FloorView.h"

namespace Desk {

// Of texts that are not empty.
inline std::vector<FieldRef> AllRefs(const Project& project)
{
    std::vector<FieldRef> refs;
    for (const bool wall : {false, true}) {
        for (std::size_t i = 0; i < (wall ? project.walls.size() : project.beams.size()); ++i) {
            for (const Field field : wall ? WallFields() : BeamFields()) {
                if (!TextAt(project, {wall, i, field}).empty()) {
                    refs.push_back({wall, i, field});
                }
            }
        }
    }
    return refs;
}

struct View : FloorView {
    explicit View(const Project& project, const Backdrop* behind = nullptr)
    {
        resize(1200, 800);
        SetProject(&project, behind);
        show();
        connect(this, &FloorView::Picked, [this](const FieldRef& ref) { picked.push_back(ref); });
        connect(this, &FloorView::NothingPicked, [this] { ++nothing; });
        connect(this, &FloorView::PanelAsked, [this](const FieldRef& ref) { panel = ref; });
        connect(this, &FloorView::MarkPicked, [this](std::size_t at) { mark = at; });
        connect(this, &FloorView::EndDragged, [this](const FieldRef& ref, bool start, const PlanPoint& to) {
            dragged = {ref, start, to};
        });
        connect(this, &FloorView::TextDragged, [this](const FieldRef& ref, const PlanPoint& to) {
            text = {ref, to};
        });
    }
    [[nodiscard]] QPoint Middle(const FieldRef& ref) const
    {
        return viewport()->mapFromGlobal(OnScreen(ref).center());
    }
    using FloorView::PanBy;
    std::vector<FieldRef> picked;
    int nothing = 0;
    void Press(const QPoint& at) { QTest::mouseClick(viewport(), Qt::LeftButton, {}, at); }
    [[nodiscard]] QPoint InView(const PlanPoint& at) const
    {
        return viewport()->mapFromGlobal(OnScreen(at));
    }
    std::optional<FieldRef> panel;
    std::optional<std::size_t> mark;
    std::optional<std::tuple<FieldRef, bool, PlanPoint>> dragged;
    std::optional<std::pair<FieldRef, PlanPoint>> text;  // that was dragged
};

}  // namespace Desk
