// Rectangles on the plan at any angle, and which of many a new one would lie on.
#pragma once

#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <unordered_map>
#include <vector>

#include "desk/project/Project.h"

namespace Desk {

inline PlanPoint Plus(const PlanPoint& point, const PlanPoint& direction, double distance)
{
    return {point.x + direction.x * distance, point.y + direction.y * distance};
}
inline double Dot(const PlanPoint& a, const PlanPoint& b) { return a.x * b.x + a.y * b.y; }
inline PlanPoint WayBetween(const PlanPoint& a, const PlanPoint& b) { return {b.x - a.x, b.y - a.y}; }
// A quarter turn to the left.
inline PlanPoint LeftOf(const PlanPoint& direction) { return {-direction.y, direction.x}; }

struct PlanBox {
    PlanPoint middle;
    PlanPoint along;  // of length 1
    double halfLength = 0.0;
    double halfWidth = 0.0;

    // How far the box reaches from its middle in a direction.
    [[nodiscard]] double Reach(const PlanPoint& direction) const
    {
        return halfLength * std::abs(Dot(along, direction)) +
               halfWidth * std::abs(Dot(LeftOf(along), direction));
    }
    [[nodiscard]] bool Meets(const PlanBox& other) const
    {
        const PlanPoint way = WayBetween(middle, other.middle);
        for (const PlanPoint& axis : std::array{along, LeftOf(along), other.along, LeftOf(other.along)}) {
            if (std::abs(Dot(way, axis)) >= Reach(axis) + other.Reach(axis)) {
                return false;
            }
        }
        return true;
    }
};

// PlanBox around a stretch from one point to another.
inline PlanBox BoxBetween(const PlanPoint& from, const PlanPoint& to, double width)
{
    const PlanPoint way = WayBetween(from, to);
    const double length = std::hypot(way.x, way.y);
    const PlanPoint along = length > 0.0 ? PlanPoint{way.x / length, way.y / length} : PlanPoint{1.0, 0.0};
    return {{(from.x + to.x) / 2, (from.y + to.y) / 2}, along, length / 2, width / 2};
}

// PlanBoxes with what they stand for, found again by the squares of the plan that they touch.
class PlanBoxes {
public:
    void Add(const PlanBox& box, std::size_t owner)
    {
        const Squares squares(box);
        if (squares.AreTooMany()) {
            m_large.push_back(m_boxes.size());
        } else {
            squares.ForEach([&](std::uint64_t square) { m_squares[square].push_back(m_boxes.size()); });
        }
        m_boxes.push_back({box, owner});
    }

    // Calls meet(owner) for each box that the given one lies on; twice for one that shares several squares.
    template <class Meet>
    void ForMet(const PlanBox& box, const Meet& meet) const
    {
        const auto visit = [&](const std::vector<std::size_t>& indices) {
            for (const std::size_t index : indices) {
                if (m_boxes[index].box.Meets(box)) {
                    meet(m_boxes[index].owner);
                }
            }
        };
        visit(m_large);
        Squares(box).ForEach([&](std::uint64_t square) {
            if (const auto found = m_squares.find(square); found != m_squares.end()) {
                visit(found->second);
            }
        });
    }
    [[nodiscard]] bool IsMet(const PlanBox& box) const
    {
        bool isMet = false;
        ForMet(box, [&](std::size_t) { isMet = true; });
        return isMet;
    }

private:
    struct Entry {
        PlanBox box;
        std::size_t owner;
    };

    // Those that a box can touch.
    class Squares {
    public:
        explicit Squares(const PlanBox& box)
            : m_left(At(box.middle.x - box.Reach({1.0, 0.0}))),
              m_right(At(box.middle.x + box.Reach({1.0, 0.0}))),
              m_bottom(At(box.middle.y - box.Reach({0.0, 1.0}))),
              m_top(At(box.middle.y + box.Reach({0.0, 1.0})))
        {
        }

        [[nodiscard]] bool AreTooMany() const
        {
            return (m_right - m_left + 1) * (m_top - m_bottom + 1) > 10'000;
        }
        // No more than the limit, whatever the box.
        template <class Visit>
        void ForEach(const Visit& visit) const
        {
            for (std::int64_t x = m_left; !AreTooMany() && x <= m_right; ++x) {
                for (std::int64_t y = m_bottom; y <= m_top; ++y) {
                    visit(static_cast<std::uint64_t>(x) << 32U ^
                          (static_cast<std::uint64_t>(y) & 0xFFFFFFFFU));
                }
            }
        }

    private:
        static std::int64_t At(double position)
        {
            constexpr double Side = 3000.0;  // mm, about a label
            return static_cast<std::int64_t>(std::floor(position / Side));
        }

        std::int64_t m_left;
        std::int64_t m_right;
        std::int64_t m_bottom;
        std::int64_t m_top;
    };

    std::vector<Entry> m_boxes;
    std::vector<std::size_t> m_large;
    std::unordered_map<std::uint64_t, std::vector<std::size_t>> m_squares;
};

}  // namespace Desk
