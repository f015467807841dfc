// A call in which the module may ask the host: its slots hold the context's callbacks meanwhile.
#pragma once

#include <string>

#include "c/private/Objects.h"

namespace RankerC {

class Frame {
public:
    // The panel is the one that may deliver, the project what answers in place of the callbacks; both may
    // be null and must outlive the frame.
    Frame(std::shared_ptr<Context> context, Panel* panel, const CStringArray* project);
    Frame(const Frame&) = delete;
    Frame& operator=(const Frame&) = delete;
    ~Frame();

    // To be called at the end: refuses if a callback failed.
    void NeedNoFailure() const;

    // The frame at work if it is the panel's, else null.
    [[nodiscard]] static Frame* Of(const Panel& panel);

    // A text that the panel has confirmed.
    void Deliver(int route, int mode, const CString& text, int code);

private:
    class Outside;
    // What a project's names tell of one beam type.
    struct NamesOfType {
        CString type;
        CUIntArray serials;
        CStringArray suffixes;
    };

    static void AskBeamTypes(CStringArray& arType);
    static void AskBeamNumbers(CUIntArray& arXu, CStringArray& arSuffix, CString strType);
    static void AskSections(CStringArray& arResult);
    static void AskElevations(CStringArray& arResult);
    static void AskStirrups(CStringArray& arResult);
    static void AskBars(CStringArray& arResult, CString strKind);
    static void TakeText(void* target, int mode, CString text, int code);
    static int TellUser(const CString& text);

    // Runs a callback with the slots as they were before this frame; false, with the failure noted, if it
    // failed.
    template <class Callback>
    bool Call(const char* name, Callback callback);
    // The same for a callback that answers by a list.
    template <class Callback>
    void Ask(const char* name, CStringArray& texts, CUIntArray* numbers, Callback callback);
    template <class Callback>
    void AskTexts(const char* name, CStringArray& arResult, Callback callback);
    // None once the context has gone.
    [[nodiscard]] rk_callbacks Callbacks() const;
    void Exchange();
    void GroupNames();

    const std::shared_ptr<Context> m_context;
    Panel* const m_panel;
    const CStringArray* const m_project;
    Frame* const m_previous;
    HostSlots m_slots;  // what the module's slots do not hold at present: those before, or this frame's own
    MessageBoxFunc m_messageBox;
    Refusal m_failure{RK_OK, {}};  // the first one
    std::vector<NamesOfType> m_names;
};

}  // namespace RankerC
