#include "desk/plan/PlanItem.h"

#include <array>

namespace Desk {

namespace {

constexpr double ReadableHeight = 4.0;  // pixels
// Of the height that a drawing says: its lines are less apart than fonts for the screen need.
constexpr double CapitalPart = 0.88;

}  // namespace

const PlanColors& ColorsFor(bool dark)
{
    static const PlanColors onDark = {
        QColor(0x14, 0x18, 0x1E), QColor(0x9C, 0x4A, 0x46), QColor(0x4A, 0xC6, 0xD8),
        QColor(0x8A, 0x93, 0xA0), QColor(0xD8, 0xE4, 0xD0), QColor(0xF0, 0xC6, 0x74),
        QColor(0xFF, 0xB3, 0x00), QColor(0x1F, 0x5F, 0xB0), QColor(0x45, 0x4D, 0x58),
        QColor(0x6C, 0x75, 0x81), QColor(0xFF, 0x7B, 0x72)};
    static const PlanColors onLight = {
        QColor(0xFF, 0xFF, 0xFF), QColor(0xD9, 0x8C, 0x86), QColor(0x0B, 0x72, 0x85),
        QColor(0x6B, 0x74, 0x80), QColor(0x1B, 0x1F, 0x24), QColor(0x8A, 0x4B, 0x08),
        QColor(0xE0, 0x7B, 0x00), QColor(0xFF, 0xE0, 0x8A), QColor(0xBC, 0xC2, 0xCA),
        QColor(0x96, 0x9E, 0xA8), QColor(0xC6, 0x28, 0x28)};
    return dark ? onDark : onLight;
}

QPen LinePen(const PlanColors& colors, const QColor& color, double times)
{
    QPen pen(color, times * (colors.lineWidth > 0.0 ? colors.lineWidth : 1.0));
    pen.setCosmetic(colors.lineWidth <= 0.0);
    return pen;
}

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

double TextWidth(const QString& text, double height)
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
    return width * height / TextHeight;
}

bool IsReadable(double height, double scale) { return scale * height >= ReadableHeight; }

void DrawPlaced(QPainter& painter, const QPointF& corner, double turn, double height, const QString& text)
{
    static const double capital = [] {
        const double told = QFontMetricsF(PlanFont()).capHeight();
        return told > 0.0 ? told : TextHeight;
    }();
    const QTransform before = painter.transform();
    painter.translate(corner);
    painter.rotate(turn);
    painter.scale(height / TextHeight, CapitalPart * height / capital);
    painter.setFont(PlanFont());
    painter.drawText(QPointF(0, 0), text);
    painter.setTransform(before);
}

QTransform FrameOf(const TextPlace& place)
{
    const QPointF corner = OnSheet(place.at);
    return QTransform::fromTranslate(corner.x(), corner.y()).rotate(-place.angle);
}

}  // namespace Desk
