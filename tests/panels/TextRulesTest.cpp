// Taking names apart, the keys of the elevation, and texts that are fields of their own.
#include <gtest/gtest.h>

#include "panels/LevelText.h"
#include "panels/NameText.h"
#include "panels/SectionText.h"
#include "tests/support/Texts.h"

namespace NameText {
void PrintTo(const Fields& fields, std::ostream* out)
{
    *out << fields.type << '|' << fields.serial << '|' << fields.span << '|' << fields.cantilever;
}
}  // namespace NameText

namespace {

TEST(NameText, DecomposesWhatItReaches)
{
    struct Case {
        const char* name;
        bool reads;
        NameText::Fields fields;  // starting from "?" in every field
    };
    const NameText::Fields untouched{"?", "?", "?", "?"};
    const Case cases[] = {
        {"KL3(2A)", true, {"KL", "3", "2", "A"}},
        {"KL3(2)", true, {"KL", "3", "2", ""}},
        {"KL3(B)", true, {"KL", "3", "", "B"}},
        {"KL12(3)", true, {"KL", "12", "3", ""}},
        {"AL1", true, {"AL", "1", "?", "?"}},
        {"L", true, {"L", "", "?", "?"}},
        {"KL3(2A", true, {"KL", "3", "?", "?"}},
        {"LKL(-)2", true, {"LKL", "", "-", ""}},
        // "A" wins over an earlier "B", and both count behind the bracket too.
        {"KL3(2BA)", true, {"KL", "3", "2B", "A"}},
        {"KL3(2)B", true, {"KL", "3", "2)", "B"}},
        // A letter of the type is no cantilever mark.
        {"AL3(2)", true, {"AL", "3", "2", ""}},
        {"BKL3(2)", true, {"BKL", "3", "2", ""}},
        {"BAL3(2B)", true, {"BAL", "3", "2", "B"}},
        // Parts that stand the wrong way round are empty.
        {"K(2)L3", true, {"K(2)L", "", "2", ""}},
        {"KL)3(2", true, {"KL", ")3", "", ""}},
        {"", false, untouched},
        {"kz3(2A)", false, untouched},
    };
    for (const Case& c : cases) {
        NameText::Fields fields = untouched;
        EXPECT_EQ(NameText::Decompose(c.name, fields), c.reads) << c.name;
        EXPECT_EQ(fields, c.fields) << c.name;
    }
    for (CString NameText::Fields::*const field : {&NameText::Fields::type, &NameText::Fields::serial}) {
        NameText::Fields fields = untouched;
        fields.*field = "KL3(2A)";
        NameText::Decompose(fields.*field, fields);
        EXPECT_EQ(fields, (NameText::Fields{"KL", "3", "2", "A"}));
    }
}

// Whether composed or cut, a text may be one of the fields that go with it.
TEST(TextRules, TheTextMayBeAField)
{
    NameText::Fields name{"KL", "3", "2", "A"};
    NameText::Compose(name, name.span);
    EXPECT_EQ(name.span, "KL3(2A)");
    SectionText::Fields section{"s", "300x600 Y500x250", "h"};
    SectionText::Decompose(section.width, section);
    EXPECT_EQ(section.width + section.separator + section.height, "300s600");
}

// Each key as a letter: digits and "." as they are, "-" sign, "b" brackets, "<" back.
CString Typed(const char* start, const char* keys)
{
    CString level(start);
    for (const char* key = keys; *key != '\0'; ++key) {
        switch (*key) {
        case '.': LevelText::AddPoint(level); break;
        case '-': LevelText::AddMinus(level); break;
        case 'b': LevelText::AddBrackets(level); break;
        case '<': LevelText::TakeBack(level); break;
        default: LevelText::Add(level, CString(*key)); break;
        }
    }
    return level;
}

TEST(LevelText, Keys)
{
    struct Case {
        const char* start;
        const char* keys;
        const char* level;
    };
    const Case cases[] = {
        {"", "0.3.", "0.3"},
        {"", "..", "."},
        {"", "3--", "-3"},
        {"", "0.3b", "(0.3)"},
        {"", "0.3b-", "(-0.3)"},
        {"", "0.3b-5", "(-0.35)"},
        {"", "b", "()"},
        {"", "b5", "(5)"},
        {"", "bb", "()"},
        {"(-0.35)", "<", "-0.35"},
        {"(-0.35)", "<<", "-0.3"},
        {"7", "<", ""},
        {"", "<", ""},
        {"", "-", "-"},
        {"()", "<", ""},
        {"()", "-", "(-)"},
        {"", "b.", "(.)"},
        // Texts that the keypad did not make.
        {"(", "5", "(5)"},
        {"(1", "5", "(5)"},
        {"1)", "<", ""},
        {"a(1", "b", "a(1"},
        {"\xB1\xEA", "<", ""},
        {"1\xB1", "<", "1"},
        {"\xB1\xEA\xB8\xDF", "<", "\xB1\xEA"},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(Typed(c.start, c.keys), c.level) << c.start << ' ' << c.keys;
    }
}

}  // namespace
