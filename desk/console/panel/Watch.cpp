// The watch registers the host's callback and message box for as long as it lives.
#include "desk/console/panel/Watch.h"

#include "desk/console/Print.h"
#include "desk/console/panel/EventNames.h"
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

void Watch::Look()
{
    Picture now = TakePicture(m_hPanel);
    if (m_effects != nullptr) {
        for (const std::string& change : Changes(m_last, now)) {
            m_effects->push_back({change, {{"changed", change}}});
        }
    }
    m_last = std::move(now);
}

bool Watch::Pass(MSG event, std::vector<Event>* events)
{
    Event written = {MessageName(event.message), NameOfWindow(event.hwnd), DetailOf(event), {}, {}, {}};
    m_panelAnswered = false;
    WriteTo(&written.offered);
    const bool finished = AfxPreTranslateMessage(&event) != FALSE;
    Look();
    if (finished) {
        written.finishedBy = m_panelAnswered ? "panel" : written.target;
    } else {
        WriteTo(&written.dispatched);
        DispatchMessage(&event);
        Look();
    }
    WriteTo(nullptr);
    if (events != nullptr) {
        events->push_back(std::move(written));
    }
    return finished;
}

// Changes made before the effect are written first: the order is that of the causes.
void Watch::Write(const Effect& effect)
{
    Look();
    if (m_effects != nullptr) {
        m_effects->push_back(effect);
    }
}

void Watch::DeliveredToItem(const CString& text)
{
    const std::string utf8 = Utf8FromGbk(text);
    Write({"item: SetValue " + Quoted(utf8), {{"delivered", "item"}, {"text", utf8}}, true});
}

void Watch::DeliveredByCallback(const void* first, int mode, const CString& text, int code)
{
    const std::string receiver = first == nullptr       ? "null"
                                 : first == m_pParent   ? "parent window"
                                 : first == m_pHostData ? "host data"
                                                        : "another pointer";
    const std::string utf8 = Utf8FromGbk(text);
    Write({"callback: " + receiver + ", " + std::to_string(mode) + ", " + Quoted(utf8) + ", " +
               std::to_string(code),
           {{"delivered", "callback"}, {"first", receiver}, {"mode", mode}, {"text", utf8}, {"code", code}},
           true});
}

void Watch::Said(const CString& message)
{
    const std::string utf8 = Utf8FromGbk(message);
    Write({"message box: " + utf8, {{"message", utf8}}, true});
}

std::string Watch::NameOfWindow(HWND hWnd) const
{
    const WindowRecord* const window = FindWindowRecord(hWnd);
    if (hWnd == m_hPanel || window == nullptr) {
        return "panel";
    }
    return window->IsControl() ? NameOf(window->kind, window->id) : "parent window";
}

}  // namespace Desk::Panels
