// Texts across the border: both encodings, the text rules, lists and tables.
#include <array>

#if __has_include(<iconv.h>)
#include <iconv.h>
#endif

#include "tests/c/CHost.h"

namespace {

#if __has_include(<iconv.h>)
// By the system's own tables; empty for what it cannot convert.
std::string BySystem(const char* to, const char* from, std::string text)
{
    const iconv_t handle = iconv_open(to, from);
    std::array<char, 16> out{};
    char* in = text.data();
    char* at = out.data();
    std::size_t left = text.size();
    std::size_t room = out.size();
    const bool bDone = iconv(handle, &in, &left, &at, &room) != static_cast<std::size_t>(-1);
    iconv_close(handle);
    return bDone ? std::string(out.data(), at) : std::string();
}

std::string Gbk(const std::string& utf8)
{
    std::array<char, 16> buffer{};
    const bool bDone =
        rk_gbk_from_utf8(utf8.data(), utf8.size(), buffer.data(), buffer.size(), nullptr) == RK_OK;
    return bDone ? buffer.data() : std::string();
}

std::string Utf8(const std::string& gbk)
{
    std::array<char, 16> buffer{};
    const bool bDone =
        rk_utf8_from_gbk(gbk.data(), gbk.size(), buffer.data(), buffer.size(), nullptr) == RK_OK;
    return bDone ? buffer.data() : std::string();
}

TEST(CTexts, AreConvertedAsTheSystemDoes)
{
    int pairs = 0;
    for (int lead = 0x80; lead <= 0xFF; ++lead) {
        for (int trail = 0x21; trail <= 0xFF; ++trail) {
            const std::string gbk = {static_cast<char>(lead), static_cast<char>(trail)};
            const std::string expected = BySystem("UTF-8", "GBK", gbk);
            ASSERT_EQ(expected, Utf8(gbk)) << lead << ' ' << trail;
            ASSERT_EQ(expected.empty() ? std::string() : gbk, expected.empty() ? "" : Gbk(expected));
            pairs += expected.empty() ? 0 : 1;
        }
    }
    EXPECT_GT(pairs, 20000);
    for (int lead = 0x80; lead <= 0xFF; ++lead) {
        for (int second = 0x70; second <= 0xC0; ++second) {
            for (const char* const rest : {"", "\x80", "\xBF\xBF", "\x96z"}) {
                const std::string utf8 = {static_cast<char>(lead), static_cast<char>(second)};
                ASSERT_EQ(BySystem("GBK", "UTF-8", utf8 + rest), Gbk(utf8 + rest)) << lead << ' ' << second;
            }
        }
    }
}

#endif

TEST(CTexts, AreUtf8OrTheBytesThemselves)
{
    const CHost host;
    const Texts utf8 = {"边梁KL1(1)", "2B22", "", "12345678边"};
    const rk_list list = host.NewList(utf8);
    EXPECT_EQ(utf8, TextsOf(list));
    DONE(rk_context_set_encoding(host.m_context, RK_GBK));
    EXPECT_EQ((Texts{"\xB1\xDF\xC1\xBAKL1(1)", "2B22", "", "12345678\xB1\xDF"}), TextsOf(list));
    DONE(rk_list_add(list, "\xC1", 1));  // half a character, as the module itself can leave one
    DONE(rk_context_set_encoding(host.m_context, RK_UTF8));
    const char* text = nullptr;
    EXPECT_EQ(RK_BAD_TEXT, rk_list_text(list, 4, &text, nullptr));
    std::array<rk_text, 5> texts{};
    EXPECT_EQ(RK_BAD_TEXT, rk_list_texts(list, 0, 5, texts.data()));
    EXPECT_EQ(nullptr, texts[0].data);
    std::size_t size = 0;
    EXPECT_EQ(RK_BAD_TEXT, rk_list_block(list, &text, &size));
    DONE(rk_list_remove(list, 4, 1));
    EXPECT_EQ(utf8, TextsOf(list));
}

TEST(CTexts, ComeAndGoInBlocks)
{
    const CHost host;
    const rk_list list = host.NewList({"first"});
    const std::string block("梁\0\0b\0", 7);
    DONE(rk_list_add_block(list, block.data(), block.size()));
    DONE(rk_list_add_block(list, nullptr, 0));
    EXPECT_EQ((Texts{"first", "梁", "", "b"}), TextsOf(list));
    DONE(rk_list_set(list, 0, "a", 1));
    DONE(rk_list_remove(list, 3, 1));
    const char* text = nullptr;
    std::size_t size = 0;
    DONE(rk_list_block(list, &text, &size));
    EXPECT_EQ(std::string("a\0梁\0\0", 7), std::string(text, size));
    DONE(rk_list_clear(list));
    DONE(rk_list_block(list, &text, &size));
    EXPECT_EQ(0U, size);
}

TEST(CTexts, AreReadAndComposed)
{
    const CHost host;
    const rk_list fields = host.NewList();
    struct Case {
        int what;
        const char* text;
        Texts fields;
        const char* composed;
    };
    const Case cases[] = {
        {RK_NAME, "KL3(2A)", {"KL", "3", "2", "A"}, "KL3(2A)"},
        {RK_SECTION, "300X600/500", {"X", "300", "600"}, "300X600"},
        {RK_STIRRUP, "A10@100(4)/200(2)", {"A", "10", "100", "4", "200", "2"}, "A10@100(4)/200(2)"},
        {RK_BAR_PIECE, "6B25 2/4;", {"6", "B", "25", "2", "4", ";"}, "6B25 2/4;"},
        {RK_BAR_PIECE, "2B22 ", {"2", "B", "22", "", "", " "}, "2B22 "},
        {RK_NAME, "边KL1(1)", {"边KL", "1", "1", ""}, "边KL1(1)"},
    };
    for (const Case& row : cases) {
        DONE(rk_text_read(host.m_context, row.what, row.text, RK_ZERO_ENDED, fields)) << row.text;
        const Texts read = TextsOf(fields);
        EXPECT_EQ(row.fields, read) << row.text;
        std::vector<rk_text> given;
        for (const std::string& field : read) {
            given.push_back(TextFor(field));
        }
        EXPECT_EQ(row.composed,
                  Written(rk_text_compose, host.m_context, row.what, given.data(), given.size()));
    }
    const rk_text empty[6] = {};
    EXPECT_EQ("status 6", Written(rk_text_compose, host.m_context, RK_NAME, empty, std::size_t{4}));
    EXPECT_EQ("status 6", Written(rk_text_compose, host.m_context, RK_STIRRUP, empty, std::size_t{6}));
    EXPECT_EQ(RK_NOT_DONE, rk_text_read(host.m_context, RK_STIRRUP, "200", 3, fields));
    EXPECT_EQ(RK_NOT_DONE, rk_text_read(host.m_context, RK_SECTION, "", 0, fields));
    DONE(rk_name_parts(host.m_context, "WKL12(3A)", 9, fields));
    EXPECT_EQ((Texts{"WKL", "(3A)"}), TextsOf(fields));
}

TEST(CTexts, AreMeasuredAndRewritten)
{
    const CHost host;
    rk_measures m{};
    m.struct_size = sizeof m;
    const auto measure = [&](int what, const char* text) {
        return rk_text_measure(host.m_context, what, text, RK_ZERO_ENDED, &m);
    };
    DONE(measure(RK_NAME, "KL12(3A)"));
    EXPECT_EQ(12, m.serial);
    DONE(measure(RK_SECTION, "300x600/500"));
    EXPECT_EQ((std::pair{300, 600}), (std::pair{m.width, m.height}));
    EXPECT_EQ(0, m.serial);
    DONE(measure(RK_ELEVATION, "-0.300"));
    EXPECT_EQ(-0.3, m.level);
    DONE(measure(RK_STIRRUP, "A10@100/200(4)"));
    EXPECT_EQ((std::array{10, 100, 200, 4}), (std::array{m.diameter, m.tight_spacing, m.spacing, m.legs}));
    DONE(measure(RK_BARS, "2B25"));
    EXPECT_EQ((std::pair{2, 25}), (std::pair{m.count, m.diameter}));
    DONE(measure(RK_WALL_BARS, "B6.5@100/200"));
    EXPECT_EQ((std::array{2, 6, 5, 100, 200}),
              (std::array{m.grade, m.diameter, m.tenths, m.tight_spacing, m.spacing}));
    EXPECT_EQ(RK_NOT_DONE, measure(RK_WALL_BARS, "200"));
    EXPECT_EQ(sizeof m, m.struct_size);

    const rk_context c = host.m_context;
    EXPECT_EQ("2B22", Written(rk_bars_head, c, "N2B22+3B25", RK_ZERO_ENDED));
    EXPECT_EQ("A8@100/200(2)", Written(rk_stirrup_tight_form, c, "A8@200(2)", RK_ZERO_ENDED));
    EXPECT_EQ("(-0.3)", Written(rk_elevation_key, c, "(0.3)", RK_ZERO_ENDED, std::int32_t{RK_KEY_MINUS}));
    EXPECT_EQ("(0.37)", Written(rk_elevation_key, c, "(0.3)", RK_ZERO_ENDED, std::int32_t{'7'}));
    EXPECT_EQ("0.3", Written(rk_elevation_key, c, "(0.3)", RK_ZERO_ENDED, std::int32_t{RK_KEY_BACK}));
    EXPECT_EQ("标", Written(rk_elevation_key, c, "标高", RK_ZERO_ENDED, std::int32_t{RK_KEY_BACK}));
    std::int32_t answer = 9;
    DONE(rk_bars_same_diameter(c, "4B20", 4, "2B20", 4, &answer));
    EXPECT_EQ(1, answer);
    DONE(rk_bars_same_essence(c, "+2B22;", 6, "2B25", 4, &answer));
    EXPECT_EQ(0, answer);
    DONE(rk_text_compare(c, RK_STIRRUP, "A8@200(2)", 9, "A8@150(2)", 9, &answer));
    EXPECT_EQ(1, answer);
    DONE(rk_text_compare(c, RK_BARS, "2B22", 4, "2B22+1B20", 9, &answer));
    EXPECT_EQ(-1, answer);
}

TEST(CTables, TellWhatTheModulesHold)
{
    const CHost host;
    const rk_list list = host.NewList();
    SteelBiao bars;
    bars.InintOnce();
    GuJinBiao stirrups;
    stirrups.InintOnce();
    for (const int width : {199, 250, 300, 449, 700}) {
        for (const int area : {0, 800, 1000, 5000}) {
            const auto same = [&](int what, auto lookUp) {
                EXPECT_EQ(RK_OK, rk_list_clear(list));
                std::int32_t nearest = 0;
                EXPECT_EQ(RK_OK,
                          rk_bar_table_find(host.m_context, what, width, area, "2B20", 4, list, &nearest));
                CStringArray expected;
                EXPECT_EQ(lookUp(expected), nearest);
                EXPECT_EQ(TextsOf(expected), TextsOf(list)) << what << ' ' << width << ' ' << area;
            };
            same(RK_THROUGH_BARS, [&](auto& texts) { return bars.GetTopJin(width, area, texts); });
            same(RK_TOTAL_BARS, [&](auto& texts) { return bars.GetTotalJin(width, area, texts); });
            same(RK_BOTTOM_BARS, [&](auto& texts) { return bars.GetDiJin(width, area, texts); });
            same(RK_TOTAL_ON_THROUGH,
                 [&](auto& texts) { return bars.GetExactTotalJin(width, area, "2B20", texts); });
        }
    }
    DONE(rk_list_clear(list));
    DONE(rk_stirrup_table_find(host.m_context, 300, 40, 1, list));
    CStringArray expected;
    stirrups.GetGuJin(300, 40, 1, expected);
    EXPECT_EQ(TextsOf(expected), TextsOf(list));
    EXPECT_FALSE(expected.IsEmpty());

    std::size_t count = 0;
    DONE(rk_bar_table_count(&count));
    EXPECT_EQ(344U, count);
    rk_bar_row bar{};
    bar.struct_size = sizeof bar;
    int width = 0;
    for (std::size_t i = 0; i < count; ++i) {
        DONE(rk_bar_table_row(i, &bar));
        EXPECT_LE(width, bar.width);
        width = bar.width;
    }
    const SteelBiaoItem& last = bars.m_arBiao600[bars.m_arBiao600.GetSize() - 1];
    EXPECT_EQ(last.m_nArea, bar.area);
    EXPECT_STREQ(last.m_strTotalJin, bar.total.data);
    EXPECT_STREQ(last.m_strDiJin, bar.bottom.data);
    DONE(rk_stirrup_table_count(&count));
    EXPECT_EQ(214U, count);
    rk_stirrup_row stirrup{};
    stirrup.struct_size = sizeof stirrup;
    DONE(rk_stirrup_table_row(count - 1, &stirrup));
    const GuJinItem& end = stirrups.m_arBiao40[stirrups.m_arBiao40.GetSize() - 1];
    EXPECT_EQ((std::pair{end.m_nWidth, end.m_nGrade}), (std::pair{stirrup.width, stirrup.grade}));
    EXPECT_EQ(end.m_dRatio, stirrup.ratio);
    EXPECT_STREQ(end.m_strGuJinJiaMi, stirrup.tight.data);
}

}  // namespace
