#include "desk/window/FieldNames.h"

#include <cmath>

#include "desk/reading/Bars.h"
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

QString OwnerTip(const Project& project, const FieldRef& ref)
{
    QString tip = QStringLiteral("<b>%1</b>").arg(OwnerName(project, ref).toHtmlEscaped());
    for (const FieldRef& each : RefsOf(project, ref)) {
        const std::string& text = TextAt(project, each);
        if (text.empty() || each.field == Field::Name) {
            continue;
        }
        QString line = QStringLiteral("%1: %2").arg(FieldName(project, each), QString::fromStdString(text));
        const auto bars = RowOf(each.field).ranker == Ranker::Bars ? ReadBars(text) : std::nullopt;
        if (bars && bars->Area() > 0.0) {
            line += QStringLiteral("  (%1 mm²)").arg(std::lround(bars->Area()));
        }
        line = line.toHtmlEscaped();
        tip += QStringLiteral("<br>") + (each == ref ? QStringLiteral("<b>%1</b>").arg(line) : line);
    }
    return tip;
}

}  // namespace Desk
