#include "desk/window/Theme.h"
#include "desk/Toolkit.h"

namespace Desk {

namespace {

struct Tone {
    QPalette::ColorRole role;
    QRgb light;
    QRgb dark;
};

constexpr Tone Tones[] = {
    {QPalette::Window, 0xFFF3F4F6, 0xFF23272E},      {QPalette::WindowText, 0xFF1B1F24, 0xFFE3E6EA},
    {QPalette::Base, 0xFFFFFFFF, 0xFF1A1D22},        {QPalette::AlternateBase, 0xFFF7F8FA, 0xFF20242A},
    {QPalette::Text, 0xFF1B1F24, 0xFFE3E6EA},        {QPalette::Button, 0xFFE9EBEF, 0xFF31363F},
    {QPalette::ButtonText, 0xFF1B1F24, 0xFFE3E6EA},  {QPalette::ToolTipBase, 0xFFFFFFFF, 0xFF31363F},
    {QPalette::ToolTipText, 0xFF1B1F24, 0xFFE3E6EA}, {QPalette::PlaceholderText, 0xFF6B7480, 0xFF949CA8},
    {QPalette::Highlight, 0xFF1F6FD0, 0xFF3D86DE},   {QPalette::HighlightedText, 0xFFFFFFFF, 0xFFFFFFFF},
    {QPalette::Link, 0xFF1F6FD0, 0xFF6AA8F0},        {QPalette::BrightText, 0xFFC62828, 0xFFFF7B72},
    {QPalette::Light, 0xFFFFFFFF, 0xFF3C424C},       {QPalette::Midlight, 0xFFF0F1F4, 0xFF363C45},
    {QPalette::Mid, 0xFFB9BFC8, 0xFF4A515C},         {QPalette::Dark, 0xFF9BA2AD, 0xFF15181C},
    {QPalette::Shadow, 0xFF6B7480, 0xFF0C0E10},
};

QPalette PaletteFor(bool dark)
{
    QPalette palette;
    for (const Tone& tone : Tones) {
        palette.setColor(tone.role, QColor::fromRgb(dark ? tone.dark : tone.light));
    }
    const QColor faint = QColor::fromRgb(dark ? 0xFF6C7480 : 0xFF9AA1AC);
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, role, faint);
    }
    palette.setColor(QPalette::Disabled, QPalette::Base, palette.color(QPalette::Active, QPalette::Window));
    palette.setColor(QPalette::Disabled, QPalette::Highlight, faint);
    return palette;
}

}  // namespace

bool ApplyAppearance(Appearance appearance)
{
    constexpr int HalfLight = 128;
    static const bool systemIsDark =
        QGuiApplication::palette().color(QPalette::Window).lightness() < HalfLight;
    const bool dark = appearance == Appearance::Dark || (appearance == Appearance::System && systemIsDark);
    if (QApplication::style()->name() != QLatin1String("fusion")) {
        QApplication::setStyle(QStringLiteral("fusion"));
    }
    QApplication::setPalette(PaletteFor(dark));
    return dark;
}

}  // namespace Desk
