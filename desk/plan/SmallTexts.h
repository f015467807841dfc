// SmallTexts: the annotations that would be too small to be read, drawn at a least size where there is
// room.
#pragma once

#include <optional>
#include <utility>
#include <vector>

#include "desk/plan/OwnerItem.h"

namespace Desk {

// Local coordinates: the sheet's.
class SmallTexts : public PlanItem {
public:
    SmallTexts();

    [[nodiscard]] QRectF boundingRect() const override { return m_all; }
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

    // Finds room for texts that are to be at least so high, in mm: first for names, then for the other
    // lines of labels from the top, then for texts at ends and in place. None lies on another; those for
    // which there is no room are not drawn. The order of the items decides, so that moving the plan changes
    // nothing.
    // Borrows the beams and walls, which are in the same scene, until it is called again.
    void Choose(const std::vector<OwnerItem*>& owners, double height);
    // The same again after the texts of some of them changed.
    void Renew(const std::vector<OwnerItem*>& changed);
    // An annotation that is drawn in any case, above the others; nothing for none.
    void SetLit(OwnerItem* owner, const std::optional<FieldRef>& ref);

    // An annotation is drawn in another way now.
    void Touch(const FieldRef& ref, const OwnerItem& owner);

    using Hit = std::pair<OwnerItem*, FieldRef>;
    [[nodiscard]] std::optional<Hit> At(const QPointF& onSheet) const;

    // A line of a label, or one text; by the first and the last of the owner's labels.
    struct Piece {
        OwnerItem* owner = nullptr;
        std::size_t first = 0;
        std::size_t last = 0;  // one behind
        QRectF rect;           // around it
    };
    [[nodiscard]] const std::vector<Piece>& Shown() const { return m_shown; }

private:
    // Where an owner's pieces are in the order in which they are given room.
    enum class Rank { Name, Line, Beside, Large };
    struct Ranked {
        Rank rank;
        Piece piece;
        QRectF alone;  // around its first text, of a line with a name
    };
    static std::vector<Ranked> PiecesOf(OwnerItem& owner);
    void Arrange();
    void PaintPiece(QPainter& painter, const Piece& piece) const;
    void FindLit();

    std::vector<OwnerItem*> m_owners;
    std::vector<std::vector<Ranked>> m_pieces;  // parallel to them; empty where all texts are large
    double m_height = 0.0;
    std::vector<Piece> m_shown;
    Piece m_lit;  // empty where its text is none of the small ones
    std::optional<FieldRef> m_litRef;
    QRectF m_all;
};

}  // namespace Desk
