// The two pickers as a property grid opens them: bound to an item, driven by mouse and keys.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "RankerModule.h"
#include "platform/windows/Hands.h"

// Keeps what it was given, and can do something with it on the spot.
class WallItem : public CPropertyGridItem {
public:
    void SetValue(CString strValue) override
    {
        CPropertyGridItem::SetValue(strValue);
        taken.emplace_back(strValue.View());
        if (then) {
            then();
        }
    }

    std::vector<std::string> taken;
    std::function<void()> then;
};

template <class Picker>
struct Grid {
    Grid()
    {
        frame.CreateFrame(CRect(0, 0, 800, 600));
        frame.ShowWindow(SW_SHOW);
        item.SetHWnd(&frame);
        picker = std::make_unique<Picker>(&frame);
        picker->Create(Picker::IDD, &frame);
    }
    void Open(const char* value)
    {
        item.CPropertyGridItem::SetValue(value);
        item.SetListShowFlag(TRUE);
        picker->m_pItem = &item;
        picker->UpdateValue();
        picker->ShowWindow(SW_SHOW);
    }
    // Texts of boxes and selected rows of lists, "-" for no selection: "A,10,|0,3,".
    [[nodiscard]] std::string Shown(std::initializer_list<int> boxes,
                                    std::initializer_list<int> lists) const
    {
        std::string shown;
        for (const int id : boxes) {
            CString text;
            picker->GetDlgItem(id)->GetWindowText(text);
            shown += std::string(text.View()) + ",";
        }
        shown += "|";
        for (const int id : lists) {
            const int row = dynamic_cast<CListBox&>(*picker->GetDlgItem(id)).GetCurSel();
            shown += (row < 0 ? "-" : std::to_string(row)) + ",";
        }
        return shown;
    }
    // What the grid got for the first right press.
    std::string Confirm()
    {
        item.taken.clear();
        CRect rect;
        picker->GetWindowRect(&rect);
        hands.RightClick(CPoint(rect.left + 1, rect.top + 1));
        return item.taken.size() == 1 ? item.taken.front() : "taken " + std::to_string(item.taken.size());
    }

    WallItem item;
    Hands hands;
    CWnd frame;
    std::unique_ptr<Picker> picker;
};
