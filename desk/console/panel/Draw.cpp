// Layout of the controls in character cells: edges keep their order, spans grow with their texts.
#include "desk/console/panel/Draw.h"

#include <algorithm>
#include <map>

#include "desk/console/Print.h"

namespace Desk::Panels {

namespace {

constexpr int ByteWidth = 6;    // pixels of a digit in the panels' font
constexpr int Gap = 2;          // cells between two columns
constexpr int PieceWidth = 10;  // cells of a column in a list that runs sideways
constexpr const char* OutOfView = " ..";

// A control as lines of text, not placed yet.
struct Block {
    const Control* control = nullptr;
    std::vector<std::string> lines;
    int width = 0;   // cells, with the gap to the next column
    int height = 0;  // lines
};

std::string DrawBox(const Control& box)
{
    std::string text = box.text;
    if (box.caret >= 0) {
        text.insert(static_cast<std::size_t>(box.caret), 1, '|');
    }
    const int room = box.place.Width() / ByteWidth;
    const bool toTheRight = Has(box.style, ControlStyle::AlignRight);
    return "[" + (toTheRight ? PadLeft(text, room) : PadRight(text, room)) + "]";
}

std::string DrawRow(const Control& list, int row)
{
    return (row == list.selection ? '>' : ' ') + list.rows[static_cast<std::size_t>(row)];
}

std::vector<std::string> DrawList(const Control& list)
{
    const int count = static_cast<int>(list.rows.size());
    if (count == 0) {
        return {" (no rows)"};
    }
    const int last = std::min(list.top + list.inView, count) - 1;
    const bool inColumns = Has(list.style, ControlStyle::MultiColumn);
    std::vector<std::string> lines;
    for (int row = list.top; row <= last; ++row) {
        if (inColumns && row > list.top) {
            lines.back() = PadRight(lines.back(), (row - list.top) * PieceWidth) + DrawRow(list, row);
        } else {
            lines.push_back(DrawRow(list, row));
        }
    }
    if (list.top > 0) {
        lines.front() += OutOfView;
    }
    if (last + 1 < count) {
        lines.back() += OutOfView;
    }
    return lines;
}

Block MakeBlock(const Control& control, bool withIds)
{
    Block block;
    block.control = &control;
    const std::string id = withIds ? std::to_string(control.id) : "";
    switch (control.kind) {
    case WindowKind::ListBox:
        block.lines = DrawList(control);
        block.lines.insert(block.lines.begin(), withIds ? 1 : 0, id);
        break;
    case WindowKind::EditBox: block.lines = {DrawBox(control) + id}; break;
    case WindowKind::Button: block.lines = {"<" + control.text + ">" + id}; break;
    default: block.lines = {control.text};
    }
    for (const std::string& line : block.lines) {
        block.width = std::max(block.width, DisplayWidth(line) + Gap);
    }
    block.height = static_cast<int>(block.lines.size());
    return block;
}

// The cell of each edge: edges keep their order, and every block gets what it needs between its edges.
std::map<int, int> Place(const std::vector<Block>& blocks, LONG RECT::*first, LONG RECT::*second,
                         int Block::*need)
{
    std::map<int, int> places;
    for (const Block& block : blocks) {
        places[block.control->place.*first] = 0;
        places[block.control->place.*second] = 0;
    }
    int reached = 0;
    for (auto& [edge, place] : places) {
        for (const Block& block : blocks) {
            if (block.control->place.*second == edge) {
                reached = std::max(reached, places[block.control->place.*first] + block.*need);
            }
        }
        place = reached;
    }
    return places;
}

}  // namespace

std::vector<std::string> Draw(const Picture& picture, bool withIds)
{
    std::vector<Block> blocks;
    for (const Control& control : picture.controls) {
        blocks.push_back(MakeBlock(control, withIds));
    }
    std::map<int, int> columns = Place(blocks, &RECT::left, &RECT::right, &Block::width);
    std::map<int, int> rows = Place(blocks, &RECT::top, &RECT::bottom, &Block::height);
    std::sort(blocks.begin(), blocks.end(),
              [](const Block& a, const Block& b) { return a.control->place.left < b.control->place.left; });
    std::vector<std::string> lines;
    for (const Block& block : blocks) {
        const int left = columns[block.control->place.left];
        const int room = columns[block.control->place.right] - left;
        const int indent =
            Has(block.control->style, ControlStyle::AlignCenter) ? (room - block.width) / 2 : 0;
        auto row = static_cast<std::size_t>(rows[block.control->place.top]);
        for (const std::string& text : block.lines) {
            lines.resize(std::max(lines.size(), row + 1));
            lines[row] = PadRight(lines[row], left + indent) + text;
            ++row;
        }
    }
    for (std::string& line : lines) {
        line.erase(line.find_last_not_of(' ') + 1);
    }
    return lines;
}

}  // namespace Desk::Panels
