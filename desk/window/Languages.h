// The interface's languages: English is in the source, Chinese in a table.
#pragma once

#include <QtCore>

namespace Desk {

enum class Language { System, Chinese, English };

// Chinese texts for the English ones of the desk's own source.
class ChineseTexts : public QTranslator {
    Q_OBJECT

public:
    using QTranslator::QTranslator;

    QString translate(const char* context, const char* sourceText, const char* disambiguation = nullptr,
                      int n = -1) const override;
    bool isEmpty() const override { return false; }

    // Texts of the desk that were asked for and have no row, in English.
    [[nodiscard]] const QStringList& Missing() const { return m_missing; }

private:
    mutable QStringList m_missing;
};

// Gives the application the language; System is Chinese where the system is. Answers the texts' table
// while it is Chinese, else null.
const ChineseTexts* ApplyLanguage(Language language);

}  // namespace Desk
