// ChoiceDelegate: a row of texts on offer: a sign before the text, and what is told of it beside it in a
// quiet colour.
#pragma once

#include "desk/Toolkit.h"

namespace Desk {

class ChoiceDelegate : public QStyledItemDelegate {
public:
    // What a row's model tells it besides the text, its font and its tooltip.
    enum Role {
        Lead = Qt::UserRole,  // a key or a mark
        AtRight,              // short; the text gives way to it
        After,                // gives way to the text
        IsAside,              // the row itself is a title
    };

    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option,
                                 const QModelIndex& index) const override
    {
        constexpr int Air = 4;  // pixels
        return QStyledItemDelegate::sizeHint(option, index) + QSize(0, Air);
    }
};

}  // namespace Desk
