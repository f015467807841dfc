#include "desk/window/Languages.h"

// The resource's functions are global.
static void LoadTexts() { Q_INIT_RESOURCE(texts); }

namespace Desk {

namespace {

bool isChinese = false;

// English, for which nothing is installed, at the start.
void InstallChinese(bool install)
{
    static QTranslator texts;
    static QTranslator ofToolkit;  // its own dialogs; empty where the package is not installed
    if (texts.isEmpty()) {
        LoadTexts();
        static_cast<void>(texts.load(QStringLiteral(":/beamdesk_zh.qm")));
        const QString folder = QLibraryInfo::path(QLibraryInfo::TranslationsPath);
        static_cast<void>(ofToolkit.load(QStringLiteral("qtbase_zh_CN"), folder));
    }
    for (QTranslator* const each : {&ofToolkit, &texts}) {
        if (install) {
            QCoreApplication::installTranslator(each);
        } else {
            QCoreApplication::removeTranslator(each);
        }
    }
}

}  // namespace

void ApplyLanguage(Language language)
{
    const bool chinese = language == Language::Chinese ||
                         (language == Language::System && QLocale::system().language() == QLocale::Chinese);
    QLocale::setDefault(chinese                         ? QLocale(QLocale::Chinese)
                        : language == Language::English ? QLocale(QLocale::English)
                                                        : QLocale::system());
    if (chinese != isChinese) {
        isChinese = chinese;
        InstallChinese(chinese);
    }
}

bool IsChinese() { return isChinese; }

QString Told(const Message& message)
{
    return QString::fromStdString(message.In([](const Phrase& phrase) {
        return QCoreApplication::translate(phrase.context, phrase.english).toStdString();
    }));
}

}  // namespace Desk
