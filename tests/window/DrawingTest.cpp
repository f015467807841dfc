// A drawing in the window: opened, edited, its open texts pointed to beams, saved, recovered.
#include <QtTest/QtTest>

#include <gtest/gtest.h>

#include "desk/drawing/Export.h"
#include "desk/project/Encoding.h"
#include "desk/project/Failure.h"
#include "desk/project/ProjectFile.h"
#include "desk/project/SafeFile.h"
#include "desk/window/MainWindow.h"
#include "desk/window/ScreenReport.h"
#include "tests/support/Made.h"

namespace {

using namespace Desk;

// The sample as a drawing with bars more, far from any beam.
std::string Drawn()
{
    std::string bytes = FormatDrawing(SampleProject());
    bytes.insert(bytes.rfind("  0\r\nENDSEC"),
                 "  0\r\nTEXT\r\n  5\r\nFFF1\r\n  8\r\nBEAM_TEXT_X\r\n 10\r\n20000\r\n 20\r\n-9000\r\n"
                 " 40\r\n300\r\n  1\r\n4%%13220\r\n");
    return bytes;
}

class DrawingTest : public testing::Test {
protected:
    DrawingTest() { ReplaceFile(file.toStdString(), Drawn()); }
    [[nodiscard]] static std::string Bytes(const QString& name)
    {
        return ReadWholeFile(name.toStdString());
    }

    QTemporaryDir folder;
    QString file = folder.filePath("floor.dxf");
    QString recovery = folder.filePath("recovery");
};

constexpr FieldRef Stirrup{false, 0, Field::Stirrup};

TEST_F(DrawingTest, SavesWhatWasReadAndChangesOnlyWhatWasSet)
{
    Document document{QString()};
    document.Open(file);
    ASSERT_NE(document.From(), nullptr);
    const std::string before = Bytes(file);
    document.SaveAs(file);
    EXPECT_EQ(Bytes(file), before);
    EXPECT_FALSE(document.Held().IsOther());
    ASSERT_TRUE(document.SetText(Stirrup, "A10@100(4)").isEmpty());
    document.SaveAs(file);
    EXPECT_NE(Bytes(file), before);
    document.Changes().undo();
    document.SaveAs(file);
    EXPECT_EQ(Bytes(file), before);
    EXPECT_EQ(document.File(), file);
    EXPECT_THROW(document.SaveAs(folder.filePath("no/such.dxf")), Failure);
}

TEST_F(DrawingTest, SavedUnderTheOtherKindOfNameItIsThat)
{
    Document document{QString()};
    document.Open(file);
    document.SetText(Stirrup, "A10@100(4)");
    const std::size_t beams = document.Get().beams.size();
    document.SaveAs(folder.filePath("floor.json"));
    EXPECT_EQ(document.From(), nullptr);
    EXPECT_EQ(document.Get().beams[0].stirrup, "A10@100(4)");
    EXPECT_FALSE(document.IsChanged());
    document.SaveAs(folder.filePath("again.DXF"));
    ASSERT_NE(document.From(), nullptr);
    EXPECT_EQ(document.Get().beams.size(), beams);
    EXPECT_EQ(document.Get().beams[0].stirrup, "A10@100(4)");
    document.SaveAs(folder.filePath("copy"));
    EXPECT_NE(document.From(), nullptr) << "a name without an ending says nothing";
    EXPECT_EQ(Bytes(folder.filePath("copy")), Bytes(folder.filePath("again.DXF")));
}

TEST_F(DrawingTest, ABeamWithANameAloneIsSetWhereItIsWrittenOut)
{
    Project twice = SampleProject();
    Beam alone;
    alone.name = twice.beams[0].name;
    alone.start = {0.0, -40000.0};
    alone.end = {8000.0, -40000.0};
    twice.beams.insert(twice.beams.begin(), alone);
    ReplaceFile(file.toStdString(), FormatDrawing(twice));
    Document document{QString()};
    document.Open(file);
    const auto named = [&](std::size_t i) { return document.Get().beams[i].name == alone.name; };
    std::size_t first = 0;
    while (!named(first) || !document.Get().beams[first].stirrup.empty()) {
        ASSERT_LT(++first, document.Get().beams.size());
    }
    const FieldRef asked{false, first, Field::Stirrup};
    const FieldRef target = document.Target(asked);
    EXPECT_NE(target.index, first);
    document.SetText(asked, "A12@100(4)");
    EXPECT_EQ(TextAt(document.Get(), target), "A12@100(4)");
    EXPECT_EQ(TextAt(document.Get(), asked), "");
    EXPECT_EQ(document.Target({false, first, Field::Name}).index, first);
}

TEST_F(DrawingTest, LostWorkComesBackOntoTheDrawing)
{
    const auto lose = [&](bool pointed) {
        auto document = std::make_unique<Document>(recovery);
        document->Open(file);
        document->SetText(Stirrup, "A10@100(4)");
        document->SetText({false, 0, Field::LeftEnd, 0}, "9B25");
        Edits edits;
        edits.beams.changed[1] = document->Get().beams[1];
        edits.beams.changed[1].concreteGrade = 55;
        edits.walls.added = {MadeWall("Q99", {0, 0}, {0, 5000})};
        EXPECT_EQ(document->Edit(edits), "");
        edits.beams.changed[1].end.x += 1.0;
        EXPECT_NE(document->Edit(edits), "") << "the outline is the drawing's";
        const auto& beam = document->Get().beams[0];
        if (pointed) {
            const PlanPoint middle{(beam.start.x + beam.end.x) / 2, (beam.start.y + beam.end.y) / 2};
            EXPECT_TRUE(document->PointTo(document->OpenTexts().at(0), middle));
        }
        document->WriteRecoveryCopy();
        document.reset();
        return FindLostWork(recovery).at(0);
    };
    {
        Document next(recovery);
        EXPECT_TRUE(next.OpenLost(lose(true)));
        ASSERT_NE(next.From(), nullptr);
        EXPECT_EQ(next.Get().beams[0].stirrup, "A10@100(4)");
        EXPECT_EQ(next.Get().beams[0].inPlace[0].text, "9B25");
        EXPECT_EQ(next.Get().beams[0].inPlace.back().text, "4C20");
        EXPECT_EQ(next.Get().beams[1].concreteGrade, 55);
        EXPECT_EQ(next.File(), file);
        EXPECT_TRUE(next.IsChanged());
        EXPECT_TRUE(next.OpenTexts().empty());
        next.SaveAs(file);
        next.Open(file);
        EXPECT_EQ(next.Get().beams[0].stirrup, "A10@100(4)");
        EXPECT_EQ(next.Get().beams[1].concreteGrade, 55);
        EXPECT_EQ(next.Get().walls.back().name, "Q99");
        EXPECT_TRUE(next.OpenTexts().empty()) << "kept beside the drawing";
    }
    const LostWork lost = lose(false);
    ReplaceFile(file.toStdString(), Drawn() + "\n");
    QFile saved(file);
    ASSERT_TRUE(saved.open(QIODevice::ReadWrite));
    ASSERT_TRUE(saved.setFileTime(lost.time.addSecs(60), QFileDevice::FileModificationTime));
    saved.close();
    Document next(recovery);
    EXPECT_FALSE(next.OpenLost(lost));
    EXPECT_EQ(next.From(), nullptr);
    EXPECT_EQ(next.File(), QString());
    EXPECT_EQ(next.Get().beams[0].stirrup, "A10@100(4)");
    next.DropRecoveryCopy();
}

TEST_F(DrawingTest, OpenTextsArePointedToTheirBeam)
{
    QSettings().clear();
    QtDisplay display{{Utf8FromGbk, GbkFromUtf8}};
    MainWindow window(display);
    window.SetLanguage(Language::English);
    window.resize(1440, 900);
    window.show();
    // Dropped from a file manager.
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(file)});
    QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&window, &enter);
    EXPECT_TRUE(enter.isAccepted());
    QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&window, &drop);
    QCoreApplication::processEvents();
    Document& document = window.TheDocument();
    ASSERT_EQ(document.File(), file);
    EXPECT_TRUE(window.windowTitle().startsWith("floor.dxf"));

    auto& rows = *window.findChild<QTreeWidget*>("openTexts");
    auto& point = *window.findChild<QPushButton*>("pointToBeam");
    ASSERT_EQ(rows.topLevelItemCount(), 1);
    EXPECT_TRUE(rows.isVisible());
    EXPECT_EQ(rows.topLevelItem(0)->text(0), "4C20");
    EXPECT_FALSE(rows.topLevelItem(0)->text(1).isEmpty());
    const auto status = [&] { return window.statusBar()->currentMessage(); };
    const auto press = [&](const PlanPoint& at) {
        QWidget& view = *window.Drawing().viewport();
        QTest::mouseClick(&view, Qt::LeftButton, {}, view.mapFromGlobal(window.Drawing().OnScreen(at)));
    };
    point.click();
    EXPECT_TRUE(status().contains("4C20"));
    QTest::keyClick(&window.Drawing(), Qt::Key_Escape);
    EXPECT_EQ(status(), "The text stays open");
    EXPECT_FALSE(window.Drawing().IsPointing());

    const Beam before = document.Get().beams[0];
    point.click();
    press({before.start.x + 3000, before.start.y - 20000});
    EXPECT_TRUE(window.Drawing().IsPointing()) << "there is no beam";
    press({(before.start.x + before.end.x) / 2 + 700, (before.start.y + before.end.y) / 2});
    EXPECT_FALSE(window.Drawing().IsPointing());
    EXPECT_EQ(status(), QString("4C20 belongs to %1").arg(QString::fromStdString(before.name)));
    EXPECT_EQ(rows.topLevelItemCount(), 0);
    ASSERT_TRUE(window.Chosen());
    EXPECT_EQ(TextAt(document.Get(), *window.Chosen()), "4C20");
    EXPECT_EQ(document.Get().pointed.count("FFF1"), 1U);
    const QJsonObject report = ScreenReport(window);
    EXPECT_EQ(report["chosen"].toObject()["inPlace"].toInt(), window.Chosen()->inPlace);
    document.Changes().undo();
    EXPECT_EQ(rows.topLevelItemCount(), 1);
    EXPECT_EQ(document.Get().beams[0].inPlace.size(), before.inPlace.size());
    EXPECT_TRUE(document.Get().pointed.empty());
    document.Changes().redo();
    document.Changes().undo();

    window.SetLanguage(Language::Chinese);
    EXPECT_EQ(point.text(), QString::fromUtf8("指定所属梁"));
    window.SetLanguage(Language::English);
    window.Files().OpenSample();
    EXPECT_FALSE(rows.isVisible());
    document.DropRecoveryCopy();
}

}  // namespace
