#include "desk/window/Languages.h"

#include <algorithm>
#include <iterator>
#include <string_view>

#include "desk/window/ChineseRows.h"

namespace Desk {

QString ChineseTexts::translate(const char* context, const char* sourceText, const char* /*disambiguation*/,
                                int /*n*/) const
{
    const std::string_view wanted = sourceText;
    const auto* const row =
        std::find_if(std::begin(ChineseRows), std::end(ChineseRows),
                     [wanted](const ChineseRow& each) { return each.english == wanted; });
    if (row != std::end(ChineseRows)) {
        return QString::fromUtf8(row->chinese.data(), static_cast<qsizetype>(row->chinese.size()));
    }
    if (std::string_view(context).starts_with("Desk")) {
        m_missing.push_back(QString::fromUtf8(sourceText));
    }
    return {};
}

const ChineseTexts* ApplyLanguage(Language language)
{
    static ChineseTexts texts;
    static bool isInstalled = false;
    const bool chinese = language == Language::Chinese ||
                         (language == Language::System && QLocale::system().language() == QLocale::Chinese);
    if (chinese != isInstalled) {
        isInstalled = chinese;
        if (chinese) {
            QCoreApplication::installTranslator(&texts);
        } else {
            QCoreApplication::removeTranslator(&texts);
        }
    }
    return chinese ? &texts : nullptr;
}

}  // namespace Desk
