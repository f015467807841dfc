// What a floor's texts cost a person: beams with their names and sections are annotated in the window by
// its own events, in the order of the project, and keys and clicks are counted.
#include <iomanip>
#include <iostream>

#include "desk/drawing/Drawing.h"
#include "desk/project/Encoding.h"
#include "desk/project/ProjectFile.h"
#include "desk/window/ChoiceDelegate.h"
#include "desk/window/Filling.h"
#include "desk/window/MainWindow.h"

namespace {

using namespace Desk;

enum class Way { Proposals, Lists, Typing };

class Draughtsman {
public:
    Draughtsman(MainWindow& window, const Project& wanted, Way way)
        : m_window(window), m_wanted(wanted), m_way(way)
    {
    }

    // False when the window does not hold the wanted texts in the end.
    bool Annotate()
    {
        for (std::size_t beam = 0; beam < m_wanted.beams.size(); ++beam) {
            for (const Field field : BeamFields()) {
                const FieldRef ref{false, beam, field};
                while (Now(ref).empty() && !TextAt(m_wanted, ref).empty()) {
                    GoTo(ref);
                    Give(ref);
                    if (!Now(ref).empty() && Now(ref) != TextAt(m_wanted, ref)) {
                        std::cerr << "not taken: " << TextAt(m_wanted, ref) << " for " << RowOf(field).key
                                  << " of " << m_wanted.beams[beam].name << ", there is " << Now(ref)
                                  << '\n';
                        return false;
                    }
                }
            }
        }
        return true;
    }
    void Report(const char* name) const
    {
        std::cout << std::setw(10) << name << std::setw(7) << m_texts << std::setw(8) << m_proposed
                  << std::setw(8) << m_ofBeams << std::setw(7) << m_keys << std::setw(8) << m_clicks
                  << std::setw(12) << std::fixed << std::setprecision(2)
                  << static_cast<double>(m_keys + m_clicks) / m_texts << '\n';
    }

private:
    const std::string& Now(const FieldRef& ref) const { return TextAt(m_window.TheDocument().Get(), ref); }

    // The window goes on by itself; Space passes over what a beam does not get, a click goes anywhere.
    void GoTo(const FieldRef& ref)
    {
        if (m_window.Chosen() == ref) {
            return;
        }
        const Project& project = m_window.TheDocument().Get();
        if (m_window.Chosen() && StepToFill(project, m_window.Chosen(), false) == ref) {
            Press(Qt::Key_Space, " ");
        } else {
            m_window.Choose(ref);
            ++m_clicks;
        }
    }

    void Give(const FieldRef& ref)
    {
        QCoreApplication::processEvents();  // the rows are in their places
        const QString text = QString::fromStdString(TextAt(m_wanted, ref));
        if ((m_way == Way::Proposals && TakeProposal(ref, text)) ||
            (m_way == Way::Lists && TakeRow(text))) {
            return;
        }
        ++m_texts;
        const QAbstractItemModel& proposals = *Find<QListView>("proposals").model();
        for (int row = 0; row < proposals.rowCount(); ++row) {
            if (proposals.index(row, 0).data(ChoiceDelegate::Lead).toString() == text.left(1)) {
                Press(Qt::Key_Return);
                break;
            }
        }
        const auto& rows = Find<QListView>("choices");
        const auto isMarked = [&] { return rows.currentIndex().data().toString() == text; };
        for (const QChar each : text) {
            Press(0, QString(each));
            if (m_way == Way::Lists && isMarked()) {
                break;
            }
        }
        const bool isHeld = rows.currentIndex().isValid();
        Press(Qt::Key_Return, {}, isHeld && !isMarked() ? Qt::ControlModifier : Qt::NoModifier);
    }

    bool TakeProposal(const FieldRef& ref, const QString& text)
    {
        const QAbstractItemModel& rows = *Find<QListView>("proposals").model();
        const int count = rows.rowCount();
        const auto lead = [&](int row) { return rows.index(row, 0).data(ChoiceDelegate::Lead).toString(); };
        if (count > 0 && lead(count - 1) == "0") {
            const std::vector<BeamProposal> sets =
                Proposer(m_window.TheDocument().Get()).ForBeam(ref.index, 1);
            const bool isRight =
                std::all_of(sets[0].texts.begin(), sets[0].texts.end(),
                            [&](const auto& each) { return each.second == TextAt(m_wanted, each.first); });
            if (isRight) {
                m_texts += static_cast<int>(sets[0].texts.size());
                m_ofBeams += static_cast<int>(sets[0].texts.size());
                Press(Qt::Key_0, "0");
                return true;
            }
        }
        for (int row = 0; row < count; ++row) {
            if (rows.index(row, 0).data().toString() == text && !lead(row).isEmpty()) {
                ++m_texts;
                ++m_proposed;
                Press(0, lead(row));
                return true;
            }
        }
        return false;
    }

    // A click on a row in view.
    bool TakeRow(const QString& text)
    {
        auto& rows = Find<QListView>("choices");
        const QModelIndexList found =
            rows.model()->match(rows.model()->index(0, 0), Qt::DisplayRole, text, 1, Qt::MatchExactly);
        if (found.isEmpty() || !rows.viewport()->rect().contains(rows.visualRect(found.front()))) {
            return false;
        }
        ++m_texts;
        ++m_clicks;
        emit rows.clicked(found.front());
        return true;
    }

    // A key with a modifier counts twice.
    void Press(int key, const QString& text = {}, Qt::KeyboardModifiers with = Qt::NoModifier)
    {
        m_keys += with == Qt::NoModifier ? 1 : 2;
        QWidget* const focus = m_window.focusWidget();
        QKeyEvent press(QEvent::KeyPress, key, with, text);
        QCoreApplication::sendEvent(focus != nullptr ? focus : &m_window, &press);
    }

    template <class Widget>
    Widget& Find(const char* name) const
    {
        return *m_window.findChild<Widget*>(name);
    }

    MainWindow& m_window;
    const Project& m_wanted;
    Way m_way;
    int m_texts = 0;
    int m_proposed = 0;  // taken by 1 to 3
    int m_ofBeams = 0;   // taken by 0
    int m_keys = 0;
    int m_clicks = 0;
};

bool Measure(const std::string& file)
{
    const Project wanted = OpenProject(file);
    Project bare = wanted;
    for (Beam& beam : bare.beams) {
        for (const Field field : BeamFields()) {
            if (field != Field::Name && field != Field::Section) {
                (beam.*RowOf(field).ofBeam).clear();
            }
        }
    }
    std::cout << TitleOf(wanted, file) << ", " << wanted.beams.size() << " beams\n"
              << "       way  texts  1 to 3   by 0   keys  clicks  for a text\n";
    const QTemporaryDir folder;
    SaveProject(bare, folder.filePath("bare.json").toStdString());
    static constexpr std::pair<const char*, Way> Ways[] = {
        {"proposals", Way::Proposals}, {"lists", Way::Lists}, {"typing", Way::Typing}};
    for (const auto& [name, way] : Ways) {
        QtDisplay display{{Utf8FromGbk, GbkFromUtf8}};
        MainWindow window(display);
        window.resize(1440, 900);
        window.show();
        window.TheDocument().Open(folder.filePath("bare.json"));
        Draughtsman person(window, wanted, way);
        if (!person.Annotate()) {
            return false;
        }
        person.Report(name);
        window.TheDocument().DropRecoveryCopy();
    }
    return true;
}

}  // namespace

// Of the projects whose files are named, else of the sample.
int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    QStandardPaths::setTestModeEnabled(true);
    bool good = true;
    for (int i = 1; i < std::max(argc, 2); ++i) {
        good = Measure(i < argc ? argv[i] : "") && good;
    }
    return good ? 0 : 1;
}
