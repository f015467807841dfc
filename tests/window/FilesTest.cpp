// Files that cannot be written, that others write or have open, and that are broken.
#include "tests/window/MainWindow.h"

#include "desk/window/CompareDialog.h"

namespace {

using namespace Desk;

class FilesTest : public MainWindowTest {
protected:
    FilesTest()
    {
        document.SaveAs(file);
        window.Files().Open(file);
        Answer({});
    }

    ~FilesTest() override { document.OpenSample(); }  // while there is the folder of its lock

    static void Write(const QString& to, const QByteArray& bytes)
    {
        QFile each(to);
        EXPECT_TRUE(each.open(QIODevice::WriteOnly));
        each.write(bytes);
    }
    static QByteArray Read(const QString& from)
    {
        QFile each(from);
        EXPECT_TRUE(each.open(QIODevice::ReadOnly));
        return each.readAll();
    }
    // Another program's version of the file.
    void WriteOther()
    {
        Project other = document.Get();
        other.beams[0].topBars = "9B28";
        other.beams[1].seismicClass = 1;
        SaveProject(other, file.toStdString());
    }
    std::string Saved(const QString& from) { return ReadProject(from.toStdString()).beams[0].topBars; }

    QTemporaryDir folder;
    const QString file = folder.filePath("floor.json");
    const QString another = folder.filePath("another.json");
    Document& document = window.TheDocument();
};

TEST_F(FilesTest, WhatCannotBeSavedIsSavedElsewhere)
{
    const QString gone = folder.filePath("stick/floor.json");
    ASSERT_TRUE(QDir(folder.path()).mkdir("stick"));
    document.SaveAs(gone);
    document.SetText(Bars, "8B28");
    ASSERT_TRUE(QDir(folder.filePath("stick")).removeRecursively());  // write-protected even for root
    Answer({"Cancel"});
    EXPECT_FALSE(window.Files().Save());
    ASSERT_EQ(questions.size(), 1);
    EXPECT_TRUE(questions[0].contains("floor.json could not be saved")) << questions[0].toStdString();
    EXPECT_TRUE(questions[0].contains(gone + ": cannot be saved: No such file or directory"))
        << questions[0].toStdString();
    EXPECT_TRUE(document.IsChanged());
    EXPECT_EQ(document.File(), gone);
    Answer({"Save", "Save as...", another});
    EXPECT_TRUE(window.Files().MayLeave());
    EXPECT_EQ(questions.size(), 2) << questions.join(';').toStdString();
    EXPECT_EQ(document.File(), another);
    EXPECT_EQ(Saved(another), "8B28");
    EXPECT_FALSE(document.IsChanged());
}

TEST_F(FilesTest, SavingAsksAboutWhatAnotherProgramWrote)
{
    const struct {
        QStringList answers;
        bool isSaved;
        const char* there;  // then in the file
        const char* here;
    } cases[] = {
        {{"Cancel"}, false, "9B28", "8B28"},
        {{"Save as...", another}, true, "9B28", "8B28"},
        {{"Compare...", "Save mine over it"}, true, "8B28", "8B28"},
        {{"Reload"}, true, "9B28", "9B28"},
    };
    const QByteArray first = Read(file);
    for (const auto& [answers, isSaved, there, here] : cases) {
        Write(file, first);
        window.Files().Open(file);
        document.SetText(Bars, "8B28");
        WriteOther();
        Answer(answers);
        EXPECT_EQ(window.Files().Save(), isSaved);
        EXPECT_TRUE(questions.first().contains(file)) << questions.first().toStdString();
        EXPECT_EQ(Saved(file), there) << answers.join(';').toStdString();
        EXPECT_EQ(Text(Bars), here) << answers.join(';').toStdString();
        EXPECT_EQ(document.IsChanged(), !isSaved);
        if (answers.first() == "Compare...") {
            EXPECT_EQ(questions.mid(1, 2),
                      (QStringList{"KL1(7)|Top through bars|8B28|9B28", "KL2(7)|Seismic class|3|1"}))
                << questions.join(';').toStdString();
        }
        Answer({"Leave without saving"});
    }
    WriteOther();
    document.SetText(Bars, "7B28");
    const QByteArray other = Read(file);
    window.Files().Open(another);
    Answer({});
    EXPECT_TRUE(window.Files().Save()) << "it is another file";
    EXPECT_EQ(Read(file), other);
}

TEST_F(FilesTest, BackInTheWindowItAsksOnceForEachContent)
{
    const auto comeBack = [&] {
        QEvent active(QEvent::ActivationChange);
        window.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        QApplication::sendEvent(&window, &active);
        QCoreApplication::processEvents();
    };
    Answer({});
    Write(file, Read(file));
    comeBack();
    EXPECT_TRUE(questions.isEmpty()) << "written, and the same";
    WriteOther();
    Answer({"Decide later"});
    comeBack();
    comeBack();
    EXPECT_EQ(questions.size(), 1);
    Answer({"Cancel"});
    EXPECT_FALSE(window.Files().Save()) << "asks all the same";
    Write(file, Read(file) + "\n");
    Answer({"Keep mine"});
    comeBack();
    EXPECT_EQ(questions.size(), 1);
    EXPECT_TRUE(document.IsChanged()) << "no file has it now";
    Answer({});
    EXPECT_TRUE(window.Files().Save());
    EXPECT_EQ(Saved(file), Text(Bars));
    WriteOther();
    Answer({"Reload"});
    comeBack();
    EXPECT_EQ(Text(Bars), "9B28");
    EXPECT_FALSE(document.IsChanged());
    Write(file, "{");
    Answer({"Compare...", "OK", "Decide later"});
    comeBack();
    EXPECT_TRUE(questions.value(1).contains("could not be compared"));
    EXPECT_EQ(Text(Bars), "9B28");
}

TEST_F(FilesTest, TheSecondDeskReadsOnly)
{
    window.Files().Open(QString());
    auto first = std::make_unique<Document>(QString());
    first->Open(file);
    const QStringList locks = QDir(folder.path()).entryList({".*.lock"}, QDir::Files | QDir::Hidden);
    ASSERT_EQ(locks.size(), 1);
    const QString lock = folder.filePath(locks[0]);
    const QByteArray told = Read(lock);
    const QString link = folder.filePath("link.json");
    ASSERT_TRUE(QFile::link(file, link));
    window.Files().Open(link);
    EXPECT_TRUE(document.IsReadOnly()) << "the same file under another name";
    ASSERT_TRUE(window.Files().Open(file));
    EXPECT_TRUE(window.windowTitle().startsWith("floor.json (read only)"));
    EXPECT_TRUE(Told().contains("floor.json is open in another desk")) << Told().toStdString();
    EXPECT_FALSE(first->IsReadOnly());
    document.SetText(Bars, "8B28");
    Answer({"Cancel"});
    EXPECT_FALSE(window.Files().Save());
    EXPECT_TRUE(questions[0].contains(file));
    Answer({"Save as...", file, "Yes", "Save as...", another});
    if (const QByteArray before = Read(file); window.Files().Save()) {
        EXPECT_EQ(Read(file), before);
    }
    EXPECT_EQ(document.File(), another) << questions.join(';').toStdString();
    EXPECT_EQ(Saved(another), "8B28");
    EXPECT_FALSE(window.windowTitle().contains("read only"));

    window.Files().Open(file);
    first->SetText(Bars, "7B28");
    first->SaveAs(file);
    first.reset();
    document.SetText(Bars, "6B28");
    Answer({"Decide later"});
    window.Files().LookAtFile();
    EXPECT_FALSE(document.IsReadOnly());
    EXPECT_EQ(questions.size(), 1) << "what the other desk wrote";

    // The lock of a desk that was killed.
    QProcess gone;
    gone.start("true", {});
    const qint64 process = gone.processId();
    ASSERT_TRUE(gone.waitForFinished());
    Answer({"Leave without saving"});
    window.Files().OpenSample();
    ASSERT_FALSE(QFile::exists(lock));
    Write(lock, QByteArray::number(process) + told.mid(told.indexOf('\n')));
    window.Files().Open(file);
    EXPECT_FALSE(document.IsReadOnly());
}

TEST_F(FilesTest, ABrokenFileLeavesTheWindowAsItWas)
{
    const QByteArray good = Read(file);
    document.SetText(Bars, "8B28");
    Trigger("undo");
    Trigger("redo");
    Trigger("undo");
    window.Choose(Bars);
    const QString title = window.windowTitle();
    const std::pair<const char*, QByteArray> broken[] = {
        {"half.json", good.left(good.size() / 2)},
        {"empty.json", ""},
        {"wrong.json", "[1, 2]"},
        {"half.dxf", "  0\nSECTION\n  2\nENTITIES\n  0\nTEXT\n  1\n"},
        {"binary.dxf", "AutoCAD Binary DXF\r\n\x1A"},
    };
    for (const auto& [name, bytes] : broken) {
        const QString path = folder.filePath(name);
        Write(path, bytes);
        const std::pair<const char*, std::function<void()>> ways[] = {
            {"opened", [&] { window.Files().Open(path); }},
            {"dropped",
             [&] {
                 window.Files().OpenSoon(path);
                 QCoreApplication::processEvents();
             }},
            {"imported", [&] { window.Exchanges().Import(path, Choices()); }},
            {"missing",
             [&] {
                 QFile::remove(path);
                 window.Files().Open(path);
             }},
        };
        for (const auto& [way, open] : ways) {
            Answer({"OK"});
            open();
            ASSERT_EQ(questions.size(), 1) << name << way;
            EXPECT_TRUE(questions[0].contains(name)) << questions[0].toStdString();
            EXPECT_EQ(window.windowTitle(), title);
            EXPECT_EQ(window.Chosen(), Bars);
            EXPECT_EQ(Text(Bars), "2B20");
            EXPECT_TRUE(document.Changes().canRedo());
            EXPECT_EQ(document.File(), file);
        }
    }
    EXPECT_EQ(QDir(folder.path()).entryList({".*.lock"}, QDir::Files | QDir::Hidden).size(), 1);
}

TEST_F(FilesTest, WhatIsComposedIsNotDroppedByOpeningOrClosing)
{
    constexpr int Diameter = 1340;
    Press(Bars);
    window.OpenPanel();
    ClickRow(Diameter, "14");
    EXPECT_FALSE(window.Files().Open(another));
    EXPECT_FALSE(window.close());
    EXPECT_TRUE(window.isVisible());
    ASSERT_EQ(window.Panels().Serving(), Bars);
    QWidget& panel = *display.WidgetOf(window.Panels().Window());
    EXPECT_TRUE(panel.isVisible());
    QTest::mouseClick(panel.findChild<QPushButton*>("take"), Qt::LeftButton);
    EXPECT_EQ(Text(Bars), "2B14");

    // With nothing composed the panel goes along, and the program ends.
    EXPECT_TRUE(window.Files().Save());
    window.OpenPanel();
    ASSERT_TRUE(window.Panels().Serving());
    QTimer::singleShot(0, &window, [this] { EXPECT_TRUE(window.close()); });
    QTimer::singleShot(10000, &window, [] { QCoreApplication::exit(1); });
    EXPECT_EQ(QApplication::exec(), 0);
    EXPECT_FALSE(window.Panels().Serving());
}

TEST(DifferencesTest, PairsByPlaceThenByName)
{
    Project mine;
    mine.beams.resize(4);
    const char* const names[] = {"KL1(1)", "KL2(1)", "KL3(1)", "L1(1)"};
    for (std::size_t i = 0; i < mine.beams.size(); ++i) {
        mine.beams[i].name = names[i];
        mine.beams[i].end = {6000.0 * static_cast<double>(i + 1), 0};
    }
    mine.walls.resize(1);
    mine.walls[0].name = "Q1";
    Project theirs = mine;
    theirs.beams.erase(theirs.beams.begin());  // is missing, and the others have other numbers
    theirs.beams[0].name = "KL9(1)";           // the same place
    theirs.beams[1].end = {1, 1};              // the same name
    theirs.beams[2].inPlace = {{Role::Bottom, 1, "2B25", {}, -1, {}}};
    theirs.beams.push_back({});
    theirs.beams.back().name = "L5(1)";
    theirs.walls[0].verticalBars = "A8@200";
    QStringList rows;
    for (const Difference& each : DifferencesOf(mine, theirs)) {
        rows << QStringList{each.owner, each.field, each.mine, each.theirs}.join('|');
    }
    EXPECT_EQ(rows.join('\n').toStdString(), "KL1(1)||is there|is missing\n"
                                             "KL2(1)|Name|KL2(1)|KL9(1)\n"
                                             "KL3(1)|End x, y, mm|18000, 0|1, 1\n"
                                             "L1(1)|Bottom bars of span 1||2B25\n"
                                             "L5(1)||is missing|is there\n"
                                             "Wall Q1|Vertical bars||A8@200");
    EXPECT_TRUE(DifferencesOf(mine, mine).empty());
}

}  // namespace
