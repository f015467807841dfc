#include "desk/plan/SectionLayout.h"

#include <algorithm>
#include <cmath>
#include <numeric>

#include "desk/reading/Bars.h"
#include "desk/reading/Stirrup.h"

namespace Desk {

namespace {

constexpr double ClearGap = 25.0;  // mm, between rows
constexpr int DefaultStirrup = 8;  // mm, where the text gives none

// Puts texts of one beam into its layout.
class Builder {
public:
    Builder(const Beam& beam, Field field) : m_beam(beam), m_field(field) {}

    SectionLayout Build()
    {
        const std::optional<Section> size = ReadSection(m_beam.section);
        if (!size || size->width == 0) {
            AddFault(m_beam.section.empty() ? Fault::NoSize : Fault::Unreadable, Field::Section);
            return m_layout;
        }
        m_layout.size = *size;
        m_layout.cover =
            std::min<double>(CoverOf(m_beam.concreteGrade), std::min(size->width, size->height) / 6.0);
        AddStirrup();
        const double top = AddRows(TopBars(), true);
        const double bottom = AddRows(Read(m_beam.bottomBars, Field::BottomBars), false);
        NoteSteel(Field::BottomBars, m_beam.bottomBars, m_beam.area.bottom);
        AddSides(top, bottom);
        return m_layout;
    }

private:
    void AddFault(Fault fault, Field field) { m_layout.faults.push_back({fault, field}); }

    // Nothing for an empty text; for one that is no bars a fault as well.
    BarRows Read(const std::string& text, Field field)
    {
        const std::optional<Bars> bars = ReadBars(text);
        if (!bars && !text.empty()) {
            AddFault(Fault::Unreadable, field);
        }
        m_rowsField = field;
        return bars ? bars->RowsFromTop() : BarRows();
    }

    void AddStirrup()
    {
        const std::optional<Stirrup> stirrup = ReadStirrup(m_beam.stirrup);
        if (!stirrup) {
            if (!m_beam.stirrup.empty()) {
                AddFault(Fault::Unreadable, Field::Stirrup);
            }
            return;
        }
        m_layout.stirrup = stirrup->diameter;
        const double left = m_layout.cover + stirrup->diameter / 2.0;
        const double width = m_layout.size.width - 2.0 * left;
        for (int leg = 1; leg + 1 < stirrup->legs; ++leg) {
            m_layout.innerLegs.push_back(left + width * leg / (stirrup->legs - 1));
        }
    }

    // At an end its bars, all of them; in the span the through bars with the erection bars between.
    BarRows TopBars()
    {
        const bool left = m_field == Field::LeftEnd && !m_beam.leftEnd.empty();
        const bool right = m_field == Field::RightEnd && !m_beam.rightEnd.empty();
        if (left || right) {
            const std::string& text = left ? m_beam.leftEnd : m_beam.rightEnd;
            const Field field = left ? Field::LeftEnd : Field::RightEnd;
            BarRows read = Read(text, field);
            NoteSteel(field, text, left ? m_beam.area.leftEnd : m_beam.area.rightEnd);
            return read;
        }
        const BarRows erection = Read(m_beam.erection, Field::Erection);
        BarRows read = Read(m_beam.topBars, Field::TopBars);
        const int required = m_field == Field::LeftEnd    ? m_beam.area.leftEnd
                             : m_field == Field::RightEnd ? m_beam.area.rightEnd
                                                          : m_beam.area.top;
        NoteSteel(Field::TopBars, m_beam.topBars, required);
        if (!read.empty() && !erection.empty()) {
            std::vector<int>& row = read.front();
            const std::vector<int>& between = erection.front();
            row.insert(row.begin() + static_cast<std::ptrdiff_t>((row.size() + 1) / 2), between.begin(),
                       between.end());
        }
        return read;
    }

    void NoteSteel(Field field, const std::string& text, int required)
    {
        if (text.empty()) {
            return;
        }
        const std::optional<Bars> read = ReadBars(text);
        m_layout.notes.push_back({field, text, read ? read->Area() : 0.0, required});
        if (read && std::lround(read->Area()) < required) {
            AddFault(Fault::TooLittleSteel, field);
        }
    }

    // Lays rows from a face inwards; answers the height in the section that they reach to.
    double AddRows(BarRows rows, bool fromTop)
    {
        const double stirrup = m_layout.stirrup != 0 ? m_layout.stirrup : DefaultStirrup;
        double depth = m_layout.cover + stirrup;
        const double left = depth;
        const double right = m_layout.size.width - depth;
        // Texts name rows from the top down; the last one of the bottom bars lies at the face.
        if (!fromTop) {
            std::reverse(rows.begin(), rows.end());
        }
        int thickestOfAll = 0;
        for (const std::vector<int>& row : rows) {
            thickestOfAll = std::max(thickestOfAll, *std::max_element(row.begin(), row.end()));
        }
        std::size_t fromFace = 0;
        for (const std::vector<int>& row : rows) {
            const int thickest = *std::max_element(row.begin(), row.end());
            AddRow(row, left, right, ClearDistance(!fromTop, thickestOfAll, fromFace++),
                   fromTop ? depth + thickest / 2.0 : m_layout.size.height - depth - thickest / 2.0);
            depth += thickest + ClearGap;
        }
        return fromTop ? depth : m_layout.size.height - depth;
    }

    void AddRow(const std::vector<int>& row, double left, double right, double clear, double y)
    {
        const int steel = std::accumulate(row.begin(), row.end(), 0);
        const auto gaps = static_cast<double>(row.size() - 1);
        const double gap = gaps > 0 ? (right - left - steel) / gaps : 0.0;
        if ((gaps > 0 && gap < clear) || steel > right - left) {
            AddFault(Fault::TooWide, m_rowsField);
        }
        double x = row.size() == 1 ? (left + right - steel) / 2.0 : left;
        for (const int diameter : row) {
            m_layout.dots.push_back({x + diameter / 2.0, y, diameter});
            x += diameter + gap;
        }
    }

    // Side and torsion bars in pairs between the rows; an odd one goes to the left.
    void AddSides(double top, double bottom)
    {
        for (const Field field : {Field::Side, Field::Torsion}) {
            const std::string& text = field == Field::Side ? m_beam.side : m_beam.torsion;
            const BarRows bars = Read(text, field);
            if (!text.empty()) {
                m_layout.notes.push_back({field, text, 0.0, 0});
            }
            if (bars.empty()) {
                continue;
            }
            const std::vector<int>& all = bars.front();
            const std::size_t levels = (all.size() + 1) / 2;
            const double face =
                m_layout.cover + (m_layout.stirrup != 0 ? m_layout.stirrup : DefaultStirrup);
            for (std::size_t i = 0; i < all.size(); ++i) {
                const double half = all[i] / 2.0;
                const std::size_t level = i / 2 + 1;
                const double y =
                    top + (bottom - top) * static_cast<double>(level) / static_cast<double>(levels + 1);
                m_layout.dots.push_back(
                    {i % 2 == 0 ? face + half : m_layout.size.width - face - half, y, all[i]});
            }
        }
    }

    const Beam& m_beam;
    Field m_field;
    Field m_rowsField = Field::TopBars;
    SectionLayout m_layout;
};

}  // namespace

SectionLayout LayOutSection(const Beam& beam, Field field) { return Builder(beam, field).Build(); }

}  // namespace Desk
