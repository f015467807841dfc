#include "desk/project/FieldRef.h"

#include <algorithm>
#include <stdexcept>

namespace Desk {

namespace {

constexpr Field FieldsOfBeam[] = {
    Field::Name,    Field::Section,  Field::Elevation, Field::Stirrup, Field::TopBars, Field::BottomBars,
    Field::LeftEnd, Field::RightEnd, Field::Erection,  Field::Torsion, Field::Side,
};
constexpr Field FieldsOfWall[] = {Field::Name, Field::HorizontalBars, Field::VerticalBars};

std::string Beam::*BeamText(Field field)
{
    switch (field) {
    case Field::Name: return &Beam::name;
    case Field::Section: return &Beam::section;
    case Field::Elevation: return &Beam::elevation;
    case Field::Stirrup: return &Beam::stirrup;
    case Field::TopBars: return &Beam::topBars;
    case Field::BottomBars: return &Beam::bottomBars;
    case Field::LeftEnd: return &Beam::leftEnd;
    case Field::RightEnd: return &Beam::rightEnd;
    case Field::Erection: return &Beam::erection;
    case Field::Torsion: return &Beam::torsion;
    case Field::Side: return &Beam::side;
    case Field::HorizontalBars:
    case Field::VerticalBars: break;
    }
    throw std::out_of_range("a wall's field asked of a beam");
}

std::string Wall::*WallText(Field field)
{
    switch (field) {
    case Field::Name: return &Wall::name;
    case Field::HorizontalBars: return &Wall::horizontalBars;
    case Field::VerticalBars: return &Wall::verticalBars;
    default: throw std::out_of_range("a beam's field asked of a wall");
    }
}

}  // namespace

std::span<const Field> BeamFields() { return FieldsOfBeam; }
std::span<const Field> WallFields() { return FieldsOfWall; }

bool Exists(const Project& project, const FieldRef& place)
{
    const std::span<const Field> fields = place.isWall ? WallFields() : BeamFields();
    const std::size_t count = place.isWall ? project.walls.size() : project.beams.size();
    return place.index < count && std::find(fields.begin(), fields.end(), place.field) != fields.end();
}

const std::string& TextAt(const Project& project, const FieldRef& place)
{
    return place.isWall ? project.walls.at(place.index).*WallText(place.field)
                        : project.beams.at(place.index).*BeamText(place.field);
}

std::string& TextAt(Project& project, const FieldRef& place)
{
    return place.isWall ? project.walls.at(place.index).*WallText(place.field)
                        : project.beams.at(place.index).*BeamText(place.field);
}

}  // namespace Desk
