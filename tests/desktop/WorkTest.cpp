// What a day's work is made of, each from its first press to the file, with the presses counted.
#include <map>
#include <set>

#include "desk/drawing/Export.h"
#include "desk/project/Making.h"
#include "tests/desktop/Session.h"

namespace {

using namespace Desk;

class Work : public Session {
protected:
    void CountFromHere() { m_clicks = m_keys = 0; }
    void Tell(const char* what) const
    {
        std::cout << what << ": " << m_clicks << " clicks, " << m_keys << " keys\n";
    }
    static std::vector<std::string> Rows(const json& report, const char* list)
    {
        std::vector<std::string> texts;
        const json widget = report["widgets"].value(list, json::object());  // none while it is hidden
        for (const json& row : widget.value("rows", json::array())) {
            texts.push_back(row["text"]);
        }
        return texts;
    }
    [[nodiscard]] static FieldRef ChosenIn(const json& report)
    {
        const json& chosen = report.at("chosen");
        return {chosen["wall"], chosen["index"], static_cast<Field>(chosen["field"].get<int>()),
                chosen["inPlace"]};
    }
    // Gives the chosen annotation a text: the set for the beam or a proposal where there is one.
    void Give(const json& report, const std::string& typed)
    {
        const std::vector<std::string> proposed = Rows(report, "desk/proposals");
        if (!proposed.empty()) {
            Keys(proposed.back().find(", ") != std::string::npos ? "0" : "1");
        } else {
            Keys("Return");
            Type(typed);
            Keys("ctrl+Return");
        }
    }
};

// Seven along the axes by presses, three between them by typed positions; texts by digits, after the first
// beam's were typed; one text dragged.
TEST_F(Work, AnEmptyFloorGetsTenBeamsWithAllTexts)
{
    struct Line {
        PlanPoint from;
        PlanPoint to;
        const char* typed[2];  // null for a press
    };
    static constexpr Line Lines[] = {
        {{0, 0}, {24000, 0}, {}},
        {{0, 6000}, {24000, 6000}, {}},
        {{0, 12000}, {24000, 12000}, {}},
        {{0, 0}, {0, 12000}, {}},
        {{8000, 0}, {8000, 12000}, {}},
        {{16000, 0}, {16000, 12000}, {}},
        {{24000, 0}, {24000, 12000}, {}},
        {{0, 3000}, {8000, 3000}, {"0,3000", "@8000,0"}},
        {{8000, 3000}, {16000, 3000}, {"8000,3000", "@8000,0"}},
        {{16000, 3000}, {24000, 3000}, {"16000,3000", "@8000,0"}},
    };
    const std::map<Field, std::string> first = {{Field::Section, "300x600"},
                                                {Field::Stirrup, "A8@100/200(2)"},
                                                {Field::TopBars, "2B20"},
                                                {Field::BottomBars, "3B22"}};
    Start();
    Keys("ctrl+n");
    WaitFor("the dialog", [](const json& report) { return report["widgets"].contains("newFloor/across"); });
    Keys("Tab");
    Type("3x8000");
    Keys("Tab");
    Type("2x6000");
    Keys("Return");
    WaitFor("the floor", [](const json& report) {
        return report["annotations"].empty() && !report["widgets"].contains("newFloor/across");
    });
    CountFromHere();
    Keys("ctrl+b");
    std::size_t beams = 0;
    for (const Line& line : Lines) {
        for (const bool isEnd : {false, true}) {
            if (line.typed[0] != nullptr) {
                Type(line.typed[isEnd ? 1 : 0]);
                Keys("Return");
            } else {
                const PlanPoint& at = isEnd ? line.to : line.from;
                ClickPlan(at.x, at.y);
            }
        }
        WaitForChosen({false, beams++, Field::Section});
    }
    Keys("Escape");
    Choose({false, 0, Field::Name});
    Keys("space");
    WaitForChosen({false, 0, Field::Section});
    constexpr std::size_t AllTexts = std::size(Lines) * 5;  // names too
    for (json now = Settled(); now["annotations"].size() < AllTexts;) {
        const FieldRef ref = ChosenIn(now);
        ASSERT_TRUE(first.contains(ref.field)) << RowOf(ref.field).key;
        Give(now, first.at(ref.field));
        const std::size_t before = now["annotations"].size();
        WaitFor("the text", [&](const json& report) {
            now = report;
            return now["annotations"].size() > before && now.contains("chosen");
        });
        ASSERT_FALSE(HasFatalFailure());
    }
    Tell("ten new beams with all texts");

    const FieldRef name{false, 0, Field::Name};
    const json place = PlaceOf(Settled(), name);
    Drag(place, 60, 90);
    WaitFor("the dragged text", [&](const json& report) { return PlaceOf(report, name) != place; });
    const auto onPlan = [&](const json& report) {
        const json at = PlaceOf(report, name);
        const json& plan = report["plan"];
        const auto along = [&](std::size_t i) {
            return (at[i].get<double>() - plan[i].get<double>()) / plan[2].get<double>();
        };
        return std::pair(along(0), along(1));
    };
    const auto [x, y] = onPlan(Report());
    m_file = m_folder + "/new.json";
    Keys("ctrl+s");
    AnswerFile(m_file);
    WaitFor("the save", [](const json& report) { return report["changed"] == false; });
    Keys("ctrl+q");
    EXPECT_EQ(WaitForEnd(), 0);

    const Project saved = OpenProject(m_file);
    ASSERT_EQ(saved.beams.size(), std::size(Lines));
    std::set<std::string> names;
    for (std::size_t i = 0; i < std::size(Lines); ++i) {
        const Beam& beam = saved.beams[i];
        EXPECT_TRUE(IsSame(beam.start, Lines[i].from) && IsSame(beam.end, Lines[i].to)) << beam.name;
        names.insert(beam.name);
        for (const auto& [field, text] : first) {
            EXPECT_FALSE((beam.*RowOf(field).ofBeam).empty()) << beam.name << ' ' << RowOf(field).key;
        }
    }
    EXPECT_EQ(names.size(), std::size(Lines));
    EXPECT_EQ(saved.beams[0].stirrup, first.at(Field::Stirrup));
    EXPECT_FALSE(IsSame(saved.beams[0].textsAt, {}));
    Start();
    const json again = Settled();
    EXPECT_EQ(again["annotations"].size(), AllTexts);
    constexpr double Pixels = 3.0;
    const double near = Pixels / again["plan"][2].get<double>();
    EXPECT_NEAR(onPlan(again).first, x, near);
    EXPECT_NEAR(onPlan(again).second, y, near);
}

// Each clicked, and one click more for the text of all.
TEST_F(Work, TenBeamsAreChangedAtOnceAndChangedBack)
{
    Start();
    const std::string before = ReadWholeFile(m_file);
    const Project sample = SampleProject();
    std::vector<FieldRef> refs;
    std::vector<json> places;
    const json shown = Settled();
    for (const json& each : shown["annotations"]) {
        const FieldRef ref = {each["wall"], each["index"], static_cast<Field>(each["field"].get<int>()),
                              each["inPlace"]};
        if (!ref.isWall && ref.field == Field::BottomBars && ref.inPlace < 0 && refs.size() < 10) {
            refs.push_back(ref);
            places.push_back(each["place"]);
        }
    }
    ASSERT_EQ(refs.size(), 10U);
    CountFromHere();
    Click(places[0]);
    WaitForChosen(refs[0]);
    Shell("xdotool keydown ctrl");
    for (std::size_t i = 1; i < refs.size(); ++i) {
        Click(places[i]);
    }
    Shell("xdotool keyup ctrl");
    std::string given;
    json row;
    const json offered = Settled();
    for (const json& each : offered["widgets"]["desk/choices"]["rows"]) {
        const std::string text = each["text"];
        const bool isBars = text.size() == 4 && text[1] == 'B';
        const bool isNew = std::none_of(refs.begin(), refs.end(),
                                        [&](const FieldRef& ref) { return TextAt(sample, ref) == text; });
        if (isBars && isNew) {
            given = text;
            row = each["place"];
            break;
        }
    }
    ASSERT_FALSE(given.empty());
    Click(row);
    WaitFor("the change", [](const json& report) { return report["changed"] == true; });
    EXPECT_EQ(m_clicks, 11);
    Tell("one text on ten beams (Ctrl held meanwhile)");
    Save();
    Project changed = sample;
    for (const FieldRef& ref : refs) {
        TextAt(changed, ref) = given;
    }
    EXPECT_EQ(FormatProject(ReadProject(m_file)), FormatProject(changed));
    Keys("ctrl+z");
    WaitFor("the undo", [](const json& report) { return report["changed"] == true; });
    Save();
    EXPECT_EQ(ReadWholeFile(m_file), before);
}

// What was planted in the sample, where nothing is found: texts that nothing reads and bars that are too
// few, each gone to by F8 and mended by a digit where it is proposed.
TEST_F(Work, ProblemsAreFoundByAKeyAndMended)
{
    constexpr std::size_t Planted = 20;
    const Project sample = SampleProject();
    Project planted = sample;
    for (std::size_t i = 0; i < Planted; ++i) {
        const std::size_t beam = i * (sample.beams.size() - 1) / Planted;
        TextAt(planted, {false, beam, i % 2 == 0 ? Field::BottomBars : Field::Stirrup}) =
            i % 2 == 0 ? "2B12" : "A8@1oo/200(2)";
    }
    SaveProject(planted, m_file);
    Start();
    const std::string count = "desk/problemCount";
    WaitFor("the problems", [&](const json& report) {
        return Shown(report, count).find("problem") != std::string::npos &&
               Shown(report, count) != "No problems";
    });
    CountFromHere();
    for (int i = 0; i < 60 && Shown(Report(), count) != "No problems" && !HasFatalFailure(); ++i) {
        const json before = Report();
        Keys("F8");
        WaitFor("the next problem", [&](const json& report) {
            return report["status"] != before["status"] && report.contains("chosen");
        });
        const json now = Settled();
        const FieldRef ref = ChosenIn(now);
        const std::string wanted = TextAt(sample, ref);
        const json& all = now["annotations"];
        if (std::any_of(all.begin(), all.end(),
                        [&](const json& each) { return IsOf(each, ref) && each["text"] == wanted; })) {
            continue;  // stirrups too far apart for thin bars: the bars are what is wrong
        }
        const std::vector<std::string> proposed = Rows(now, "desk/proposals");
        const auto at = std::find(proposed.begin(), proposed.end(), wanted);
        const auto digit = at - proposed.begin() + 1;
        if (at != proposed.end() && digit <= 3) {
            Keys(std::to_string(digit));
        } else {
            Keys("Return");
            Type(wanted);
            Keys("ctrl+Return");
        }
        WaitFor("the mended text",
                [&](const json& report) { return Shown(report, count) != Shown(now, count); });
    }
    Tell("problems of 20 planted errors found and mended");
    Save();
    EXPECT_EQ(FormatProject(ReadProject(m_file)), FormatProject(sample));
}

// Opened from the window, changed, taken back in part, saved and opened again.
TEST_F(Work, ADrawingIsOpenedEditedAndReopened)
{
    const std::string drawing = m_folder + "/plan.dxf";
    ReplaceFile(drawing, FormatDrawing(SampleProject()));
    Start();
    Keys("ctrl+o");
    AnswerFile(drawing);
    WaitFor("the drawing", [](const json& report) {
        return report["title"].get<std::string>().find("plan.dxf") != std::string::npos;
    });
    m_file = drawing;
    const FieldRef top{false, 0, Field::TopBars};
    const FieldRef stirrup{false, 0, Field::Stirrup};
    const std::string before = Saved(stirrup);
    Enlarge(top);
    CountFromHere();
    Choose(top);
    TakeCandidate("2B25");
    Tell("one text from the list");
    Choose(stirrup);
    CountFromHere();
    Keys("Delete");
    WaitFor("the cleared text", [&](const json& report) { return PlaceOf(report, stirrup).is_null(); });
    Tell("one annotation cleared, once it is chosen");
    Keys("ctrl+z");
    WaitFor("the text again", [&](const json& report) { return !PlaceOf(report, stirrup).is_null(); });
    Save();
    Keys("ctrl+q");
    EXPECT_EQ(WaitForEnd(), 0);
    EXPECT_EQ(Saved(top), "2B25");
    EXPECT_EQ(Saved(stirrup), before);
    Start();
    const json shown = Settled();
    for (const json& each : shown["annotations"]) {
        if (IsOf(each, top)) {
            EXPECT_EQ(each["text"], "2B25");
        }
    }
}

}  // namespace
