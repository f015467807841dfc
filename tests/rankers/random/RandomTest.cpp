// Random lists: the rankers, text rules and look-ups against their literal definitions.
#include <gtest/gtest.h>

#include "tests/rankers/random/MakeTexts.h"
#include "tests/support/Seed.h"
#include "tests/yardstick/Rules.h"

using namespace Yardstick;

namespace {

// RANDOM_LISTS in the environment asks for another number of trials a test.
unsigned Trials(unsigned usual)
{
    const char* wanted = std::getenv("RANDOM_LISTS");
    return wanted != nullptr ? static_cast<unsigned>(std::strtoul(wanted, nullptr, 10)) : usual;
}

// Each trial has a seed of its own, so a failure names what to run again.
template <class Trial>
void Try(unsigned usual, Trial trial)
{
    const unsigned first = FirstSeed(1);
    for (unsigned seed = first; seed < first + Trials(usual); ++seed) {
        Chance chance(seed);
        ASSERT_EQ(trial(chance), "") << SeedName(seed);
    }
}

// Most lists are short, since a run is what matters; now and then a long one.
unsigned LengthOf(Chance& chance)
{
    return chance.OneIn(20) ? 120U : static_cast<unsigned>(chance.Of({2, 9, 12, 30}));
}

TEST(RandomLists, Bars)
{
    Try(4000, [](Chance& chance) {
        Case c;
        c.kind =
            chance.OneIn(3) ? chance.Bars() : chance.Of({"1", "2", "3", "4", "5.1", "5.2", "2B20", "1 "});
        c.numbers = {chance.Of({199, 200, 250, 300, 350, 400, 450, 500, 550, 700, 701}),
                     static_cast<int>(chance.Below(8000)), 0, chance.Of({2, 0})};
        c.texts = chance.Texts(LengthOf(chance), &Chance::Bars);
        c.steps = chance.Steps("-pgesnfmhcd0123axzk+");
        return AgreeBars(c);
    });
}

TEST(RandomLists, Stirrups)
{
    Try(3000, [](Chance& chance) {
        Case c;
        c.kind = chance.Stirrup();
        c.numbers = {chance.Of({200, 250, 300, 350, 400, 600, 220}), chance.Of({0, 1, 2, 3, 4, 5}),
                     chance.Of({20, 25, 30, 35, 40, 22}), chance.Of({2, 0})};
        c.texts = chance.Texts(LengthOf(chance), &Chance::Stirrup);
        c.steps = chance.Steps("-pgesc0axzk+");
        return AgreeStirrups(c);
    });
}

void TryPlainly(unsigned usual, std::string (Chance::*make)(), const char* steps,
                std::string (*agree)(const Case&))
{
    Try(usual, [&](Chance& chance) {
        Case c;
        c.kind = (chance.*make)();
        c.numbers[3] = chance.Of({2, 0});
        c.texts = chance.Texts(LengthOf(chance), make);
        c.steps = chance.Steps(steps);
        return agree(c);
    });
}

TEST(RandomLists, Sections) { TryPlainly(4000, &Chance::Section, "-pgesk+", AgreeSections); }
TEST(RandomLists, Elevations) { TryPlainly(4000, &Chance::Elevation, "-pges+", AgreeElevations); }
TEST(RandomLists, Names) { TryPlainly(3000, &Chance::Name, "-pgesqblk+", AgreeNames); }

TEST(RandomLists, FreeSerials)
{
    Try(4000, [](Chance& chance) {
        std::vector<unsigned> serials;
        const unsigned range = chance.OneIn(2) ? 12 : 60;
        for (unsigned i = chance.Below(15); i > 0; --i) {
            serials.push_back(chance.OneIn(20) ? static_cast<unsigned>(chance.AnyNumber())
                                               : chance.Below(range));
        }
        return AgreeFreeSerials(serials);
    });
}

TEST(RandomTexts, Rules)
{
    Try(20000, [](Chance& chance) {
        constexpr std::array makers{&Chance::Bars, &Chance::Stirrup, &Chance::Section, &Chance::Elevation,
                                    &Chance::Name};
        const std::string a = (chance.*makers[chance.Below(makers.size())])();
        const std::string b = (chance.*makers[chance.Below(makers.size())])();
        return AgreeRules(a, b);
    });
}

TEST(RandomLookUps, Tables)
{
    SteelTable table;
    table.InintOnce();
    Try(3000, [&](Chance& chance) {
        // Areas at the edges of the tolerances around a row, or anywhere.
        const SteelRow& row = table.rows[chance.Below(table.rows.size())];
        const int nearby = row.area + chance.Of({-70, -69, -30, -29, 0, 29, 30, 69, 70});
        Case c;
        c.kind = chance.OneIn(4) ? chance.Of({"2B12", "4B25", "", "2B99"}) : row.top;
        c.numbers = {chance.OneIn(4) ? 149 + 25 * static_cast<int>(chance.Below(25)) + chance.Of({0, 1, 2})
                                     : row.width,
                     chance.OneIn(4) ? chance.Of({0, 100, 3000, 8500, INT_MAX, INT_MIN}) : nearby,
                     chance.Of({20, 25, 30, 35, 40, 22}), chance.Of({0, 1, 2, 3, 4, 5})};
        c.texts = chance.OneIn(3) ? chance.Texts(10, &Chance::Bars) : List();
        c.steps = chance.Of({"t0a0d0x0g", "a0xxt0dg", "x0x0x0g", "g0tadxg", "d0at0gg"});
        return AgreeLookUps(c, chance.OneIn(2) ? 1 : chance.Below(3));
    });
}

}  // namespace
