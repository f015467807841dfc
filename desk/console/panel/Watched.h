// A panel whose notifications are written down on their way to its own handlers.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "desk/console/panel/EventNames.h"
#include "desk/console/panel/Watch.h"

namespace Desk::Panels {

// The row that a class has for a message in its map or in one of its bases'; null for none.
[[nodiscard]] inline const AFX_MSGMAP_ENTRY* FindEntry(const AFX_MSGMAP* map, UINT message, UINT code,
                                                       int id)
{
    for (; map != nullptr; map = map->pfnGetBaseMap != nullptr ? map->pfnGetBaseMap() : nullptr) {
        for (const AFX_MSGMAP_ENTRY* entry = map->lpEntries; entry->pfnCall != nullptr; ++entry) {
            if (entry->nMessage == message && entry->nCode == code && entry->nID == id) {
                return entry;
            }
        }
    }
    return nullptr;
}

// Its message map has one row for each notification of each control and for the messages that a child
// passes on to the panel; each writes the message down and hands it to the class's own row.
template <class Dialog>
class Watched : public Dialog {
public:
    explicit Watched(Watch& watch) : m_watch(watch) {}

    const AFX_MSGMAP* GetMessageMap() const override { return m_entries.empty() ? OwnMap() : &m_map; }

    BOOL PreTranslateMessage(MSG* pMsg) override
    {
        const BOOL answer = Dialog::PreTranslateMessage(pMsg);
        m_watch.Answered(answer != FALSE);
        return answer;
    }

    // The controls exist by now.
    BOOL OnInitDialog() override
    {
        for (const Control& control : TakePicture(this->m_hWnd).controls) {
            for (const UINT code : {LBN_SELCHANGE, EN_CHANGE, BN_CLICKED}) {
                m_entries.push_back({WM_COMMAND, code, control.id, &Watched::OnCommand});
            }
        }
        m_entries.push_back({WM_RBUTTONDOWN, 0, 0, &Watched::template OnMessage<WM_RBUTTONDOWN>});
        m_entries.push_back({WM_KEYDOWN, 0, 0, &Watched::template OnMessage<WM_KEYDOWN>});
        m_entries.push_back({WM_CHAR, 0, 0, &Watched::template OnMessage<WM_CHAR>});
        m_entries.emplace_back();
        m_map = {&Watched::OwnMap, m_entries.data()};
        return Dialog::OnInitDialog();
    }

private:
    static const AFX_MSGMAP* OwnMap() { return Dialog::GetThisMessageMap(); }

    static LRESULT OnCommand(CWnd& target, WPARAM wParam, LPARAM lParam)
    {
        const UINT code = HIWORD(wParam);
        const int id = static_cast<int>(LOWORD(wParam));
        const AFX_MSGMAP_ENTRY* const own = FindEntry(OwnMap(), WM_COMMAND, code, id);
        static_cast<Watched&>(target).m_watch.Notified(NoticeName(code) + " " + std::to_string(id) +
                                                       (own == nullptr ? " (no handler)" : ""));
        return own != nullptr ? own->pfnCall(target, wParam, lParam) : 0;
    }

    template <UINT Message>
    static LRESULT OnMessage(CWnd& target, WPARAM wParam, LPARAM lParam)
    {
        auto& panel = static_cast<Watched&>(target);
        panel.m_watch.Notified("panel " + MessageName(Message));
        const AFX_MSGMAP_ENTRY* const own = FindEntry(OwnMap(), Message, 0, 0);
        return own != nullptr ? own->pfnCall(target, wParam, lParam)
                              : panel.DefWindowProc(Message, wParam, lParam);
    }

    Watch& m_watch;
    std::vector<AFX_MSGMAP_ENTRY> m_entries;
    AFX_MSGMAP m_map = {};
};

}  // namespace Desk::Panels
