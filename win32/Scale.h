// Positions in pixels of the windows and of the system: converted here only.
#pragma once

#include <algorithm>

#include "platform/windows/WindowRecord.h"
#include "win32/Native.h"

// The system's pixels for the row of a list say how large a pop-up is shown. They are a whole number, so
// that rows are where the window layer takes them to be.
class Scale {
public:
    constexpr explicit Scale(int row = RowHeight) : m_row(row) {}
    static constexpr Scale OfDpi(int dpi)
    {
        constexpr int UsualDpi = 96;  // at which both have pixels of the same size
        return Scale(std::max(1, dpi * RowHeight / UsualDpi));
    }

    [[nodiscard]] int Row() const { return m_row; }
    [[nodiscard]] double Zoom() const { return static_cast<double>(m_row) / RowHeight; }

    // Edges are rounded one by one: adjacent rectangles stay adjacent.
    [[nodiscard]] int ToSystem(int pixels) const
    {
        return Divide(2 * pixels * m_row + RowHeight, 2 * RowHeight);
    }
    [[nodiscard]] Native::Area ToSystem(const CRect& rect) const
    {
        const int x = ToSystem(rect.left);
        const int y = ToSystem(rect.top);
        return {x, y, ToSystem(rect.right) - x, ToSystem(rect.bottom) - y};
    }
    // The pixel that contains a position.
    [[nodiscard]] int FromSystem(int position) const { return Divide(position * RowHeight, m_row); }

private:
    static int Divide(int number, int by)  // rounds down, also below 0
    {
        return number >= 0 ? number / by : -((by - 1 - number) / by);
    }

    int m_row;
};
