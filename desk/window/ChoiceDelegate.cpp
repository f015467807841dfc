#include "desk/window/ChoiceDelegate.h"

#include <utility>

namespace Desk {

namespace {

constexpr int Gap = 8;  // pixels between text and what is beside it

}  // namespace

void ChoiceDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                           const QModelIndex& index) const
{
    QStyleOptionViewItem row = option;
    initStyleOption(&row, index);
    const QString text = std::exchange(row.text, QString());
    const QWidget* const widget = option.widget;
    const QStyle& style = *(widget != nullptr ? widget->style() : QApplication::style());
    style.drawControl(QStyle::CE_ItemViewItem, &row, painter, widget);  // its ground

    const bool isMarked = row.state.testFlag(QStyle::State_Selected);
    const QColor ink = row.palette.color(isMarked ? QPalette::HighlightedText : QPalette::Text);
    const QColor quiet = isMarked ? ink : row.palette.color(QPalette::PlaceholderText);
    const auto draw = [&](const QRect& room, Qt::Alignment side, const QFont& font, const QColor& color,
                          const QString& words) {
        painter->setFont(font);
        painter->setPen(color);
        painter->drawText(room, static_cast<int>(side | Qt::AlignVCenter) | Qt::TextSingleLine,
                          QFontMetrics(font).elidedText(words, Qt::ElideRight, room.width()));
    };
    painter->save();
    QRect room = row.rect.adjusted(4, 0, -4, 0);
    if (index.data(IsAside).toBool()) {
        draw(room, Qt::AlignLeft, row.font, quiet, text);
        painter->restore();
        return;
    }
    const QFont plain = option.font;
    const int leadWidth = QFontMetrics(plain).horizontalAdvance(QStringLiteral("00"));
    draw({room.left(), room.top(), leadWidth, room.height()}, Qt::AlignLeft, plain,
         isMarked ? ink : row.palette.color(QPalette::Highlight), index.data(Lead).toString());
    room.setLeft(room.left() + leadWidth);
    if (const QString aside = index.data(AtRight).toString(); !aside.isEmpty()) {
        const int width = QFontMetrics(plain).horizontalAdvance(aside) + 1;
        draw({room.right() - width, room.top(), width + 1, room.height()}, Qt::AlignRight, plain, quiet,
             aside);
        room.setRight(room.right() - width - Gap);
    }
    const int width = QFontMetrics(row.font).horizontalAdvance(text) + 1;
    draw({room.left(), room.top(), qMin(width, room.width()), room.height()}, Qt::AlignLeft, row.font, ink,
         text);
    room.setLeft(room.left() + width + Gap);
    if (const QString after = index.data(After).toString(); !after.isEmpty() && room.width() > 2 * Gap) {
        draw(room, Qt::AlignLeft, plain, quiet, after);
    }
    painter->restore();
}

}  // namespace Desk
