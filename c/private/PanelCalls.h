// What the calls for a panel share: its controls, and events on their way to them.
#pragma once

#include "c/private/Frame.h"

namespace RankerC {

// The control with an id; refuses one that the panel does not have.
[[nodiscard]] CWnd& NeedControl(Panel& panel, std::int32_t id);
[[nodiscard]] CListBox& NeedListBox(Panel& panel, std::int32_t id);
// The control of the panel that has the focus, null for none.
[[nodiscard]] CWnd* FocusIn(Panel& panel);

// Offers an event and hands it over; true when it was finished before its target saw it. A panel that is
// hidden or gone gets nothing.
bool FeedEvent(Panel& panel, const rk_event& event);
// How: RK_CLICK and its like.
void Click(Panel& panel, std::int32_t control, std::int32_t row, std::int32_t how);

}  // namespace RankerC
