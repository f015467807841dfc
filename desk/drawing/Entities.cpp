// One pass over the pairs. An entity's pairs are gathered and turned into what is kept at the next code 0.
#include "desk/drawing/Entities.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <numbers>
#include <optional>

#include "desk/drawing/Entity.h"
#include "desk/drawing/Pairs.h"
#include "desk/project/Failure.h"

namespace Desk {

namespace {

constexpr std::uint32_t NoBlock = ~std::uint32_t{0};

std::string Upper(std::string_view text)
{
    std::string upper(text);
    std::transform(upper.begin(), upper.end(), upper.begin(),
                   [](char ch) { return ch >= 'a' && ch <= 'z' ? static_cast<char>(ch - 32) : ch; });
    return upper;
}

class EntityReader {
public:
    EntityReader(std::string bytes, const std::string& name) : m_name(name)
    {
        m_file.bytes = std::move(bytes);
    }

    DxfFile Read()
    {
        RefuseOtherKinds();
        const std::string_view all = m_file.bytes;
        PairReader pairs(all, all.starts_with("\xEF\xBB\xBF") ? 3 : 0);
        Pair pair;
        bool isEnded = false;
        while (!isEnded && pairs.Next(pair)) {
            if (pair.code == 0) {
                FinishEntity(pair.begin);
                isEnded = BeginRecord(pair);
            } else {
                Take(pair);
            }
        }
        if (!isEnded) {
            FailAt(pairs.At(), pairs.At() >= all.size()
                                   ? Phrase("Desk", "the file is cut off: its EOF is missing")
                                   : Phrase("Desk", "a group code and a value are required here"));
        }
        LinkBlocks();
        m_file.charset = CharsetFor(m_highBytes, m_notUtf8, m_fileSays);
        return std::move(m_file);
    }

private:
    [[noreturn]] void FailAt(std::size_t at, const Message& what) const
    {
        const std::string_view before = std::string_view(m_file.bytes).substr(0, at);
        const auto line = std::count(before.begin(), before.end(), '\n') + 1;
        throw Failure(Phrase("Desk", "%1:%2: %3"), m_name, std::to_string(line), what);
    }

    void RefuseOtherKinds() const
    {
        const std::string_view bytes = m_file.bytes;
        if (bytes.starts_with("AutoCAD Binary DXF")) {
            throw Failure(Phrase("Desk", "%1: a binary DXF; save it as ASCII DXF in the drawing program "
                                         "(Save as, DXF, options: ASCII)"),
                          m_name);
        }
        if (bytes.size() >= 6 && bytes.starts_with("AC10") && bytes.find('\n') > 6) {
            throw Failure(Phrase("Desk", "%1: a DWG drawing; save it as ASCII DXF in the drawing program "
                                         "(Save as, type DXF)"),
                          m_name);
        }
    }

    // True at the end of the file.
    bool BeginRecord(const Pair& pair)
    {
        const std::string_view type = Trimmed(pair.value);
        m_entity = Entity();
        m_entity.record.begin = pair.begin;
        if (type == "EOF") {
            return true;
        }
        if (type == "SECTION") {
            m_isSectionName = true;
            return false;
        }
        m_isSectionName = false;
        if (type == "ENDSEC") {
            m_section = {};
            m_in = nullptr;
        } else if (m_section == "BLOCKS" && type == "BLOCK") {
            m_file.blocks.emplace_back();
            m_isBlockHead = true;
        } else if (m_section == "BLOCKS" && type == "ENDBLK") {
            m_isInBlock = false;
            m_polyline.reset();
        } else if (m_section == "TABLES" && type == "LAYER") {
            m_isLayer = true;
        } else {
            m_entity.kind = TypeOf(type);
            if (m_entity.kind == EntityType::Vertex) {
                m_entity.scale42 = 0.0;  // its bulge
            }
        }
        return false;
    }

    void Take(const Pair& pair)
    {
        if (m_isSectionName && pair.code == 2) {
            m_section = Trimmed(pair.value);
            m_isSectionName = false;
            return;
        }
        if (m_section == "HEADER") {
            TakeHeader(pair);
            return;
        }
        if (pair.code == 5 || pair.code == 105) {
            NoteHandle(pair.value);
        }
        if (m_section == "ENTITIES" || m_section == "BLOCKS" || m_isLayer) {
            m_entity.Take(pair);
        }
    }

    void TakeHeader(const Pair& pair)
    {
        if (pair.code == 9) {
            m_variable = Trimmed(pair.value);
        } else if (m_variable == "$ACADVER") {
            m_version = Trimmed(pair.value);
            m_fileSays = m_version >= "AC1021" ? Charset::Utf8 : Charset::Gbk;
        } else if (m_variable == "$HANDSEED") {
            const std::string_view value = Trimmed(pair.value);
            const std::size_t at =
                pair.valueAt + static_cast<std::size_t>(value.data() - pair.value.data());
            m_file.handSeed = {at, at + value.size()};
            std::uint64_t seed = 0;
            std::from_chars(value.data(), value.data() + value.size(), seed, 16);
            m_file.nextHandle = std::max(m_file.nextHandle, seed);
        } else if (m_variable == "$DIMLFAC" && RealOf(pair.value) > 1e-4) {
            m_file.unitScale = 1.0 / RealOf(pair.value);
        }
    }

    void NoteHandle(std::string_view value)
    {
        value = Trimmed(value);
        std::uint64_t handle = 0;
        const auto [stop, error] = std::from_chars(value.data(), value.data() + value.size(), handle, 16);
        if (error == std::errc() && handle < (std::uint64_t{1} << 60U)) {
            m_file.nextHandle = std::max(m_file.nextHandle, handle + 1);
        }
    }

    void FinishEntity(std::size_t end)
    {
        Entity& e = m_entity;
        e.record.end = end;
        if (m_isLayer) {
            LayerRow& layer = m_file.layers[LayerOf(e.name)];
            layer.isHidden = (e.whole70 & 1) != 0 || e.whole62 < 0;
            m_isLayer = false;
        } else if (m_isBlockHead) {
            m_file.blocks.back().base = e.at;
            m_blockNames.emplace(Upper(e.name), static_cast<std::uint32_t>(m_file.blocks.size() - 1));
            m_isBlockHead = false;
            m_isInBlock = true;
        } else if (e.whole67 == 0) {
            m_in = m_section == "ENTITIES" ? &m_file.model : m_isInBlock ? &m_file.blocks.back() : nullptr;
            if (m_in != nullptr) {
                Keep();
            }
        }
    }

    void Keep()
    {
        Entity& e = m_entity;
        switch (e.kind) {
        case EntityType::Text:
        case EntityType::MText:
        case EntityType::Attrib: KeepText(); break;
        case EntityType::Line: AddLine(e.at, e.other, e.layer); break;
        case EntityType::LwPolyline:
            AddChain(PolylinePoints(e.vertices, (e.whole70 & 1) != 0), e.layer, e.extrusion < 0);
            break;
        case EntityType::Polyline: m_polyline = std::move(e); break;
        case EntityType::Vertex:
            if (m_polyline && (e.whole70 & 16) == 0) {  // no control point of a spline
                m_polyline->vertices.push_back({e.at, e.scale42});
            }
            break;
        case EntityType::SeqEnd:
            if (m_polyline && m_polyline->whole60 == 0) {
                AddChain(PolylinePoints(m_polyline->vertices, (m_polyline->whole70 & 1) != 0),
                         m_polyline->layer, m_polyline->extrusion < 0);
            }
            m_polyline.reset();
            break;
        case EntityType::Circle:
            AddChain(ArcPoints(e.at, e.number40, 0.0, 360.0), e.layer, e.extrusion < 0);
            break;
        case EntityType::Arc:
            AddChain(ArcPoints(e.at, e.number40, e.angle50, e.angle51), e.layer, e.extrusion < 0);
            break;
        case EntityType::Insert:
        case EntityType::Dimension: KeepInsert(); break;
        case EntityType::Other: break;
        }
    }

    void KeepText()
    {
        Entity& e = m_entity;
        if (!e.hasValue) {
            return;
        }
        TextEntity text;
        text.kind = e.kind == EntityType::Text    ? TextKind::Text
                    : e.kind == EntityType::MText ? TextKind::MText
                                                  : TextKind::Attrib;
        text.layer = LayerOf(e.layer);
        text.isHidden = e.whole60 != 0 || (e.kind == EntityType::Attrib && (e.whole70 & 1) != 0);
        text.isMirrored = e.extrusion < 0 && e.kind != EntityType::MText;
        text.handle = e.handle;
        text.record = e.record;
        if (e.kind == EntityType::MText) {
            text.values = std::move(e.pieces);
        }
        text.values.push_back(e.value);
        text.at = e.at;
        text.height = std::abs(e.number40);
        text.angle = e.angle50;
        if (e.kind == EntityType::MText) {
            if (e.hasOther && (e.other.x != 0.0 || e.other.y != 0.0)) {
                text.angle = std::atan2(e.other.y, e.other.x) * 180.0 / std::numbers::pi;
            }
            text.attachment = std::clamp(e.whole71, 1, 9);
            text.lineSpacing = e.number44 > 0.0 ? e.number44 : 1.0;
        } else if (e.hasOther &&
                   ((e.at.x == 0.0 && e.at.y == 0.0) || (e.at.x == e.other.x && e.at.y == e.other.y))) {
            text.at = Aligned(e);  // only the aligned position is given
        }
        for (const Stretch& piece : text.values) {
            CountHighBytes(std::string_view(m_file.bytes).substr(piece.begin, piece.end - piece.begin),
                           m_highBytes, m_notUtf8);
        }
        m_in->texts.push_back(std::move(text));
    }

    // The lower left corner of a text that is aligned: across by code 72, up by code 73, of an ATTRIB 74.
    // Its length is about three quarters of a height a character.
    static PlanPoint Aligned(const Entity& e)
    {
        const double length =
            0.75 * e.number40 * e.scale41 * static_cast<double>(e.value.end - e.value.begin);
        const bool isMiddle = e.whole72 == 4;
        const int vertical = e.kind == EntityType::Attrib ? e.whole74 : e.whole73;
        const double across = isMiddle || e.whole72 == 1 ? 0.5 : e.whole72 == 2 ? 1.0 : 0.0;
        const double up = isMiddle || vertical == 2 ? 0.5 : vertical == 3 ? 1.0 : 0.0;
        const double angle = Radians(e.angle50);
        const double u = -length * across;
        const double v = -e.number40 * up;
        return {e.other.x + u * std::cos(angle) - v * std::sin(angle),
                e.other.y + u * std::sin(angle) + v * std::cos(angle)};
    }

    void KeepInsert()
    {
        const Entity& e = m_entity;
        InsertEntity insert;
        insert.layer = LayerOf(e.layer);
        insert.isHidden = e.whole60 != 0;
        if (e.kind == EntityType::Insert) {
            insert.isMirrored = e.extrusion < 0;
            insert.at = e.at;
            insert.xScale = e.scale41;
            insert.yScale = e.scale42;
            insert.angle = e.angle50;
            insert.columns = std::max(1, e.whole70);
            insert.rows = std::max(1, e.whole71);
            insert.columnStep = e.number44;
            insert.rowStep = e.number45;
        }
        m_unlinked.push_back(
            {Upper(e.name),
             m_section == "ENTITIES" ? NoBlock : static_cast<std::uint32_t>(m_file.blocks.size() - 1),
             m_in->inserts.size()});
        m_in->inserts.push_back(insert);
    }

    // Blocks may stand after what refers to them.
    void LinkBlocks()
    {
        for (const Unlinked& each : m_unlinked) {
            Entities& in = each.owner == NoBlock ? m_file.model : m_file.blocks[each.owner];
            const auto found = m_blockNames.find(each.name);
            in.inserts[each.insert].block = found == m_blockNames.end() ? NoBlock : found->second;
        }
    }

    void AddLine(const PlanPoint& from, const PlanPoint& to, std::string_view layer)
    {
        if (m_entity.whole60 == 0 && IsOnPlan(from) && IsOnPlan(to)) {
            m_in->lines.Add({from, to}, LayerOf(layer));
        }
    }

    void AddChain(const std::vector<PlanPoint>& points, std::string_view layer, bool isMirrored)
    {
        const double turned = isMirrored ? -1.0 : 1.0;
        for (std::size_t i = 1; i < points.size(); ++i) {
            AddLine({turned * points[i - 1].x, points[i - 1].y}, {turned * points[i].x, points[i].y},
                    layer);
        }
    }

    std::uint32_t LayerOf(std::string_view name)
    {
        if (name == m_lastLayerName && !m_file.layers.empty()) {
            return m_lastLayer;
        }
        const auto [found, isNew] =
            m_layers.emplace(Upper(name), static_cast<std::uint32_t>(m_file.layers.size()));
        if (isNew) {
            m_file.layers.push_back({std::string(name), false});
        }
        m_lastLayerName = name;
        m_lastLayer = found->second;
        return m_lastLayer;
    }

    struct Unlinked {
        std::string name;
        std::uint32_t owner;
        std::size_t insert;
    };

    const std::string& m_name;
    DxfFile m_file;
    Entity m_entity;
    std::optional<Entity> m_polyline;  // whose vertices follow
    Entities* m_in = nullptr;
    std::string_view m_section;
    std::string_view m_variable;
    std::string_view m_version;
    Charset m_fileSays = Charset::Gbk;
    bool m_isSectionName = false;
    bool m_isLayer = false;
    bool m_isBlockHead = false;
    bool m_isInBlock = false;
    std::size_t m_highBytes = 0;
    std::size_t m_notUtf8 = 0;
    std::unordered_map<std::string, std::uint32_t> m_layers;
    std::unordered_map<std::string, std::uint32_t> m_blockNames;
    std::vector<Unlinked> m_unlinked;
    std::string_view m_lastLayerName;
    std::uint32_t m_lastLayer = 0;
};

}  // namespace

DxfFile ReadEntities(std::string bytes, const std::string& name)
{
    return EntityReader(std::move(bytes), name).Read();
}

std::string ValueOf(const DxfFile& file, const TextEntity& text)
{
    std::string value;
    for (const Stretch& piece : text.values) {
        value.append(file.bytes, piece.begin, piece.end - piece.begin);
    }
    return value;
}

}  // namespace Desk
