#include "desk/window/InPlaceDialog.h"

#include "desk/project/Fields.h"
#include "desk/window/Languages.h"

namespace Desk {

std::optional<InPlace> AskInPlace(QWidget& over, int spans)
{
    const auto translated = [](const char* text) { return QCoreApplication::translate("Desk", text); };
    QDialog dialog(&over);
    dialog.setObjectName("inPlace");
    dialog.setWindowTitle(translated(QT_TRANSLATE_NOOP("Desk", "Text in place")));
    auto* const role = new QComboBox;
    role->setObjectName("role");
    for (const RoleRow& row : AllRoles()) {
        // "Bottom bars of span %1" without the number
        const QString name = QString::fromUtf8(IsChinese() ? row.chinese : row.english);
        role->addItem(QString(name).replace(QStringLiteral("%1"), QStringLiteral("...")));
    }
    auto* const number = new QSpinBox;
    number->setObjectName("number");
    const auto limit = [=] {
        const bool isSupport =
            AllRoles()[static_cast<std::size_t>(role->currentIndex())].role == Role::TopSupport;
        number->setRange(1, spans + (isSupport ? 1 : 0));
    };
    limit();
    QObject::connect(role, &QComboBox::currentIndexChanged, &dialog, limit);
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    auto* const rows = new QFormLayout(&dialog);
    rows->addRow(translated(QT_TRANSLATE_NOOP("Desk", "What it is")), role);
    rows->addRow(translated(QT_TRANSLATE_NOOP("Desk", "Number from the start")), number);
    rows->addRow(buttons);
    if (dialog.exec() != QDialog::Accepted) {
        return std::nullopt;
    }
    InPlace text;
    text.role = AllRoles()[static_cast<std::size_t>(role->currentIndex())].role;
    text.number = number->value();
    return text;
}

}  // namespace Desk
