// The same user on real widgets and in memory: the same texts, rows, places and deliveries.
#include "Stage.h"

#include "tests/support/Seed.h"

namespace {

// Every widget shows what the record says.
void ExpectMirrored(const Stage& stage, const Desk::QtDisplay& display)
{
    for (const HWND child : FindWindowRecord(stage.panel->m_hWnd)->children) {
        const WindowRecord& control = *FindWindowRecord(child);
        const QWidget* const widget = display.WidgetOf(child);
        ASSERT_NE(widget, nullptr);
        if (const auto* const line = qobject_cast<const QLineEdit*>(widget)) {
            ASSERT_EQ(line->text(), Desk::Shown(control.text));
        } else if (const auto* const list = qobject_cast<const Desk::ListWidget*>(widget)) {
            const QModelIndexList selected = list->selectionModel()->selectedIndexes();
            ASSERT_EQ(selected.isEmpty() ? -1 : selected.front().row(), control.list.selection);
            ASSERT_EQ(list->model()->rowCount(), static_cast<int>(control.list.rows.size()));
            for (int row = 0; row < list->model()->rowCount(); ++row) {
                ASSERT_EQ(list->model()->index(row, 0).data().toString(),
                          Desk::Shown(control.list.rows[static_cast<std::size_t>(row)]));
            }
            if (!control.list.rows.empty()) {
                ASSERT_EQ(list->indexAt({2, 2}).row(), control.list.top);
            }
        }
    }
}

TEST(ShellAndHands, GiveTheSameTextsAsHandsInMemory)
{
    const unsigned seed = FirstSeed(std::random_device{}());
    SCOPED_TRACE(SeedName(seed));
    constexpr double Zooms[] = {1.0, 1.25, 1.5, 2.0};
    constexpr int Steps = 150;
    for (const Shown kind : AllShown) {
        SCOPED_TRACE("pop-up " + std::to_string(static_cast<int>(kind)));
        Hands inMemory;
        const std::vector<std::string> wanted = Play(inMemory, kind, seed, Steps, [](const Stage&) {});
        Desk::QtDisplay display{{Desk::Utf8FromGbk, Desk::GbkFromUtf8}};
        display.SetZoom(Zooms[(seed + static_cast<unsigned>(kind)) % 4]);
        const QTimer answers;  // message boxes are closed at once
        QObject::connect(&answers, &QTimer::timeout, [] {
            if (QWidget* const box = QApplication::activeModalWidget()) {
                box->close();
            }
        });
        const_cast<QTimer&>(answers).start(1);
        QtHands onWidgets(display);
        const std::vector<std::string> got =
            Play(onWidgets, kind, seed, Steps, [&](const Stage& stage) { ExpectMirrored(stage, display); });
        for (std::size_t step = 0; step < wanted.size(); ++step) {
            ASSERT_EQ(got[step], wanted[step])
                << "step " << step << ", before: " << (step > 0 ? wanted[step - 1] : std::string());
        }
    }
}

}  // namespace
