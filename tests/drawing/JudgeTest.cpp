// An independent reader opens what was written and sees exactly the changed entities.
#include <algorithm>
#include <set>

#include <gtest/gtest.h>

#include "tests/drawing/Floors.h"
#include "tests/drawing/Told.h"
#include "tests/support/Folder.h"

namespace Desk {
namespace {

std::string Judged(const std::filesystem::path& folder)
{
    std::string told;
    FILE* const pipe = popen((JUDGE " " + folder.string() + " 2>&1").c_str(), "r");
    for (int ch = std::fgetc(pipe); ch != EOF; ch = std::fgetc(pipe)) {
        told += static_cast<char>(ch);
    }
    pclose(pipe);
    return told;
}

std::string Joined(const std::set<std::string>& handles)
{
    std::string joined;
    for (const std::string& handle : handles) {
        joined += (joined.empty() ? "" : " ") + handle;
    }
    return joined.empty() ? "-" : joined;
}

TEST(JudgedDrawing, HasExactlyTheChangesOfTheEdit)
{
    const Folder folder;
    std::set<std::string> expected;
    for (const Shape& shape : Shapes) {
        if (!shape.hasHandles) {
            continue;  // the judge counts for itself
        }
        const std::string bytes = Draw(shape, SmallFloor());
        const Drawing drawing = Parsed(bytes);
        Project project = drawing.Get();
        std::set<std::string> changed;
        std::set<std::string> removed;
        const auto edit = [&](const FieldRef& ref, const std::string& text) {
            TextAt(project, ref) = text;
            for (const AnnotationText& one : drawing.Texts()) {
                if (std::find(one.refs.begin(), one.refs.end(), ref) != one.refs.end()) {
                    (text.empty() ? removed : changed).insert(one.handle);
                }
            }
        };
        edit({false, 0, Field::Section}, "350x800");
        edit({false, 1, Field::BottomBars}, "5C25 2/3");
        edit({false, 4, Field::Stirrup}, "A8@100(2)");
        edit({false, 0, Field::LeftEnd, 1}, "6C22 3/3");
        edit({false, 0, Field::BottomBars, 3}, "");
        const bool addsRecord = shape.labels == LabelAs::Lines;
        if (shape.labels != LabelAs::Attributes) {
            project.beams[4].elevation = "(-0.700)";
        }
        std::set<std::string> added;
        const std::string written = drawing.Written(project);
        const Drawing again = Parsed(written);
        for (const AnnotationText& text : again.Texts()) {
            added.insert(text.handle);
        }
        for (const AnnotationText& text : drawing.Texts()) {
            added.erase(text.handle);
        }
        EXPECT_EQ(added.size(), addsRecord ? 1U : 0U) << shape.name;
        WriteFile(folder / (std::string(shape.name) + ".before.dxf"), bytes);
        WriteFile(folder / (std::string(shape.name) + ".after.dxf"), written);
        expected.insert(std::string(shape.name) + ": changed " + Joined(changed) + ", removed " +
                        Joined(removed) + ", added " + Joined(added) + "\n");
    }
    std::string all;
    for (const std::string& line : expected) {
        all += line;
    }
    EXPECT_EQ(Judged(folder.Path()), all);
}

}  // namespace
}  // namespace Desk
