// Pictures as text: columns line up in cells, whatever stands in them.
#include "desk/console/panel/Draw.h"

#include <gtest/gtest.h>

namespace {

using namespace Desk::Panels;

Control Make(WindowKind kind, CRect place, std::string text, std::vector<std::string> rows = {})
{
    Control control;
    control.kind = kind;
    control.id = 7;
    control.place = place;
    control.text = std::move(text);
    control.rows = std::move(rows);
    control.inView = 2;
    return control;
}

TEST(Draw, LinesUpUnderWideHeadingsAndBrokenTexts)
{
    Picture picture;
    picture.controls = {
        Make(WindowKind::Label, {0, 0, 30, 12}, "梁类型"),
        Make(WindowKind::EditBox, {0, 14, 24, 30}, "K\xEF\xBF\xBD"),
        Make(WindowKind::ListBox, {0, 32, 30, 56}, "", {"无", "AA", "BB"}),
        Make(WindowKind::Label, {40, 0, 60, 12}, "x"),
        Make(WindowKind::ListBox, {40, 32, 60, 56}, "", {}),
        Make(WindowKind::Button, {0, 60, 30, 72}, "BK"),
    };
    picture.controls[1].caret = 1;
    picture.controls[2].selection = 0;
    EXPECT_EQ(Draw(picture, false), (std::vector<std::string>{
                                        "梁类型  x",
                                        "[K|\xEF\xBF\xBD ]",
                                        ">无      (no rows)",
                                        " AA ..",
                                        "<BK>",
                                    }));
    picture.controls[2].top = 1;
    const std::vector<std::string> lines = Draw(picture, true);
    EXPECT_EQ(lines[1], "[K|\xEF\xBF\xBD ]7");
    EXPECT_EQ(lines[2], "7        7");
    EXPECT_EQ(lines[3], " AA ..    (no rows)");
}

TEST(Draw, RunsSidewaysWhereTheListDoes)
{
    Control list = Make(WindowKind::ListBox, {0, 0, 130, 12}, "", {"2B22", "+2B25", "+2B20;"});
    list.style = ControlStyle::MultiColumn;
    list.selection = 1;
    Picture picture;
    picture.controls = {list};
    EXPECT_EQ(Draw(picture, false), std::vector<std::string>{" 2B22     >+2B25 .."});
}

}  // namespace
