// Proposals as a person takes them: keys, clicks, the way through a floor.
#include "tests/window/MainWindow.h"

#include "desk/window/ChoiceDelegate.h"

namespace {

using namespace Desk;

class ProposalsTest : public MainWindowTest {
protected:
    // Of a beam that many others are like.
    static constexpr std::size_t Beam = 22;
    static FieldRef Of(Field field, std::size_t beam = Beam) { return {false, beam, field}; }

    void Empty(std::initializer_list<Field> fields, std::size_t beam = Beam)
    {
        std::vector<std::pair<FieldRef, QString>> texts;
        for (const Field field : fields) {
            texts.emplace_back(Of(field, beam), QString());
        }
        window.TheDocument().SetTexts(texts);
        window.Choose(Of(*fields.begin(), beam));
    }
    void Key(char key) { QTest::keyClick(&window.Drawing(), key); }
    QString Lead(int row)
    {
        const QAbstractItemModel& rows = *Find<QListView>("proposals").model();
        return rows.index(row, 0).data(ChoiceDelegate::Lead).toString();
    }
};

TEST_F(ProposalsTest, ABeamIsDoneByOneOneOne)
{
    const std::vector<std::string> before = {Text(Of(Field::Stirrup)), Text(Of(Field::TopBars)),
                                             Text(Of(Field::BottomBars))};
    Empty({Field::Stirrup, Field::TopBars, Field::BottomBars});
    const int steps = window.TheDocument().Changes().count();
    for (const Field field : {Field::Stirrup, Field::TopBars, Field::BottomBars}) {
        ASSERT_EQ(window.Chosen(), Of(field));
        ASSERT_GE(Offer("proposals").size(), 1);
        const QString first = Offer("proposals").front();
        Key('1');
        EXPECT_EQ(Text(Of(field)), first.toStdString());
        EXPECT_TRUE(Told().contains(first + " - as ")) << Told().toStdString();
    }
    EXPECT_EQ(Text(Of(Field::Stirrup)), before[0]);
    EXPECT_EQ(Text(Of(Field::TopBars)), before[1]);
    EXPECT_EQ(window.TheDocument().Changes().count(), steps + 3);
    Trigger("undo");
    EXPECT_EQ(Text(Of(Field::BottomBars)), "");
    EXPECT_EQ(window.Chosen(), Of(Field::BottomBars));
}

TEST_F(ProposalsTest, TheWholeBeamIsOneKeyAndOneStep)
{
    Empty({Field::Stirrup, Field::TopBars, Field::BottomBars});
    const int steps = window.TheDocument().Changes().count();
    ASSERT_EQ(Lead(static_cast<int>(Offer("proposals").size()) - 1), "0");
    const QStringList texts = Offer("proposals").back().split(", ");
    Key('0');
    EXPECT_EQ(window.TheDocument().Changes().count(), steps + 1);
    ASSERT_EQ(texts.size(), 3);
    EXPECT_EQ(Text(Of(Field::Stirrup)), texts[0].toStdString());
    EXPECT_EQ(Text(Of(Field::BottomBars)), texts[2].toStdString());
    EXPECT_TRUE(Told().contains(texts.join(", "))) << Told().toStdString();
    Trigger("undo");
    EXPECT_EQ(Text(Of(Field::Stirrup)) + Text(Of(Field::TopBars)) + Text(Of(Field::BottomBars)), "");
}

TEST_F(ProposalsTest, GoesOnToWhatIsEmptyAndStaysInABeamThatIsFull)
{
    Empty({Field::BottomBars}, Beam + 1);
    Empty({Field::BottomBars});
    Key('1');
    EXPECT_EQ(window.Chosen(), Of(Field::BottomBars, Beam + 1)) << "the next beam that lacks one";
    Key('1');
    EXPECT_EQ(window.Chosen(), Of(Field::BottomBars, Beam + 1)) << "none is left";
    window.Choose(Of(Field::Stirrup));
    Key('1');
    EXPECT_EQ(window.Chosen(), Of(Field::TopBars)) << "in place of a text: the beam's next one";
    ClickOffer(Offer().at(1));
    EXPECT_EQ(window.Chosen(), Of(Field::TopBars)) << "a ranked text in place of another one";

    Empty({Field::TopBars});
    Empty({Field::Stirrup, Field::BottomBars});
    Key(' ');
    EXPECT_EQ(window.Chosen(), Of(Field::TopBars)) << "passes over";
    Trigger("type");
    auto& typed = Find<QLineEdit>("typed");
    QTest::keyClicks(&typed, "7B28");
    QTest::keyClick(&typed, Qt::Key_Return);
    EXPECT_EQ(Text(Of(Field::TopBars)), "7B28");
    EXPECT_EQ(window.Chosen(), Of(Field::BottomBars)) << "so does a typed text";
    EXPECT_EQ(window.focusWidget(), &window.Drawing());
    Key('1');
    EXPECT_EQ(window.Chosen(), Of(Field::Stirrup)) << "around the beam";
    Key('1');
    Key(' ');
    EXPECT_EQ(Told(), "No beam lacks a text");
}

// The same keys take or write, and what they do shows before they are pressed.
TEST_F(ProposalsTest, DigitsTakeUnlessATextIsTyped)
{
    Press(Of(Field::BottomBars));
    auto& typed = Find<QLineEdit>("typed");
    const std::string before = Text(Of(Field::BottomBars));
    EXPECT_EQ(Lead(0), "1");
    QTest::keyClick(&window.Drawing(), Qt::Key_Return);
    EXPECT_EQ(Lead(0), "");
    QTest::keyClicks(&typed, "1");
    EXPECT_EQ(typed.text(), "1");
    QTest::keyClick(&typed, Qt::Key_Escape);
    EXPECT_EQ(Lead(0), "1") << "the line is empty again and has the keyboard";
    const std::string second = Offer("proposals").at(1).toStdString();
    QTest::keyClicks(&typed, "2");
    EXPECT_EQ(Text(Of(Field::BottomBars)), second);
    EXPECT_TRUE(typed.text().isEmpty());
    Trigger("undo");
    QTest::mouseClick(&typed, Qt::LeftButton);
    QTest::keyClicks(&typed, "2B");
    EXPECT_EQ(typed.text(), "2B");
    EXPECT_EQ(Text(Of(Field::BottomBars)), before);
    window.Choose(Of(Field::TopBars));
    EXPECT_EQ(Lead(0), "1") << "each annotation begins anew";
    Find<QDockWidget>("choiceDock").hide();
    Key('1');
    EXPECT_EQ(typed.text(), "1") << "nothing is taken that is not in view";
}

TEST_F(ProposalsTest, NothingRenamesByMistake)
{
    const FieldRef name = Of(Field::Name);
    const std::string before = Text(name);
    Press(name);
    ASSERT_FALSE(Offer("proposals").isEmpty());
    for (const char key : {'1', '2', '3', '0'}) {
        Key(key);
        window.Choose(name);
    }
    EXPECT_EQ(Text(name), before);
    Empty({Field::Name});
    const std::string first = Offer("proposals").front().toStdString();
    Key('1');
    EXPECT_EQ(Text(name), first);
    EXPECT_NE(first, "");
    window.Choose(FieldRef{true, 0, Field::HorizontalBars});
    EXPECT_TRUE(Offer("proposals").isEmpty());
    Key('1');
    EXPECT_EQ(Find<QLineEdit>("typed").text(), "1") << "a wall's texts are typed or picked";
}

TEST_F(ProposalsTest, AClickTakesAndThePresentTextIsMarked)
{
    Press(Of(Field::TopBars));
    auto& rows = Find<QListView>("proposals");
    const qsizetype present = Offer("proposals").indexOf(QString::fromStdString(Text(Of(Field::TopBars))));
    ASSERT_GE(present, 0);
    const QModelIndex at = rows.model()->index(static_cast<int>(present), 0);
    EXPECT_TRUE(at.data(Qt::FontRole).value<QFont>().bold());
    EXPECT_TRUE(at.data(ChoiceDelegate::After).toString().startsWith("as it is; "));
    const int steps = window.TheDocument().Changes().count();
    QTest::mouseClick(rows.viewport(), Qt::LeftButton, {}, rows.visualRect(at).center());
    EXPECT_EQ(window.TheDocument().Changes().count(), steps) << "the same text is no change";
    EXPECT_EQ(window.Chosen(), Of(Field::BottomBars));
    window.SetLanguage(Language::Chinese);
    const QModelIndex reason = rows.model()->index(0, 0);
    EXPECT_FALSE(reason.data(ChoiceDelegate::After).toString().contains("same"));
    EXPECT_EQ(rows.accessibleName(), QString::fromUtf8("建议"));
    EXPECT_FALSE(reason.data(Qt::AccessibleTextRole).toString().isEmpty());
}

}  // namespace
