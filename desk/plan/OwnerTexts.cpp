#include "desk/plan/OwnerTexts.h"

#include <algorithm>
#include <array>

namespace Desk {

namespace {

constexpr double FieldGap = 160.0;    // mm between two texts of a line
constexpr double EmptyWidth = 900.0;  // mm of a label without a text

// Puts texts into lines.
class Lines {
public:
    void Add(Field field, const std::string& text, const char* before = "", const char* after = "")
    {
        if (text.empty()) {
            m_empty.push_back(field);
            return;
        }
        const QString drawn = before + QString::fromStdString(text) + after;
        const double width = TextWidth(drawn);
        const bool joined = *before == '+' || *before == ';';
        m_x += m_x > 0.0 && !joined ? FieldGap : 0.0;
        m_labels.push_back({field, drawn, QRectF(m_x, m_y, width, TextHeight)});
        m_x += width;
    }
    void End()
    {
        if (m_x > 0.0) {
            m_x = 0.0;
            m_y += LineStep;
        }
    }
    // Labels without a text are side by side in a line below.
    std::vector<Label> Take()
    {
        End();
        for (const Field field : m_empty) {
            m_labels.push_back({field, QString(), QRectF(m_x, m_y, EmptyWidth, TextHeight)});
            m_x += EmptyWidth + FieldGap;
        }
        return std::move(m_labels);
    }

private:
    std::vector<Label> m_labels;
    std::vector<Field> m_empty;
    double m_x = 0.0;
    double m_y = 0.0;
};

}  // namespace

const QFont& PlanFont()
{
    static const QFont font = [] {
        QFont made = QApplication::font();
        made.setPixelSize(static_cast<int>(TextHeight));
        made.setHintingPreference(QFont::PreferNoHinting);
        return made;
    }();
    return font;
}

double TextWidth(const QString& text)
{
    static const QFontMetricsF metrics(PlanFont());
    static const std::array<double, 128> ascii = [] {
        std::array<double, 128> widths{};
        for (std::size_t i = 0; i < widths.size(); ++i) {
            widths[i] = metrics.horizontalAdvance(QChar(static_cast<ushort>(i)));
        }
        return widths;
    }();
    double width = 0.0;
    for (const QChar ch : text) {
        width += ch.unicode() < ascii.size() ? ascii[ch.unicode()] : TextHeight;
    }
    return width;
}

std::vector<Label> BlockOf(const Beam& beam)
{
    Lines lines;
    lines.Add(Field::Name, beam.name);
    lines.Add(Field::Section, beam.section);
    lines.End();
    lines.Add(Field::Stirrup, beam.stirrup);
    lines.End();
    lines.Add(Field::TopBars, beam.topBars);
    lines.Add(Field::Erection, beam.erection, beam.topBars.empty() ? "(" : "+(", ")");
    const bool first = beam.topBars.empty() && beam.erection.empty();
    lines.Add(Field::BottomBars, beam.bottomBars, first ? "" : ";");
    lines.End();
    lines.Add(Field::Side, beam.side);
    lines.Add(Field::Torsion, beam.torsion);
    lines.End();
    lines.Add(Field::Elevation, beam.elevation);
    return lines.Take();
}

std::vector<Label> BlockOf(const Wall& wall)
{
    Lines lines;
    const std::string thickness = "  " + std::to_string(wall.thickness);
    lines.Add(Field::Name, wall.name, "", wall.thickness > 0 ? thickness.c_str() : "");
    lines.End();
    lines.Add(Field::HorizontalBars, wall.horizontalBars);
    lines.End();
    lines.Add(Field::VerticalBars, wall.verticalBars);
    return lines.Take();
}

QSizeF SizeOf(const std::vector<Label>& block)
{
    QRectF all;
    for (const Label& label : block) {
        all |= label.text.isEmpty() ? QRectF() : label.box;
    }
    return all.size();
}

}  // namespace Desk
