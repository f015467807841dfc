// What a DXF file holds of what the desk shows and edits: texts, lines, blocks and their references.
// Everything else is passed over; the bytes are the file.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "desk/drawing/TextCodec.h"
#include "desk/project/Backdrop.h"

namespace Desk {

struct LayerRow {
    std::string name;
    bool isHidden = false;  // off or frozen
};

enum class TextKind { Text, MText, Attrib };

struct TextEntity {
    TextKind kind = TextKind::Text;
    std::uint32_t layer = 0;
    bool isHidden = false;
    bool isMirrored = false;      // its x goes left: extrusion along -z
    std::string_view handle;      // empty where the file gives none
    Stretch record;               // the whole entity in the file
    std::vector<Stretch> values;  // of the text in the file: one, or the pieces of a long MTEXT in order
    PlanPoint at;                 // of the first character's lower left corner; of an MTEXT its attachment
    double height = 0.0;
    double angle = 0.0;      // degrees
    int attachment = 1;      // of an MTEXT, 1 to 9 from top left to bottom right
    double lineSpacing = 1;  // of an MTEXT, times five thirds of the height
};

// Lines and, parallel to them, their layers; arcs and circles are short lines. Two lists, so that the lines
// of a large drawing become its backdrop without a copy.
struct LineList {
    static constexpr std::uint32_t Hidden = std::uint32_t{1}
                                            << 31U;  // with the layer of what does not show

    std::vector<PlanLine> lines;
    std::vector<std::uint32_t> layers;

    void Add(const PlanLine& line, std::uint32_t layer)
    {
        lines.push_back(line);
        layers.push_back(layer);
    }
    [[nodiscard]] std::uint32_t LayerOf(std::size_t i) const { return layers[i] & ~Hidden; }
    [[nodiscard]] bool IsHidden(std::size_t i) const { return (layers[i] & Hidden) != 0; }
};

struct InsertEntity {
    std::uint32_t block = 0;  // index, or npos for a block that does not exist
    std::uint32_t layer = 0;
    bool isHidden = false;
    bool isMirrored = false;
    PlanPoint at;
    double xScale = 1.0;
    double yScale = 1.0;
    double angle = 0.0;  // degrees
    int columns = 1;
    int rows = 1;
    double columnStep = 0.0;
    double rowStep = 0.0;
};

// What stands in one block, or among the entities of the model.
struct Entities {
    std::vector<TextEntity> texts;
    LineList lines;
    std::vector<InsertEntity> inserts;
    PlanPoint base;
};

struct DxfFile {
    std::string bytes;
    Charset charset = Charset::Utf8;
    double unitScale = 1.0;  // how many drawn mm are 1 mm of a dimension: 1 / $DIMLFAC
    std::vector<LayerRow> layers;
    std::vector<Entities> blocks;
    Entities model;
    Stretch handSeed;              // the value of $HANDSEED; empty where there is none
    std::uint64_t nextHandle = 1;  // above every handle of the file
};

// Throws Failure for what is no ASCII DXF or damaged; name stands for the file in messages.
[[nodiscard]] DxfFile ReadEntities(std::string bytes, const std::string& name);

// The pieces of a value in the file, joined.
[[nodiscard]] std::string ValueOf(const DxfFile& file, const TextEntity& text);

}  // namespace Desk
