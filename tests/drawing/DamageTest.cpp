// Damaged drawings give a clear failure or a reading; never a crash, a hang, or other bytes.
#include <chrono>
#include <random>

#include <gtest/gtest.h>

#include "desk/project/Failure.h"
#include "tests/drawing/Floors.h"
#include "tests/drawing/Told.h"
#include "tests/support/Seed.h"

namespace Desk {
namespace {

// A copy with one fault: bytes flipped, a stretch of lines cut out, doubled, or put elsewhere, the end
// gone.
std::string Damaged(std::string bytes, std::mt19937& random)
{
    const auto below = [&](std::size_t count) { return random() % count; };
    const auto lineAt = [&](std::size_t at) {
        const std::size_t end = bytes.find('\n', at);
        return end == std::string::npos ? bytes.size() : end + 1;
    };
    const std::size_t from = lineAt(below(bytes.size()));
    std::size_t to = from;
    for (std::size_t lines = 1 + below(30); lines > 0; --lines) {
        to = lineAt(to);
    }
    switch (below(6)) {
    case 0:
        for (std::size_t flips = 1 + below(8); flips > 0; --flips) {
            bytes[below(bytes.size())] = static_cast<char>(random());
        }
        return bytes;
    case 1: return bytes.substr(0, below(bytes.size()));
    case 2: return bytes.erase(from, to - from);
    case 3: return bytes.insert(from, bytes.substr(from, to - from));
    case 4: return bytes.insert(lineAt(below(bytes.size())), bytes.substr(from, to - from));
    default: {
        // A number that is too large for anything.
        const char* const numbers[] = {"1e308", "-1e308", "nan",   "99999999999999999999",
                                       "-7",    "",       "1e-320"};
        return bytes.replace(from, bytes.find_first_of("\r\n", from) - from,
                             numbers[below(std::size(numbers))]);
    }
    }
}

TEST(DamagedDrawing, IsReadOrRefusedAndNothingElse)
{
    const unsigned seed = FirstSeed(99);
    int read = 0;
    int refused = 0;
    for (const Shape& shape : Shapes) {
        const std::string whole = Draw(shape, SmallFloor());
        for (unsigned trial = 0; trial < 120; ++trial) {
            SCOPED_TRACE(std::string(shape.name) + ", " + SeedName(seed + trial));
            std::mt19937 random(seed + trial);
            std::string bytes = Damaged(whole, random);
            if (trial % 3 == 0) {
                bytes = Damaged(bytes, random);
            }
            try {
                const Drawing drawing = Parsed(bytes);
                ++read;
                ASSERT_EQ(drawing.Written(drawing.Get()), bytes);
                Project edited = drawing.Get();
                for (Beam& beam : edited.beams) {
                    beam.topBars = "7D7";
                }
                try {
                    static_cast<void>(drawing.Written(edited));
                } catch (const Failure& failure) {  // a label that takes no new line
                    ASSERT_NE(std::string(failure.what()), "");
                }
            } catch (const Failure& failure) {
                ++refused;
                ASSERT_EQ(std::string(failure.what()).find("floor.dxf"), 0U) << failure.what();
            }
        }
    }
    EXPECT_GT(read, refused / 4);
    EXPECT_GT(refused, 0);
}

// Blocks that hold themselves or each other many times over, and arrays without end.
TEST(DamagedDrawing, InsertsWithoutEndComeToAnEnd)
{
    const auto file = [](const std::string& blocks, const std::string& entities) {
        return "0\nSECTION\n2\nBLOCKS\n" + blocks + "0\nENDSEC\n0\nSECTION\n2\nENTITIES\n" + entities +
               "0\nENDSEC\n0\nEOF\n";
    };
    const auto insert = [](const std::string& name, const std::string& more = "") {
        return "0\nINSERT\n8\n0\n2\n" + name + "\n10\n0\n20\n0\n" + more;
    };
    const auto block = [](const std::string& name, const std::string& content) {
        return "0\nBLOCK\n8\n0\n2\n" + name + "\n10\n0\n20\n0\n" + content + "0\nENDBLK\n8\n0\n";
    };
    const std::string text = "0\nTEXT\n8\nT\n10\n0\n20\n0\n40\n300\n1\nKL1(2)\n";
    std::string nested = block("N0", text);
    for (int i = 1; i < 60; ++i) {
        const std::string inner = insert("N" + std::to_string(i - 1));
        nested += block("N" + std::to_string(i), inner + inner);
    }
    const std::string files[] = {
        file(block("A", insert("A") + text), insert("A")),
        file(block("A", insert("B")) + block("B", insert("A") + text), insert("A")),
        file(nested, insert("N59")),
        file(block("A", text), insert("A", "70\n30000\n71\n30000\n44\n1\n45\n1\n")),
        file(block("A", text), insert("A", "70\n2147483647\n71\n2147483647\n44\n1\n45\n1\n")),
        file("", insert("none") + text),
    };
    const auto begin = std::chrono::steady_clock::now();
    for (const std::string& bytes : files) {
        try {
            const Drawing drawing = Parsed(bytes);
            EXPECT_EQ(drawing.Written(drawing.Get()), bytes);
        } catch (const Failure& failure) {
            EXPECT_EQ(std::string(failure.what()).find("floor.dxf"), 0U) << failure.what();
        }
    }
    EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(20));
}

}  // namespace
}  // namespace Desk
