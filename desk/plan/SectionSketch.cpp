#include "desk/plan/SectionSketch.h"

#include <algorithm>
#include <cmath>

namespace Desk {

namespace {

constexpr int LeftMargin = 46;  // pixels, for the height
constexpr int NoteGap = 10;     // between the section and its notes
constexpr int TopMargin = 26;
constexpr int BottomMargin = 30;  // for the width
constexpr int LineHeight = 16;

QString Where(Field field)
{
    switch (field) {
    case Field::LeftEnd: return SectionSketch::tr("at the left end");
    case Field::RightEnd: return SectionSketch::tr("at the right end");
    default: return SectionSketch::tr("in the span");
    }
}

}  // namespace

SectionSketch::SectionSketch(QWidget* parent) : QWidget(parent) { setMinimumSize(180, 180); }

void SectionSketch::SetBeam(const Beam* beam, Field field)
{
    m_isEmpty = beam == nullptr;
    m_field = field;
    m_layout = beam != nullptr ? LayOutSection(*beam, field) : SectionLayout();
    setToolTip(Warnings().join('\n'));
    setAccessibleDescription(Spoken());
    update();
}

void SectionSketch::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(rect(), palette().color(QPalette::Base));
    if (m_isEmpty) {
        return;
    }
    const QStringList warnings = Warnings();
    const int below = BottomMargin + LineHeight * static_cast<int>(warnings.size());
    const int right = NotesWidth() + 2 * NoteGap;
    const QRectF room(LeftMargin, TopMargin, std::max(20, width() - LeftMargin - right),
                      std::max(20, height() - TopMargin - below));
    const Section size = m_layout.size;
    if (size.width > 0) {
        const double scale = std::min(room.width() / size.width, room.height() / size.height);
        const QRectF section(room.left() + (room.width() - size.width * scale) / 2,
                             room.top() + (room.height() - size.height * scale) / 2, size.width * scale,
                             size.height * scale);
        PaintConcrete(painter, QTransform(scale, 0, 0, scale, section.left(), section.top()));
        PaintSizes(painter, section);
        PaintNotes(painter, room, section);
        painter.setPen(palette().color(QPalette::PlaceholderText));
        painter.drawText(QRectF(8, 4, width() - 16, LineHeight), Qt::AlignLeft, Where(m_field));
    }
    painter.setPen(Warning());
    const int count = static_cast<int>(warnings.size());
    for (int i = 0; i < count; ++i) {
        const QRectF line(8, height() - 6 - LineHeight * (count - i), width() - 16, LineHeight);
        painter.drawText(line, Qt::AlignLeft | Qt::AlignVCenter,
                         painter.fontMetrics().elidedText(warnings[i], Qt::ElideRight, width() - 16));
    }
}

void SectionSketch::PaintConcrete(QPainter& painter, const QTransform& toWidget) const
{
    const Section size = m_layout.size;
    const bool dark = palette().color(QPalette::Base).lightness() < 128;
    painter.setPen(QPen(palette().color(QPalette::Text), 1.6));
    painter.setBrush(dark ? QColor(0x33, 0x38, 0x40) : QColor(0xE6, 0xE8, 0xEB));
    painter.drawRect(toWidget.mapRect(QRectF(0, 0, size.width, size.height)));
    if (m_layout.stirrup > 0) {
        const double edge = m_layout.cover + m_layout.stirrup / 2.0;
        const double pen = std::max(1.2, m_layout.stirrup * toWidget.m11());
        painter.setPen(QPen(dark ? QColor(0x4C, 0xB8, 0x78) : QColor(0x1B, 0x80, 0x46), pen));
        painter.setBrush(Qt::NoBrush);
        const QRectF hoop(edge, edge, size.width - 2 * edge, size.height - 2 * edge);
        painter.drawRoundedRect(toWidget.mapRect(hoop), 3 * pen, 3 * pen);
        for (const double x : m_layout.innerLegs) {
            painter.drawLine(toWidget.map(QLineF(x, edge, x, size.height - edge)));
        }
    }
    painter.setPen(Qt::NoPen);
    painter.setBrush(dark ? QColor(0xFF, 0x8A, 0x65) : QColor(0xB7, 0x2F, 0x17));
    for (const BarDot& dot : m_layout.dots) {
        const double radius = std::max(1.5, dot.diameter * toWidget.m11() / 2.0);
        painter.drawEllipse(toWidget.map(QPointF(dot.x, dot.y)), radius, radius);
    }
}

void SectionSketch::PaintSizes(QPainter& painter, const QRectF& section) const
{
    constexpr int Gap = 12;
    constexpr int Tick = 4;
    painter.setPen(QPen(palette().color(QPalette::PlaceholderText), 1.0));
    const double y = section.bottom() + Gap;
    painter.drawLine(QPointF(section.left(), y), QPointF(section.right(), y));
    const double x = section.left() - Gap;
    painter.drawLine(QPointF(x, section.top()), QPointF(x, section.bottom()));
    for (const double end : {section.left(), section.right()}) {
        painter.drawLine(QPointF(end - Tick, y + Tick), QPointF(end + Tick, y - Tick));
    }
    for (const double end : {section.top(), section.bottom()}) {
        painter.drawLine(QPointF(x - Tick, end + Tick), QPointF(x + Tick, end - Tick));
    }
    painter.setPen(palette().color(QPalette::Text));
    painter.drawText(QRectF(section.left() - 30, y + 1, section.width() + 60, LineHeight), Qt::AlignHCenter,
                     QString::number(m_layout.size.width));
    painter.save();
    painter.translate(x - 3, section.center().y());
    painter.rotate(-90);
    painter.drawText(QRectF(-60, -LineHeight, 120, LineHeight), Qt::AlignHCenter | Qt::AlignBottom,
                     QString::number(m_layout.size.height));
    painter.restore();
}

// A note's second line: the steel that its text gives, and the steel that is required.
QString SectionSketch::SteelOf(const SectionNote& note)
{
    if (note.area <= 0.0) {
        return {};
    }
    return note.required > 0 ? tr("%1 of %2 mm²").arg(std::lround(note.area)).arg(note.required)
                             : tr("%1 mm²").arg(std::lround(note.area));
}

// As much as the notes need, at most half of the sketch.
int SectionSketch::NotesWidth() const
{
    int most = 0;
    for (const SectionNote& note : m_layout.notes) {
        most = std::max({most, fontMetrics().horizontalAdvance(QString::fromStdString(note.text)),
                         fontMetrics().horizontalAdvance(SteelOf(note))});
    }
    constexpr int Rounding = 2;  // advances are no whole pixels
    return std::min(most + Rounding, width() / 2);
}

// Each text beside its bars, with its steel.
void SectionSketch::PaintNotes(QPainter& painter, const QRectF& room, const QRectF& section) const
{
    double middle = section.center().y() - LineHeight;
    const int across = NotesWidth();
    const auto draw = [&](double y, const QString& text, const QColor& color) {
        painter.setPen(color);
        painter.drawText(QRectF(room.right() + NoteGap, y, across, LineHeight),
                         Qt::AlignLeft | Qt::AlignVCenter | Qt::TextDontClip,
                         painter.fontMetrics().elidedText(text, Qt::ElideRight, across));
    };
    for (const SectionNote& note : m_layout.notes) {
        const bool sides = note.field == Field::Side || note.field == Field::Torsion;
        const bool bottom = note.field == Field::BottomBars;
        const double y = bottom ? section.bottom() - 2 * LineHeight : sides ? middle : section.top();
        middle += sides ? LineHeight : 0;
        const bool faulty = IsFaulty(note.field);
        draw(y, QString::fromStdString(note.text), faulty ? Warning() : palette().color(QPalette::Text));
        draw(y + LineHeight, SteelOf(note),
             faulty ? Warning() : palette().color(QPalette::PlaceholderText));
    }
}

// All that is drawn, for who does not see it.
QString SectionSketch::Spoken() const
{
    QStringList parts;
    if (!m_isEmpty && m_layout.size.width > 0) {
        parts << QStringLiteral("%1x%2").arg(m_layout.size.width).arg(m_layout.size.height)
              << Where(m_field);
    }
    for (const SectionNote& note : m_layout.notes) {
        parts << QString::fromStdString(note.text) << SteelOf(note);
    }
    parts += m_isEmpty ? QStringList() : Warnings();
    parts.removeAll(QString());
    return parts.join(QStringLiteral(", "));
}

QStringList SectionSketch::Warnings() const
{
    QStringList warnings;
    const auto text = [](Fault fault, Field field) {
        switch (fault) {
        case Fault::NoSize: return tr("There is no section to draw");
        case Fault::TooLittleSteel: return tr("Less steel than required");
        case Fault::TooWide: return tr("Too many bars for the width");
        case Fault::Unreadable: break;
        }
        switch (field) {
        case Field::Section: return tr("The section cannot be read");
        case Field::Stirrup: return tr("The stirrups cannot be read");
        default: return tr("Bars cannot be read");
        }
    };
    for (const SectionFault& fault : m_layout.faults) {
        const QString line = text(fault.fault, fault.field);
        if (!warnings.contains(line)) {
            warnings.push_back(line);
        }
    }
    return warnings;
}

bool SectionSketch::IsFaulty(Field field) const
{
    return std::any_of(m_layout.faults.begin(), m_layout.faults.end(),
                       [field](const SectionFault& fault) { return fault.field == field; });
}

QColor SectionSketch::Warning() const { return palette().color(QPalette::BrightText); }

}  // namespace Desk
