// The watch registers the host's callback and message box for as long as it lives.
#include "desk/console/panel/Watch.h"

#include "desk/project/Encoding.h"

namespace Desk::Panels {

namespace {

Watch* current = nullptr;

void OnMouseInput(void* first, int mode, CString text, int code)
{
    current->DeliveredByCallback(first, mode, text, code);
}

int OnMessageBox(const CString& text)
{
    current->Said(text);
    return IDOK;
}

}  // namespace

Watch::Watch()
{
    current = this;
    SetBeamMouseInputFunc(&OnMouseInput);
    SetMessageBoxFunc(&OnMessageBox);
}

Watch::~Watch()
{
    SetBeamMouseInputFunc(nullptr);
    SetMessageBoxFunc(nullptr);
    current = nullptr;
}

void Watch::Know(HWND hPanel, const void* pParent, const void* pHostData)
{
    m_hPanel = hPanel;
    m_pParent = pParent;
    m_pHostData = pHostData;
    m_last = TakePicture(hPanel);
}

void Watch::WriteTo(std::vector<Effect>* effects) { m_effects = effects; }

void Watch::Look()
{
    Picture now = TakePicture(m_hPanel);
    if (m_effects != nullptr) {
        for (const std::string& change : Changes(m_last, now)) {
            m_effects->push_back({EffectKind::Changed, change, {}});
        }
    }
    m_last = std::move(now);
}

// What has changed before it comes first, so that the order tells what led to what.
void Watch::Write(Effect effect)
{
    Look();
    if (m_effects != nullptr) {
        m_effects->push_back(std::move(effect));
    }
}

void Watch::DeliveredToItem(const CString& text)
{
    const std::string utf8 = Utf8FromGbk(text);
    Write({EffectKind::Delivered, "item: SetValue " + Quoted(utf8), {true, {}, 0, utf8, 0}});
}

void Watch::DeliveredByCallback(const void* first, int mode, const CString& text, int code)
{
    const char* receiver = "another pointer";
    if (first == nullptr) {
        receiver = "null";
    } else if (first == m_pParent) {
        receiver = "parent window";
    } else if (first == m_pHostData) {
        receiver = "host data";
    }
    const Delivery delivery = {false, receiver, mode, Utf8FromGbk(text), code};
    Write({EffectKind::Delivered,
           std::string("callback: ") + receiver + ", " + std::to_string(mode) + ", " +
               Quoted(delivery.text) + ", " + std::to_string(code),
           delivery});
}

void Watch::Said(const CString& message) { Write({EffectKind::Message, Utf8FromGbk(message), {}}); }

}  // namespace Desk::Panels
