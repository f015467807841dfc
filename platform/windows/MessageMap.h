// Message maps: which member function of a window's class answers which message.
#pragma once

#include "platform/windows/CPoint.h"
#include "platform/windows/Messages.h"

class CWnd;

// One row: the message, for WM_COMMAND also the notification code and the control's id, and the
// function that unpacks the parameters for the member. A row without a function closes the map.
struct AFX_MSGMAP_ENTRY {
    UINT nMessage = 0;
    UINT nCode = 0;
    int nID = 0;
    LRESULT (*pfnCall)(CWnd& target, WPARAM wParam, LPARAM lParam) = nullptr;
};

// A class's rows, looked through from the first, and then those of its base.
struct AFX_MSGMAP {
    const AFX_MSGMAP* (*pfnGetBaseMap)();
    const AFX_MSGMAP_ENTRY* lpEntries;
};

// Bridges from a row to the member function that it names. The object may be gone when the member
// returns: nothing is touched behind the call.
namespace MessageCall {

template <class Target, auto Member>
LRESULT Plain(CWnd& target, WPARAM /*wParam*/, LPARAM /*lParam*/)
{
    (static_cast<Target&>(target).*Member)();
    return 0;
}

template <class Target, auto Member>
LRESULT Mouse(CWnd& target, WPARAM wParam, LPARAM lParam)
{
    (static_cast<Target&>(target).*Member)(static_cast<UINT>(wParam),
                                           CPoint(GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)));
    return 0;
}

template <class Target, auto Member>
LRESULT Key(CWnd& target, WPARAM wParam, LPARAM lParam)
{
    const auto flags = static_cast<std::uintptr_t>(lParam);
    (static_cast<Target&>(target).*Member)(static_cast<UINT>(wParam), LOWORD(flags), HIWORD(flags));
    return 0;
}

template <class Target, auto Member>
LRESULT Raw(CWnd& target, WPARAM wParam, LPARAM lParam)
{
    return (static_cast<Target&>(target).*Member)(wParam, lParam);
}

}  // namespace MessageCall

// Stands in the class, last, since what follows it is protected:
//     DECLARE_MESSAGE_MAP()
// and in its source:
//     BEGIN_MESSAGE_MAP(CMyDlg, CDialog)
//     ON_WM_RBUTTONDOWN()
//     ON_LBN_SELCHANGE(1062, &CMyDlg::OnSelchangeList)
//     END_MESSAGE_MAP()
#define DECLARE_MESSAGE_MAP()                                                                              \
protected:                                                                                                 \
    static const AFX_MSGMAP* GetThisMessageMap();                                                          \
    const AFX_MSGMAP* GetMessageMap() const override;

#define BEGIN_MESSAGE_MAP(theClass, baseClass)                                                             \
    const AFX_MSGMAP* theClass::GetMessageMap() const { return GetThisMessageMap(); }                      \
    const AFX_MSGMAP* theClass::GetThisMessageMap()                                                        \
    {                                                                                                      \
        using ThisClass [[maybe_unused]] = theClass;                                                       \
        using TheBaseClass = baseClass;                                                                    \
        static constexpr AFX_MSGMAP_ENTRY entries[] = {

// clang-format off
#define END_MESSAGE_MAP()                                                                                  \
            {}};                                                                                           \
        static constexpr AFX_MSGMAP map = {&TheBaseClass::GetThisMessageMap, entries};                     \
        return &map;                                                                                       \
    }
// clang-format on

// void memberFxn(): a control with this id sent this notification.
#define ON_CONTROL(code, id, memberFxn) {WM_COMMAND, code, id, &MessageCall::Plain<ThisClass, memberFxn>},
#define ON_LBN_SELCHANGE(id, memberFxn) ON_CONTROL(LBN_SELCHANGE, id, memberFxn)
#define ON_EN_CHANGE(id, memberFxn) ON_CONTROL(EN_CHANGE, id, memberFxn)
#define ON_BN_CLICKED(id, memberFxn) ON_CONTROL(BN_CLICKED, id, memberFxn)

// void OnRButtonDown(UINT nFlags, CPoint point): a right-button press on the window.
#define ON_WM_RBUTTONDOWN()                                                                                \
    {WM_RBUTTONDOWN, 0, 0, &MessageCall::Mouse<ThisClass, &ThisClass::OnRButtonDown>},
// void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags): a key press on the window.
#define ON_WM_KEYDOWN() {WM_KEYDOWN, 0, 0, &MessageCall::Key<ThisClass, &ThisClass::OnKeyDown>},
// LRESULT memberFxn(WPARAM wParam, LPARAM lParam): any other message.
#define ON_MESSAGE(message, memberFxn) {message, 0, 0, &MessageCall::Raw<ThisClass, memberFxn>},
