// Single texts of drawings: what they are read as, in the module's own words.
#include <gtest/gtest.h>

#include <random>

#include "desk/reading/Bars.h"
#include "desk/reading/BeamName.h"
#include "desk/reading/Section.h"
#include "desk/reading/Stirrup.h"
#include "tests/reading/Readings.h"
#include "tests/support/Seed.h"

namespace Desk {
namespace {

struct Case {
    const char* drawn;
    Kind kind;
    const char* told;
};

// The same texts with the kind that the file gives; None where the text must speak for itself.
constexpr Case Cases[] = {
    // Grade signs: codes, escapes, the glyphs themselves, letters that do not say the grade.
    {"2%%13020+3%%13322", Kind::None, "top bars 2A20+3D22"},
    {"4\\U+008416", Kind::None, "top bars 4C16"},
    {"4\xC2\x85"
     "16",
     Kind::None, "top bars 4D16"},
    {"4\xEE\x80\x80"
     "16;4\xEE\x94\xB1"
     "18",
     Kind::None, "top bars 4A16, bottom bars 4B18"},
    {"2\\U+03A625", Kind::None, "top bars 2B25"},
    {"2[三级钢]25", Kind::None, "top bars 2C25"},
    {"2φ 25 + 2Ф22", Kind::None, "top bars 2B25+2B22"},
    {"2桅25", Kind::None, "top bars 2B25"},
    {"２Ｃ２５；４Ｃ２５", Kind::None, "top bars 2C25, bottom bars 4C25"},
    {"%%c10@100/200(2)", Kind::None, "stirrup A10@100/200(2)"},
    // Bars: places, joints, rows, what the grammar has no place for.
    {"3C20，5C20", Kind::Bars, "top bars 3C20, bottom bars 5C20"},
    {"B2C18;T3C18", Kind::Bars, "bottom bars 2C18, top bars 3C18"},
    {"2Φ 22+(4Φ 12)", Kind::Bars, "top bars 2B22, erection bars 4B12"},
    {"+(2B12+2B14)", Kind::Bars, "erection bars 2B12+2B14"},
    {"4C22/4C25n4C18", Kind::Bars, "top bars 4C22/4C25, torsion bars N4C18"},
    {"*2B12,g4B12", Kind::Bars, "torsion bars *2B12, side bars G4B12"},
    {"6C25(2/4)", Kind::Bars, "top bars 6C25 2/4"},
    {"6Φ 254/2", Kind::Bars, "top bars 6B25 4/2"},
    {"4C25+2C22 4/2;6C25 2/4", Kind::Bars, "top bars 4C25+2C22 4/2, bottom bars 6C25 2/4"},
    {"6C25/4C25", Kind::Bars, "top bars 6C25/4C25"},
    {"2C25 4/2C20", Kind::Bars, "part: top bars 2C25"},
    {"2C25+3C22(-3)/ 5C25", Kind::Bars, "part: bottom bars 2C25+3C22/5C25"},
    {"6C25 2(-2)/4", Kind::Bars, "part: bottom bars 6C25 2/4"},
    {"9C25(3/3/3)", Kind::Bars, "top bars 9C25 3/3/3"},
    {"6C25 4/2+2C22 1/1/2C20", Kind::Bars, "top bars 6C25 4/2+2C22 1/1/2C20"},
    {"(2C12)", Kind::None, "erection bars 2C12"},
    {"2C25;2C22;2C20", Kind::Bars, "part: top bars 2C25, bottom bars 2C22"},
    {"2C25+", Kind::Bars, "-"},
    {"2C255", Kind::Bars, "-"},
    {"0C25", Kind::Bars, "-"},
    {"2C04", Kind::Bars, "-"},
    // Lost signs: only where one reading is left.
    {"325+(112);625", Kind::None, "top bars 3B25, erection bars 1B12, bottom bars 6B25"},
    {"214;216", Kind::Bars, "top bars 2B14, bottom bars 2B16"},
    {"214;216", Kind::None, "-"},
    {"214", Kind::Bars, "-"},
    {"215;216", Kind::Bars, "-"},
    {"8@100/200(2)", Kind::None, "stirrup A8@100/200(2)"},
    {"8-100(2)", Kind::None, "stirrup A8@100(2)"},
    {"8-100", Kind::Stirrup, "-"},
    {"A8150(2)", Kind::None, "stirrup A8@150(2)"},
    {"A10100/200(4)", Kind::None, "stirrup A10@100/200(4)"},
    {"A8150", Kind::Stirrup, "-"},
    {"A8152(2)", Kind::Stirrup, "-"},
    // Stirrups and wall bars.
    {"A10-100/200(4)", Kind::Stirrup, "stirrup A10@100/200(4)"},
    {"φ 8@100(4)/150(2)", Kind::None, "stirrup A8@100(4)/150(2)"},
    {"A8@200(4", Kind::Stirrup, "stirrup A8@200(4)"},
    {"A8-100(", Kind::Stirrup, "-"},
    {"C8@200", Kind::Stirrup, "stirrup C8@200(2)"},
    {"C8@200", Kind::Distributed, "wall bars C8@200"},
    {"C8@200", Kind::None, "wall bars C8@200"},
    {"C8@100/200", Kind::None, "stirrup C8@100/200(2)"},
    {"C8@100/200", Kind::Distributed, "wall bars C8@100/200"},
    {"N8@100/200(2)", Kind::Stirrup, "-"},
    // Sections and elevations.
    {"200 * 350", Kind::Section, "section 200x350"},
    {"b×h=300×600", Kind::None, "section 300x600"},
    {"300X600/500", Kind::None, "section 300x600/500"},
    {"Y500×250", Kind::None, "section Y500x250"},
    {"350~450x700", Kind::Section, "-"},
    {"（－0.150）", Kind::None, "elevation (-0.150)"},
    {"标高：+3.470", Kind::None, "elevation 3.470"},
    {"标高-0.050~5.350", Kind::Elevation, "-"},
    {"%%p0.000", Kind::None, "elevation 0.000"},
    {"3600", Kind::Elevation, "-"},
    // Names and what only looks like one.
    {"KL2（2A）", Kind::None, "name KL2(2A)"},
    {"KL-3(2A)", Kind::None, "name KL3(2A)"},
    {"A-KL1 (3)", Kind::None, "name A-KL1(3)"},
    {"kl1(4a)", Kind::None, "name kl1(4a)"},
    {"LLk3", Kind::None, "name LLk3"},
    {"KL13a(1)", Kind::None, "name KL13a(1)"},
    {"L999", Kind::None, "name L999"},
    {"L1200", Kind::None, "-"},
    {"LN1", Kind::None, "-"},
    {"KL(1)", Kind::Name, "-"},
    {"KBH1", Kind::Name, "-"},
    {"kl2(3)", Kind::NameTrap, "no beam"},
    {"C30", Kind::None, "no beam"},
    {"Q235", Kind::None, "no beam"},
    {"C65H-C16A/2P+V", Kind::None, "-"},
    {"400×400", Kind::SectionColumn, "no beam"},
    {"\\U+E531", Kind::GlyphCode, "no beam"},
    {"ф", Kind::None, "no beam"},
    {"A", Kind::None, "-"},
    // Whole lines, with separators, without them, with something in between.
    {"KL1(2A) 300x700, A10@100/200(4), 4C25; 4C20", Kind::Combined,
     "name KL1(2A), section 300x700, stirrup A10@100/200(4), top bars 4C25, bottom bars 4C20"},
    {"KL7(3)300×700 Y500×250φ 10@100/200(2) 2Φ 25N4Φ 18(-0.100)", Kind::None,
     "name KL7(3), section 300x700 Y500x250, stirrup A10@100/200(2), top bars 2B25, torsion bars N4B18, "
     "elevation (-0.100)"},
    {"框架梁KL1 b×h=300×600 C8@200", Kind::None, "name KL1, section 300x600, stirrup C8@200(2)"},
    {"KL2(2) 6000,6000 300×700", Kind::Combined, "part: name KL2(2), section 300x700"},
    {"KL2 300x700 rest 2C25", Kind::Combined, "part: name KL2, section 300x700, top bars 2C25"},
    {"KL2 300x700 2C25?", Kind::Combined, "part: name KL2, section 300x700"},
    {"KL2 300x700 250x500", Kind::Combined, "part: name KL2, section 300x700"},
    {"see KL2 on the next sheet", Kind::None, "-"},
    {"", Kind::None, "no beam"},
};

// A text of a field as the strict reader gives it back; empty where it reads none.
std::string Again(Field field, const std::string& text)
{
    const auto told = [](const auto& value) { return value ? value->Text() : std::string(); };
    switch (field) {
    case Field::Name: return told(ReadName(text));
    case Field::Section: return told(ReadSection(text));
    case Field::Elevation: return told(ReadElevation(text));
    case Field::Stirrup:
    case Field::HorizontalBars: return told(ReadStirrup(text));
    default: return told(ReadBars(text));
    }
}

// Nothing is told of texts that the strict readers refuse, as the module does or the section would.
std::string NotReadAgain(const Reading& reading)
{
    if (reading.filled.count(Filled::NameCase) > 0 || reading.filled.count(Filled::RowSum) > 0) {
        return "";
    }
    for (const Annotation& annotation : reading.annotations) {
        if (Again(annotation.field, annotation.text) != annotation.text) {
            return annotation.text;
        }
    }
    return "";
}

TEST(ReadText, ReadsWhatDrawingsHold)
{
    for (const Case& c : Cases) {
        const Reading reading = ReadText(c.drawn, c.kind, Choices());
        EXPECT_EQ(Told(reading), c.told) << c.drawn << " as " << KindWord(c.kind);
        EXPECT_EQ(Fault(c.drawn, reading, Choices()), "") << c.drawn;
        EXPECT_EQ(NotReadAgain(reading), "") << c.drawn;
    }
}

TEST(ReadText, FillsInWhatIsChosen)
{
    const Choices choices{'C', 'D', 4};
    EXPECT_EQ(Told(ReadText("Φ8@200 2Φ25", Kind::None, choices)), "stirrup D8@200(4), top bars 2C25");
    EXPECT_EQ(Told(ReadText("Φ8@200", Kind::Stirrup, {'C', 'D', 0})), "-");
    const Reading reading = ReadText("KL-1 8@100 2Φ25", Kind::None, choices);
    EXPECT_EQ(reading.filled,
              (std::set{Filled::Grade, Filled::LostGrade, Filled::Legs, Filled::NameHyphen}));
    EXPECT_EQ(ReadText("6C25 4/3", Kind::Bars, choices).filled, std::set{Filled::RowSum});
}

TEST(ReadText, TellsWhereTextAndKindDisagree)
{
    EXPECT_EQ(ReadText("2C25", Kind::Section, {}).contradiction,
              "given as section, reads as top bars 2C25");
    EXPECT_EQ(Told(ReadText("2C25", Kind::Section, {})), "top bars 2C25");
    EXPECT_EQ(ReadText("2C25;N2C16", Kind::Bars, {}).contradiction, "");
    EXPECT_NE(ReadText("C8@100/200(2)", Kind::Distributed, {}).contradiction, "");
}

TEST(ReadText, LosesAndMakesUpNothingInRandomTexts)
{
    constexpr std::string_view Stretches[] = {"KL1",    "300x600",  "2C25",   "2C25",   "G4C12",
                                              "A8@100", "6C25(",    "3φ",     " ",      " ",
                                              " ",      ";",        "KL",     "kl",     "L",
                                              "-",      "1",        "2",      "25",     "100",
                                              "300",    "(",        ")",      "/",      "+",
                                              "@",      ";",        ",",      " ",      "x",
                                              "*",      "×",        "Φ",      "A",      "C",
                                              "%%132",  "\\U+E001", "（",     "）",     "G",
                                              "N",      "Y",        "B",      "T",      ".",
                                              "~",      "标高",     "框架梁", "b×h=",   "(2)",
                                              "4/2",    "2C25",     "A8@",    "(-0.1)", "\xEF\xBF\xBD",
                                              "(-3)",   "\x01"};
    std::mt19937 random(FirstSeed(20261122));
    std::size_t taken = 0;
    for (int i = 0; i < 60'000; ++i) {
        std::string drawn;
        for (std::size_t n = random() % 9 + 1; n > 0; --n) {
            drawn += Stretches[random() % std::size(Stretches)];
        }
        const Kind kind = AllKinds[random() % std::size(AllKinds)];
        const Reading reading = ReadText(drawn, kind, Choices());
        ASSERT_EQ(Fault(drawn, reading, Choices()), "") << drawn << " as " << KindWord(kind);
        ASSERT_EQ(NotReadAgain(reading), "") << drawn;
        taken += reading.annotations.empty() ? 0 : 1;
    }
    EXPECT_GT(taken, 3000U);
}

}  // namespace
}  // namespace Desk
