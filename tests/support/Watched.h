// A dialog that only notes the right presses which its own window gets.
#pragma once

#include <array>
#include <vector>

#include "RankerModule.h"

template <class Dialog>
class Watched : public Dialog {
public:
    void OnRButtonDown(UINT nFlags, CPoint point)
    {
        m_presses.push_back({static_cast<int>(nFlags), point.x, point.y});
    }

    using Press = std::array<int, 3>;  // flags and position
    std::vector<Press> m_presses;

protected:
    const AFX_MSGMAP* GetMessageMap() const override
    {
        static constexpr AFX_MSGMAP_ENTRY entries[] = {
            {WM_RBUTTONDOWN, 0, 0, &MessageCall::Mouse<Watched, &Watched::OnRButtonDown>}, {}};
        static constexpr AFX_MSGMAP map = {&Dialog::GetThisMessageMap, entries};
        return &map;
    }
};
