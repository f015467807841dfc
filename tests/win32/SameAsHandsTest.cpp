// The same user at the system's controls and in memory: the same texts, rows, places and deliveries.
#include <gtest/gtest.h>

#include "platform/windows/Hands.h"
#include "tests/support/Seed.h"
#include "tests/win32/SystemHands.h"

namespace {

// Every control shows what the record says.
void ExpectMirrored(const Stage& stage, const Win32Display& display)
{
    for (const HWND child : FindWindowRecord(stage.panel->m_hWnd)->children) {
        const WindowRecord& control = *FindWindowRecord(child);
        const User::Handle shown = display.NativeOf(child);
        ASSERT_EQ(User::IsEnabled(shown), control.enabled);
        ASSERT_EQ(User::IsVisible(shown), control.visible && stage.panel->IsWindowVisible() != FALSE);
        if (control.kind != WindowKind::ListBox) {
            ASSERT_EQ(User::TextOf(shown), User::Wide(std::string(control.text.View())));
            continue;
        }
        const User::List list = User::ListOf(shown);
        ASSERT_EQ(list.selection, control.list.selection) << control.id;
        ASSERT_EQ(list.top, control.list.top) << control.id;
        ASSERT_GE(list.rows.size(), control.list.rows.size());
        for (std::size_t row = 0; row < list.rows.size(); ++row) {
            const bool isRow = row < control.list.rows.size();
            ASSERT_EQ(list.rows[row],
                      isRow ? User::Wide(std::string(control.list.rows[row].View())) : std::wstring());
        }
    }
    const CWnd* const focus = CWnd::GetFocus();
    if (focus != nullptr && focus->IsWindowVisible() != FALSE) {
        ASSERT_EQ(User::Focused(), display.NativeOf(focus->m_hWnd));
    }
}

TEST(DisplayAndHands, GiveTheSameTextsAsHandsInMemory)
{
    const unsigned seed = FirstSeed(std::random_device{}());
    SCOPED_TRACE(SeedName(seed));
    constexpr int Dpis[] = {96, 120, 144, 192};
    constexpr int Steps = 100;
    for (const Shown kind : AllShown) {
        SCOPED_TRACE("pop-up " + std::to_string(static_cast<int>(kind)));
        Hands inMemory;
        const std::vector<std::string> wanted = Play(inMemory, kind, seed, Steps, [](const Stage&) {});
        Win32Display display;
        const User::Answers answers;
        const int dpi = Dpis[(seed + static_cast<unsigned>(kind)) % 4];
        SystemHands onControls(display, dpi);
        const std::vector<std::string> got = Play(
            onControls, kind, seed, Steps, [&](const Stage& stage) { ExpectMirrored(stage, display); });
        for (std::size_t step = 0; step < wanted.size(); ++step) {
            ASSERT_EQ(got[step], wanted[step])
                << "step " << step << ", DPI " << dpi
                << ", before: " << (step > 0 ? wanted[step - 1] : std::string());
        }
    }
}

}  // namespace
