// The document: changes taken back, files, and what a broken-off session leaves.
#include <gtest/gtest.h>

#include "desk/project/Failure.h"
#include "desk/project/Making.h"
#include "desk/project/ProjectFile.h"
#include "desk/window/Document.h"
#include "tests/support/Made.h"

namespace {

using namespace Desk;

constexpr FieldRef Section{false, 0, Field::Section};

class DocumentTest : public testing::Test {
protected:
    [[nodiscard]] QString File(const char* name) const { return folder.filePath(name); }
    [[nodiscard]] QString Recovery() const { return folder.filePath("recovery"); }

    QTemporaryDir folder;
};

TEST_F(DocumentTest, EveryChangeGoesBackAndForth)
{
    Document document{QString()};
    document.OpenSample();
    const std::string first = document.Get().beams[0].section;
    std::vector<FieldRef> told;
    QObject::connect(&document, &Document::TextChanged, [&](const FieldRef& ref) { told.push_back(ref); });
    for (int i = 0; i < 500; ++i) {
        EXPECT_TRUE(document.SetText(Section, QString::number(i) + "x600").isEmpty());
    }
    EXPECT_TRUE(document.SetText(Section, " 499x600 ").isEmpty());
    EXPECT_EQ(document.Changes().count(), 500) << "the same text is no change";
    while (document.Changes().canUndo()) {
        document.Changes().undo();
    }
    EXPECT_EQ(document.Get().beams[0].section, first);
    EXPECT_FALSE(document.IsChanged());
    document.Changes().redo();
    EXPECT_EQ(document.Get().beams[0].section, "0x600");
    EXPECT_EQ(told.size(), 1001U);
}

TEST_F(DocumentTest, SeveralTextsAreOneStepOrNone)
{
    Document document{QString()};
    document.OpenSample();
    constexpr FieldRef Stirrup{false, 1, Field::Stirrup};
    const std::vector<std::string> first = {TextAt(document.Get(), Section),
                                            TextAt(document.Get(), Stirrup)};
    const auto texts = [&] {
        return std::vector{TextAt(document.Get(), Section), TextAt(document.Get(), Stirrup)};
    };
    EXPECT_FALSE(
        document.SetTexts({{Section, "301x601"}, {Stirrup, "A8\n" + QString(QChar(0x7F))}}).isEmpty());
    EXPECT_EQ(texts(), first);
    std::size_t told = 0;
    QObject::connect(&document, &Document::StepDone,
                     [&](const std::vector<FieldRef>& changed) { told += changed.size(); });
    EXPECT_TRUE(
        document
            .SetTexts({{Section, "1x1"},
                       {Stirrup, "A9@99(2)"},
                       {{false, 2, Field::Name}, QString::fromStdString(document.Get().beams[2].name)},
                       {Section, "301x601"}})
            .isEmpty());
    EXPECT_EQ(texts(), (std::vector<std::string>{"301x601", "A9@99(2)"}));
    document.Changes().undo();
    EXPECT_EQ(texts(), first);
    EXPECT_FALSE(document.IsChanged());
    document.Changes().redo();
    EXPECT_EQ(texts(), (std::vector<std::string>{"301x601", "A9@99(2)"}));
    EXPECT_EQ(told, 6U) << "two texts, three times";
    document.SetTexts({{Section, "301x601"}});
    EXPECT_EQ(document.Changes().count(), 1);
}

TEST_F(DocumentTest, RefusesWhatDrawingsCannotHold)
{
    Document document{QString()};
    document.OpenSample();
    for (const QString& text :
         {QString("300\n600"), QString::fromUtf8("\U0001F600"), QString(QChar(0x7F))}) {
        EXPECT_FALSE(document.SetText(Section, text).isEmpty());
    }
    EXPECT_FALSE(document.IsChanged());
    EXPECT_TRUE(document.SetText(Section, QString::fromUtf8("见图")).isEmpty());
}

TEST_F(DocumentTest, SavesAndOpensAndKeepsWhatFails)
{
    Document document{QString()};
    document.OpenSample();
    document.SetText(Section, "999x999");
    document.SaveAs(File("a.json"));
    EXPECT_FALSE(document.IsChanged());
    EXPECT_FALSE(document.Held().IsOther());
    EXPECT_EQ(ReadProject(File("a.json").toStdString()).beams[0].section, "999x999");
    document.SetText(Section, "888x888");
    EXPECT_THROW(document.SaveAs(File("no/such/folder.json")), Failure);
    EXPECT_THROW(document.Open(File("missing.json")), Failure);
    EXPECT_TRUE(document.IsChanged());
    EXPECT_EQ(document.Get().beams[0].section, "888x888");
    EXPECT_EQ(document.File(), File("a.json"));
    for (const bool writes : {false, true}) {
        QFile other(File("a.json"));
        ASSERT_TRUE(other.open(QIODevice::Append));
        other.write(writes ? "\n" : "");
        other.flush();  // what is written later would take the time along
        other.setFileTime(QDateTime::currentDateTime().addSecs(60), QFileDevice::FileModificationTime);
        other.close();
        EXPECT_EQ(document.Held().IsOther(true), writes) << "a touch is no other content";
    }
    ASSERT_TRUE(QFile::remove(File("a.json")));
    EXPECT_FALSE(document.Held().IsOther()) << "there is nothing that saving would replace";
}

TEST_F(DocumentTest, LeavesACopyThatTheNextSessionFinds)
{
    auto document = std::make_unique<Document>(Recovery());
    document->OpenSample();
    document->SaveAs(File("work.json"));
    EXPECT_TRUE(FindLostWork(Recovery()).isEmpty());
    document->SetText(Section, "777x777");
    document->WriteRecoveryCopy();
    EXPECT_TRUE(FindLostWork(Recovery()).isEmpty()) << "its program still runs";
    document.reset();  // without dropping the copy, as at a crash
    const QList<LostWork> lost = FindLostWork(Recovery());
    ASSERT_EQ(lost.size(), 1);
    EXPECT_EQ(lost[0].file, File("work.json"));

    Document next(Recovery());
    next.OpenSample();
    next.OpenLost(lost[0]);
    EXPECT_EQ(next.Get().beams[0].section, "777x777");
    EXPECT_TRUE(next.IsChanged());
    EXPECT_EQ(next.File(), File("work.json"));
    EXPECT_TRUE(FindLostWork(Recovery()).isEmpty()) << "taken over";
    EXPECT_FALSE(next.Held().IsOther());
    QFile saved(next.File());
    ASSERT_TRUE(saved.open(QIODevice::ReadWrite));
    saved.write(" ");  // in place of the bracket, by a program that does not look
    saved.close();
    Document late(Recovery());
    late.OpenLost(lost[0]);
    EXPECT_TRUE(late.Held().IsOther()) << "saved by another program before the copy was written";
    EXPECT_EQ(QDir(Recovery()).entryList({"*.json"}).size(), 2) << "each program has one of its own";
    late.DropRecoveryCopy();
    next.SaveAs(next.File());
    EXPECT_FALSE(next.IsChanged());
    EXPECT_TRUE(QDir(Recovery()).entryList({"*.json"}).isEmpty());
    EXPECT_EQ(ReadProject(File("work.json").toStdString()).beams[0].section, "777x777");
}

TEST_F(DocumentTest, BeamsAndWallsComeAndGoInOneStepEach)
{
    auto document = std::make_unique<Document>(Recovery());
    document->OpenNew(NewFloor("floor", *AxesFrom("2x8000", false), {}), false);
    EXPECT_FALSE(document->IsChanged());
    std::vector<Exchanged> told;
    QObject::connect(document.get(), &Document::OwnersChanged,
                     [&](const Exchanged& exchanged) { told.push_back(exchanged); });
    Edits add{"add", {}, {}};
    add.beams.added = {MadeBeam("KL1(1)", {0, 0}, {8000, 0}), MadeBeam("KL2(1)", {0, 0}, {0, 8000})};
    add.walls.added = {MadeWall("Q1", {0, 0}, {0, 0})};
    EXPECT_EQ(document->Edit(std::move(add)), "");
    document->SetText({false, 1, Field::Section}, "300x600");
    Edits mixed{"mixed", {}, {}};
    mixed.beams.removed = {0};
    mixed.beams.changed[1] = document->Get().beams[1];
    mixed.beams.changed[1].floor = "4";
    EXPECT_EQ(document->Edit(std::move(mixed)), "");
    ASSERT_EQ(document->Get().beams.size(), 1U);
    EXPECT_EQ(document->Get().beams[0].floor + document->Get().beams[0].section, "4300x600");
    EXPECT_TRUE(told.back().Renumbers());
    EXPECT_EQ(document->Changes().undoText(), "mixed");
    document->WriteRecoveryCopy();

    Edits far{"far", {}, {}};
    far.walls.changed[0] = MadeWall("Q1", {0, 0}, {2e9, 0});
    EXPECT_NE(document->Edit(std::move(far)), "");
    while (document->Changes().canUndo()) {
        document->Changes().undo();
    }
    EXPECT_TRUE(document->Get().beams.empty() && document->Get().walls.empty());
    EXPECT_FALSE(document->IsChanged());
    while (document->Changes().canRedo()) {
        document->Changes().redo();
    }
    document->WriteRecoveryCopy();
    document.reset();
    Document next(Recovery());
    EXPECT_TRUE(next.OpenLost(FindLostWork(Recovery()).at(0)));
    EXPECT_EQ(next.Get().beams.at(0).name, "KL2(1)");
    EXPECT_EQ(next.Get().axesAcross.size(), 3U);
    EXPECT_TRUE(next.IsChanged());
    next.SaveAs(File("floor.json"));
    next.Open(File("floor.json"));
    EXPECT_EQ(next.Get().beams.at(0).floor, "4");
    EXPECT_EQ(next.Get().axesAcross.at(2).label, "3");
    next.DropRecoveryCopy();
}

TEST_F(DocumentTest, ASavedOrGivenUpDocumentLeavesNone)
{
    Document document(Recovery());
    document.OpenSample();
    document.SetText(Section, "777x777");
    document.WriteRecoveryCopy();
    document.OpenSample();
    EXPECT_TRUE(QDir(Recovery()).entryList({"*.json"}).isEmpty());
}

}  // namespace
