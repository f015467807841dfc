#include "desk/window/FieldNames.h"

#include <array>

namespace Desk {

QString FieldName(Field field)
{
    // By the order of Field.
    static constexpr std::array Names = {
        QT_TRANSLATE_NOOP("Desk", "Name"),
        QT_TRANSLATE_NOOP("Desk", "Section"),
        QT_TRANSLATE_NOOP("Desk", "Elevation"),
        QT_TRANSLATE_NOOP("Desk", "Stirrups"),
        QT_TRANSLATE_NOOP("Desk", "Top through bars"),
        QT_TRANSLATE_NOOP("Desk", "Bottom bars"),
        QT_TRANSLATE_NOOP("Desk", "Bars at the left end"),
        QT_TRANSLATE_NOOP("Desk", "Bars at the right end"),
        QT_TRANSLATE_NOOP("Desk", "Erection bars"),
        QT_TRANSLATE_NOOP("Desk", "Torsion bars"),
        QT_TRANSLATE_NOOP("Desk", "Side bars"),
        QT_TRANSLATE_NOOP("Desk", "Horizontal bars"),
        QT_TRANSLATE_NOOP("Desk", "Vertical bars"),
    };
    return QCoreApplication::translate("Desk", Names.at(static_cast<std::size_t>(field)));
}

QString OwnerName(const Project& project, const FieldRef& place)
{
    const QString name = QString::fromStdString(TextAt(project, {place.isWall, place.index, Field::Name}));
    const QString number = name.isEmpty() ? QString::number(place.index + 1) : name;
    if (place.isWall) {
        return QCoreApplication::translate("Desk", "Wall %1").arg(number);
    }
    return name.isEmpty() ? QCoreApplication::translate("Desk", "Beam %1").arg(number) : name;
}

}  // namespace Desk
