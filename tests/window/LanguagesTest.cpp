// The languages of the interface: nothing is left in English in the Chinese one.
#include <functional>

#include <gtest/gtest.h>

#include "desk/project/Encoding.h"
#include "desk/project/ProjectFile.h"
#include "desk/window/MainWindow.h"

namespace {

using namespace Desk;

// Words in Latin letters that are no keys, names or annotations.
QStringList EnglishIn(QString text)
{
    static const QRegularExpression known(
        "“[^”]*”|/[!-~]+|beamdesk|English|(Ctrl|Shift)\\+[\\w+]*|Esc|Del|\\bmm\\b");
    static const QRegularExpression word("[A-Za-z]?[a-z]{2,}");
    QStringList words;
    for (const QRegularExpressionMatch& match : word.globalMatch(text.remove(known))) {
        words << match.captured() + " in " + text;
    }
    return words;
}

TEST(Languages, TheWindowIsAllChineseInChinese)
{
    QSettings().clear();
    QtDisplay display{{Utf8FromGbk, GbkFromUtf8}};
    MainWindow window(display);
    window.Files().OpenSample();
    window.SetLanguage(Language::Chinese);
    QStringList shown;
    const auto collect = [&](const FieldRef& chosen) {
        window.Choose(chosen);
        for (const auto* const action : window.findChildren<QAction*>()) {
            shown << action->text() << action->iconText() << action->statusTip() << action->toolTip();
        }
        for (const auto* const widget : window.findChildren<QWidget*>()) {
            shown << widget->windowTitle() << widget->toolTip() << widget->property("text").toString()
                  << widget->property("title").toString() << widget->property("placeholderText").toString();
        }
        for (const auto* const tree : window.findChildren<QTreeWidget*>()) {
            for (QTreeWidgetItemIterator at(const_cast<QTreeWidget*>(tree)); *at != nullptr; ++at) {
                shown << (*at)->text(0) << (*at)->text(1) << (*at)->toolTip(0);
            }
        }
    };
    window.findChild<QCheckBox*>("table")->click();
    for (const Field field : BeamFields()) {
        collect({false, 1, field});
    }
    collect({true, 0, Field::VerticalBars});
    EXPECT_GT(shown.removeDuplicates(), 0);
    EXPECT_GT(shown.filter(QRegularExpression("[一-龥]")).size(), 100);
    for (const QString& text : shown) {
        EXPECT_EQ(EnglishIn(text).join('|').toStdString(), "");
    }
    const QAction& save = *window.findChild<QAction*>("save");
    EXPECT_TRUE(save.text().startsWith("保存"));
    window.SetLanguage(Language::English);
    EXPECT_EQ(save.text(), "&Save");
}

TEST(Languages, FailuresAreToldInTheLanguageOfTheWindow)
{
    std::vector<std::string> wrong = {"", "\xFF", "{", std::string("[\0]", 3), std::string(100, '[')};
    for (const char* const text :
         {R"({"a": tru})", "[1e999]", "[-]", "[1 2]", "[\"\n\"]", R"(["\u0g"])", R"({"a": 1, "a": 2})",
          "[]", "{}", R"({"version": 2})", R"({"version": []})", R"({"version": 1, "beams": {}})",
          R"({"version": 1, "walls": [7]})", R"({"version": 1, "walls": [{}]})"}) {
        wrong.emplace_back(text);
    }
    for (const char* const member :
         {R"("side": 1)", R"("side": "\n")", R"("side": "😀")", R"("seismicClass": "")",
          R"("seismicClass": 9)", R"("area": 9)", R"("end": 9)", R"("spans": 9)", R"("spans": [0])",
          R"("inPlace": [9])", R"("inPlace": [{}])", R"("inPlace": [{"role": "x"}])",
          R"("inPlace": [{"role": "stirrup"}])",
          R"("inPlace": [{"role": "side", "span": 1, "height": -1}])"}) {
        wrong.push_back(R"({"version": 1, "beams": [{"name": "L1", )" + std::string(member) + "}]}");
    }
    std::vector<std::function<void()>> failing = {
        [] { static_cast<void>(ReadProject("/")); }, [] { static_cast<void>(ReadProject("/none")); },
        [] { SaveProject(SampleProject(), "/"); }, [] { SaveProject(SampleProject(), "/none/p.json"); },
        [] { SaveProject(SampleProject(), "/dev/null"); }};
    for (const std::string& text : wrong) {
        failing.emplace_back([&text] { static_cast<void>(ParseProject(text, "/f")); });
    }
    for (const auto& fail : failing) {
        try {
            fail();
            ADD_FAILURE();
        } catch (const Failure& failure) {
            ApplyLanguage(Language::Chinese);
            EXPECT_EQ(EnglishIn(Told(failure)).join('|').toStdString(), "");
            EXPECT_TRUE(Told(failure).startsWith('/')) << "the file comes first";
            ApplyLanguage(Language::English);
            EXPECT_EQ(Told(failure), failure.what());
        }
    }
    EXPECT_STREQ(Failure(Phrase("Desk", "%1: %2 %3"), "%2", "x").what(), "%2: x %3");
}

}  // namespace
