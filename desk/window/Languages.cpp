#include "desk/window/Languages.h"

#include <algorithm>
#include <iterator>
#include <string_view>

#include "desk/window/ChineseRows.h"

namespace Desk {

QString ChineseTexts::translate(const char* context, const char* sourceText, const char* /*disambiguation*/,
                                int /*n*/) const
{
    if (!std::string_view(context).starts_with("Desk")) {
        return {};  // the toolkit's texts mean other things by the same words
    }
    const std::string_view wanted = sourceText;
    const auto* const row =
        std::find_if(std::begin(ChineseRows), std::end(ChineseRows),
                     [wanted](const ChineseRow& each) { return each.english == wanted; });
    if (row != std::end(ChineseRows)) {
        return QString::fromUtf8(row->chinese.data(), static_cast<qsizetype>(row->chinese.size()));
    }
    m_missing.push_back(QString::fromUtf8(sourceText));
    return {};
}

const ChineseTexts* ApplyLanguage(Language language)
{
    static ChineseTexts texts;
    static QTranslator ofToolkit;  // its own dialogs; empty where the package is not installed
    static bool isInstalled = false;
    const bool chinese = language == Language::Chinese ||
                         (language == Language::System && QLocale::system().language() == QLocale::Chinese);
    QLocale::setDefault(chinese                         ? QLocale(QLocale::Chinese)
                        : language == Language::English ? QLocale(QLocale::English)
                                                        : QLocale::system());
    if (chinese != isInstalled) {
        isInstalled = chinese;
        if (chinese) {
            if (ofToolkit.isEmpty()) {
                const QString folder = QLibraryInfo::path(QLibraryInfo::TranslationsPath);
                static_cast<void>(ofToolkit.load(QStringLiteral("qtbase_zh_CN"), folder));
            }
            QCoreApplication::installTranslator(&ofToolkit);
            QCoreApplication::installTranslator(&texts);
        } else {
            QCoreApplication::removeTranslator(&texts);
            QCoreApplication::removeTranslator(&ofToolkit);
        }
    }
    return chinese ? &texts : nullptr;
}

}  // namespace Desk
