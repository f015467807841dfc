// The pickers of wall bars as a host uses them: kept, and bound to a property item for each use.
#include "desk/console/panel/Panel.h"

#include "desk/console/panel/Watched.h"
#include "desk/project/Encoding.h"

namespace Desk::Panels {

namespace {

template <class Dialog>
class PickerOf final : public Panel {
public:
    PickerOf(Watch& watch, CPropertyGridItem& item, const CString& text) : m_item(item), m_dialog(watch)
    {
        m_item.SetHWnd(this);  // it counts as attached for as long as the picker is there
        m_item.CPropertyGridItem::SetValue(text);
    }
    ~PickerOf() override { m_item.SetHWnd(nullptr); }
    PickerOf(const PickerOf&) = delete;
    PickerOf& operator=(const PickerOf&) = delete;

    CDialog& Window() override { return m_dialog; }

    void Open(CWnd* parent) override
    {
        m_dialog.Create(Dialog::IDD, parent);
        m_dialog.WatchControls();
        if (!m_item.GetValue().IsEmpty()) {
            Bind();
        } else {
            m_dialog.m_pItem = &m_item;  // the boxes keep what they begin with
        }
    }

    bool SetText(const CString& text) override
    {
        m_item.CPropertyGridItem::SetValue(text);
        Bind();
        return true;
    }

    [[nodiscard]] Holding Held() const override
    {
        Holding holding;
        holding.text = Utf8FromGbk(m_item.GetValue());
        holding.bound = m_dialog.m_pItem != nullptr;
        return holding;
    }

private:
    void Bind()
    {
        m_dialog.m_pItem = &m_item;
        m_dialog.UpdateValue();
    }

    CPropertyGridItem& m_item;
    Watched<Dialog> m_dialog;
};

}  // namespace

std::unique_ptr<Panel> MakePicker(const Setup& setup, Watch& watch, CPropertyGridItem& item)
{
    const CString text = setup.text.value_or(CString());
    if (setup.kind == PanelKind::HorizontalBars) {
        return std::make_unique<PickerOf<CHBarPropertySheet>>(watch, item, text);
    }
    return std::make_unique<PickerOf<CVBarPropertySheet>>(watch, item, text);
}

}  // namespace Desk::Panels
