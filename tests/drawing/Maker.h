// Writes drawings in the many shapes in which programs leave them.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "desk/project/Project.h"

namespace Desk {

// How a text spells the grade letters A to D. Mixed: every text its own way.
enum class Spelling {
    Percent,
    Escape82,
    EscapeE000,
    EscapeE530,
    PrivateE000,
    PrivateE530,
    Multibyte,
    Mixed
};
enum class LabelAs { Lines, MText, MTextWithCodes, Attributes };
enum class OutlineAs { Lines, Polylines, LightPolylines };

struct Shape {
    const char* name = "plain";
    const char* version = "AC1009";
    bool isUtf8 = false;  // else GBK; the header says ANSI_936 either way
    const char* lineEnd = "\n";
    bool hasPaddedCodes = false;
    bool hasHandles = true;
    Spelling spelling = Spelling::Percent;
    LabelAs labels = LabelAs::Lines;
    OutlineAs outlines = OutlineAs::Lines;
    int depth = 0;       // of the blocks around everything: moved, turned, scaled
    double scale = 1.0;  // drawn units a mm, told by $DIMLFAC
};

// Where a block is inserted.
struct Insertion {
    PlanPoint at;
    double angle = 0.0;
    double scale = 1.0;
};

// Points are given where they are to appear; inside a block they are turned back for its insert.
class DrawingMaker {
public:
    explicit DrawingMaker(const Shape& shape);

    void BeginBlock(const Insertion& frame);
    // columns and rows of an arrayed insert, a step apart
    void EndBlock(int columns = 1, int rows = 1, PlanPoint step = {});

    // Grade letters between digits are spelled as the shape has it. An empty text takes a handle and its
    // turn among the spellings, and writes nothing.
    void Text(const TextPlace& place, const std::string& text, const std::string& layer);
    void MText(const TextPlace& place, const std::vector<std::string>& lines, const std::string& layer);
    // An insert of an empty block with the texts as its attributes.
    void Attributes(const std::vector<TextPlace>& places, const std::vector<std::string>& texts,
                    const std::string& layer);
    void Line(const PlanPoint& from, const PlanPoint& to, const std::string& layer);
    void Polyline(const std::vector<PlanPoint>& points, bool isClosed, const std::string& layer);
    void Circle(const PlanPoint& center, double radius, const std::string& layer);
    // What follows lies so far from where it is given.
    void Shift(const PlanPoint& by) { m_shift = by; }
    void HideLayer(const std::string& layer) { m_hidden.push_back(layer); }
    [[nodiscard]] const Shape& TheShape() const { return m_shape; }

    [[nodiscard]] std::string Bytes() const;
    // Of the last entity, as in the file.
    [[nodiscard]] std::string Handle() const;

private:
    struct Block {
        std::string name;
        Insertion frame;
        std::string content;
    };

    void Pair(int code, std::string_view value);
    void Number(int code, double value);
    void Point(int code, const PlanPoint& point);
    void Entity(const char* type, const std::string& layer, const char* subclass);
    void TextValues(const TextPlace& place, const std::string& value);
    [[nodiscard]] std::string Spelled(const std::string& text);
    [[nodiscard]] std::string Encoded(const std::string& text) const;
    [[nodiscard]] double Turn() const;
    [[nodiscard]] double Scale() const;
    [[nodiscard]] bool IsModern() const;  // with subclass markers

    Shape m_shape;
    std::string m_pairs;               // of the section or block in work
    std::vector<Block> m_open;         // the outer ones with what they hold so far
    std::string m_blocks;              // those that are done
    std::vector<std::string> m_names;  // of blocks
    std::vector<std::string> m_hidden;
    PlanPoint m_shift;
    unsigned m_handle = 0x100;
    unsigned m_texts = 0;
};

}  // namespace Desk
