#include "desk/project/Fields.h"

#include <algorithm>
#include <stdexcept>

namespace Desk {

namespace {

// One row a field, in the order of Field; its second line is what the panel and people know of it.
// clang-format off
constexpr FieldRow Rows[] = {
    {Field::Name, "name", &Beam::name, &Wall::name, Ranker::Names, "", false, nullptr, false, "",
     PanelKind::Name, -1, -1, "Name", "编号"},
    {Field::Section, "section", &Beam::section, nullptr, Ranker::Sections, "", false, nullptr, false, "",
     PanelKind::Section, -1, -1, "Section", "截面"},
    {Field::Elevation, "elevation", &Beam::elevation, nullptr, Ranker::Elevations, "", false, nullptr, false, "",
     PanelKind::Elevation, -1, -1, "Elevation", "标高"},
    {Field::Stirrup, "stirrup", &Beam::stirrup, nullptr, Ranker::Stirrups, "", false, nullptr, true, "",
     PanelKind::Stirrup, -1, -1, "Stirrups", "箍筋"},
    {Field::TopBars, "topBars", &Beam::topBars, nullptr, Ranker::Bars, "1", false, &SteelArea::top, true, "",
     PanelKind::Bars, 0, 0, "Top through bars", "上部通长筋"},
    {Field::BottomBars, "bottomBars", &Beam::bottomBars, nullptr, Ranker::Bars, "5.1", false, &SteelArea::bottom, true, "",
     PanelKind::Bars, 1, 1, "Bottom bars", "下部纵筋"},
    {Field::LeftEnd, "leftEnd", &Beam::leftEnd, nullptr, Ranker::Bars, "2", true, &SteelArea::leftEnd, true, "",
     PanelKind::Bars, 5, 0, "Bars at the left end", "左支座上部筋"},
    {Field::RightEnd, "rightEnd", &Beam::rightEnd, nullptr, Ranker::Bars, "3", true, &SteelArea::rightEnd, true, "",
     PanelKind::Bars, 6, 0, "Bars at the right end", "右支座上部筋"},
    {Field::Erection, "erection", &Beam::erection, nullptr, Ranker::Bars, "4", false, nullptr, false, "",
     PanelKind::Bars, 2, 2, "Erection bars", "架立筋"},
    {Field::Torsion, "torsion", &Beam::torsion, nullptr, Ranker::Bars, "5.2", false, nullptr, false, "N*",
     PanelKind::Bars, 3, 4, "Torsion bars", "受扭纵筋"},
    {Field::Side, "side", &Beam::side, nullptr, Ranker::Bars, "5.2", false, nullptr, false, "G",
     PanelKind::Bars, 4, 5, "Side bars", "侧面构造筋"},
    {Field::HorizontalBars, "horizontalBars", nullptr, &Wall::horizontalBars, Ranker::OtherWalls, "", false, nullptr, false, "",
     PanelKind::HorizontalBars, -1, -1, "Horizontal bars", "水平分布筋"},
    {Field::VerticalBars, "verticalBars", nullptr, &Wall::verticalBars, Ranker::OtherWalls, "", false, nullptr, false, "",
     PanelKind::VerticalBars, -1, -1, "Vertical bars", "竖向分布筋"},
};

constexpr RoleRow Roles[] = {
    {Role::TopSupport, "topSupport", Field::LeftEnd, "Top bars at support %1", "第%1支座上部筋"},
    {Role::TopSpan, "topSpan", Field::TopBars, "Top bars along span %1", "第%1跨上部筋"},
    {Role::Bottom, "bottom", Field::BottomBars, "Bottom bars of span %1", "第%1跨下部筋"},
    {Role::Stirrup, "stirrup", Field::Stirrup, "Stirrups of span %1", "第%1跨箍筋"},
    {Role::Side, "side", Field::Side, "Side bars of span %1", "第%1跨侧面构造筋"},
    {Role::Torsion, "torsion", Field::Torsion, "Torsion bars of span %1", "第%1跨受扭纵筋"},
    {Role::Section, "section", Field::Section, "Section of span %1", "第%1跨截面"},
    {Role::Elevation, "elevation", Field::Elevation, "Elevation of span %1", "第%1跨标高"},
};
// clang-format on

constexpr Field FieldsOfBeam[] = {
    Field::Name,    Field::Section,  Field::Elevation, Field::Stirrup, Field::TopBars, Field::BottomBars,
    Field::LeftEnd, Field::RightEnd, Field::Erection,  Field::Torsion, Field::Side,
};
constexpr Field FieldsOfWall[] = {Field::Name, Field::HorizontalBars, Field::VerticalBars};

// The project's own text or a constant one, as the project is.
template <class AnyProject>
auto& Text(AnyProject& project, const FieldRef& ref)
{
    if (ref.inPlace >= 0) {
        return project.beams.at(ref.index).inPlace.at(static_cast<std::size_t>(ref.inPlace)).text;
    }
    const FieldRow& row = RowOf(ref.field);
    if (ref.isWall ? row.ofWall == nullptr : row.ofBeam == nullptr) {
        throw std::out_of_range("a field that its owner does not have");
    }
    return ref.isWall ? project.walls.at(ref.index).*row.ofWall : project.beams.at(ref.index).*row.ofBeam;
}

}  // namespace

const FieldRow& RowOf(Field field) { return Rows[static_cast<std::size_t>(field)]; }
const RoleRow& RowOf(Role role) { return Roles[static_cast<std::size_t>(role)]; }
std::span<const RoleRow> AllRoles() { return Roles; }
std::span<const Field> BeamFields() { return FieldsOfBeam; }
std::span<const Field> WallFields() { return FieldsOfWall; }
std::span<const Field> FieldsOf(const FieldRef& owner)
{
    return owner.isWall ? WallFields() : BeamFields();
}

std::vector<FieldRef> RefsOf(const Project& project, const FieldRef& owner)
{
    std::vector<FieldRef> refs;
    for (const Field field : FieldsOf(owner)) {
        refs.push_back({owner.isWall, owner.index, field});
    }
    if (!owner.isWall) {
        for (const InPlace& text : project.beams.at(owner.index).inPlace) {
            refs.push_back({false, owner.index, RowOf(text.role).field,
                            static_cast<int>(&text - project.beams[owner.index].inPlace.data())});
        }
    }
    return refs;
}

Field FieldAt(const Beam& beam, const InPlace& text)
{
    const bool isLast = text.role == Role::TopSupport && !beam.spans.empty() &&
                        text.number == static_cast<int>(beam.spans.size()) + 1;
    return isLast ? Field::RightEnd : RowOf(text.role).field;
}

Beam BeamAt(const Beam& beam, const InPlace& text)
{
    Beam at = beam;
    const Field field = FieldAt(beam, text);
    const int span = field == Field::RightEnd ? text.number - 1 : text.number;
    for (const InPlace& other : beam.inPlace) {
        if (other.role != Role::TopSupport && other.number == span && !other.text.empty()) {
            at.*RowOf(RowOf(other.role).field).ofBeam = other.text;
        }
    }
    at.*RowOf(field).ofBeam = text.text;
    if (field == Field::LeftEnd && text.number > 1) {
        at.area.leftEnd = 0;
    }
    return at;
}

std::string_view HeadOf(std::string_view text, std::string_view heads)
{
    const bool hasHead = !text.empty() && heads.find(text.front()) != std::string_view::npos;
    return text.substr(0, hasHead ? 1 : 0);
}

PanelKind PanelOf(const FieldRef& ref)
{
    return ref.isWall && ref.field == Field::Name ? PanelKind::None : RowOf(ref.field).panel;
}

bool Exists(const Project& project, const FieldRef& ref)
{
    const std::span<const Field> fields = FieldsOf(ref);
    const std::size_t count = ref.isWall ? project.walls.size() : project.beams.size();
    if (ref.inPlace >= 0) {
        const auto at = static_cast<std::size_t>(ref.inPlace);
        return !ref.isWall && ref.index < count && at < project.beams[ref.index].inPlace.size() &&
               RowOf(project.beams[ref.index].inPlace[at].role).field == ref.field;
    }
    return ref.index < count && std::find(fields.begin(), fields.end(), ref.field) != fields.end();
}

const std::string& TextAt(const Project& project, const FieldRef& ref) { return Text(project, ref); }
std::string& TextAt(Project& project, const FieldRef& ref) { return Text(project, ref); }

}  // namespace Desk
