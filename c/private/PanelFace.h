// One face for the seven panels and pickers, and the item that some of them deliver to.
#pragma once

#include <functional>
#include <memory>

#include "RankerModule.h"
#include "c/rankermodule.h"

namespace RankerC {

// What a panel tells whoever keeps it, also when no call of the host runs: a display feeds events by
// itself.
class PanelKeeper {
public:
    PanelKeeper() = default;
    PanelKeeper(const PanelKeeper&) = delete;
    PanelKeeper& operator=(const PanelKeeper&) = delete;
    virtual ~PanelKeeper() = default;

    // An event is offered to the panel; answers what the panel does.
    virtual BOOL Offer(const std::function<BOOL()>& offer) = 0;
    // The item that the panel serves got a text.
    virtual void Take(const CString& text) = 0;
};

class Item : public CPropertyGridItem {
public:
    explicit Item(PanelKeeper& keeper) : m_keeper(keeper) { SetHWnd(this); }

    void SetValue(CString strValue) override;
    // A value of the host's, which is not delivered.
    void Put(const CString& text) { CPropertyGridItem::SetValue(text); }

private:
    PanelKeeper& m_keeper;
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
                                                   PanelKeeper& keeper);

}  // namespace RankerC
