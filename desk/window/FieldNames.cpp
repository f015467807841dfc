#include "desk/window/FieldNames.h"

#include "desk/window/Languages.h"

namespace Desk {

QString FieldName(Field field)
{
    const FieldRow& row = RowOf(field);
    return QString::fromUtf8(IsChinese() ? row.chinese : row.english);
}

QString FieldName(const Project& project, const FieldRef& ref)
{
    if (ref.inPlace < 0) {
        return FieldName(ref.field);
    }
    const InPlace& text = project.beams.at(ref.index).inPlace.at(static_cast<std::size_t>(ref.inPlace));
    const RoleRow& row = RowOf(text.role);
    return QString::fromUtf8(IsChinese() ? row.chinese : row.english).arg(text.number);
}

QString OwnerName(const Project& project, const FieldRef& ref)
{
    const QString name = QString::fromStdString(TextAt(project, {ref.isWall, ref.index, Field::Name}));
    const QString number = name.isEmpty() ? QString::number(ref.index + 1) : name;
    if (ref.isWall) {
        return QCoreApplication::translate("Desk", "Wall %1").arg(number);
    }
    return name.isEmpty() ? QCoreApplication::translate("Desk", "Beam %1").arg(number) : name;
}

}  // namespace Desk
