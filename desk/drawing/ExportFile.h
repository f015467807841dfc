// Writes the pairs of group codes and values of an ASCII DXF of version AC1009.
#pragma once

#include <string>
#include <string_view>

#include "desk/project/Backdrop.h"

namespace Desk {

// Which point of a text its position is.
enum class Anchor { Start, Middle };

class ExportFile {
public:
    void Line(const char* layer, const PlanLine& line);
    void Circle(const char* layer, const PlanPoint& middle, double radius);
    // In UTF-8; a character that GBK lacks becomes \U+XXXX.
    void Text(const char* layer, const PlanText& text, Anchor anchor = Anchor::Start);
    // The whole file: header and tables, then what was added.
    [[nodiscard]] std::string Finish() const;

private:
    void Begin(const char* type, const char* layer);
    void Point(int number, const PlanPoint& point);
    void Span(const PlanPoint& point, double around);

    std::string m_entities;
    unsigned m_handle = 0x20;
    bool m_isEmpty = true;
    PlanPoint m_least;
    PlanPoint m_most;
};

}  // namespace Desk
