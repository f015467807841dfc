// One face for the seven panels and pickers, and the item that some of them deliver to.
#pragma once

#include <memory>

#include "RankerModule.h"
#include "c/rankermodule.h"

namespace RankerC {

// What a panel hands its text to when it serves an item: it goes on to the frame of the call at work.
class Item : public CPropertyGridItem {
public:
    using TakeFunc = void (*)(const CString& text);
    explicit Item(TakeFunc take) : m_take(take) { SetHWnd(this); }

    void SetValue(CString strValue) override;
    // A value of the host's, which is not delivered.
    void Put(const CString& text) { CPropertyGridItem::SetValue(text); }

private:
    TakeFunc m_take;
};

class PanelFace {
public:
    PanelFace() = default;
    PanelFace(const PanelFace&) = delete;
    PanelFace& operator=(const PanelFace&) = delete;
    virtual ~PanelFace() = default;

    [[nodiscard]] virtual CDialog& Dialog() = 0;
    // False for a text that the panel does not take.
    virtual bool SetText(const CString& text) = 0;
    [[nodiscard]] virtual int Groups() const = 0;
    [[nodiscard]] virtual CString Result(int group) const = 0;
    [[nodiscard]] virtual bool ComposesNewPiece() const = 0;
};

// The options have been looked at. hostData is what the callback gets on that route.
[[nodiscard]] std::unique_ptr<PanelFace> MakePanel(const rk_panel_options& options, void* hostData,
                                                   Item::TakeFunc take);

}  // namespace RankerC
