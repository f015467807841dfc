#include "c/private/Frame.h"

#include <map>
#include <utility>

#include "c/private/Texts.h"

namespace RankerC {

namespace {

Frame* g_current =
    nullptr;  // the one whose callbacks the module's slots hold; guarded by the lock of calls

void AddAll(CStringArray& list, const CStringArray& texts)
{
    list.Reserve(list.GetSize() + texts.GetSize());
    for (const CString& text : texts) {
        list.Add(text);
    }
}

}  // namespace

class Frame::Outside {
public:
    explicit Outside(Frame& frame) : m_frame(frame)
    {
        frame.Exchange();
        g_current = frame.m_previous;
    }
    Outside(const Outside&) = delete;
    Outside& operator=(const Outside&) = delete;
    ~Outside()
    {
        m_frame.Exchange();
        g_current = &m_frame;
    }

private:
    Frame& m_frame;
};

Frame::Frame(std::shared_ptr<Context> context, Panel* panel, const CStringArray* project)
    : m_context(std::move(context)), m_panel(panel), m_project(project),
      m_previous(g_current), m_slots{&AskBeamTypes, &AskBeamNumbers, &AskSections, &AskElevations,
                                     &AskStirrups,  &AskBars,        &TakeText},
      m_messageBox(&TellUser)
{
    Exchange();
    g_current = this;
}

Frame::~Frame()
{
    Exchange();
    g_current = m_previous;
}

void Frame::Exchange()
{
    m_slots = ExchangeHostSlots(m_slots);
    m_messageBox = ExchangeMessageBoxFunc(m_messageBox);
}

rk_callbacks Frame::Callbacks() const
{
    return m_context->m_handle != 0 ? m_context->m_callbacks : rk_callbacks{};
}

void Frame::NeedNoFailure() const
{
    if (m_failure.status != RK_OK) {
        throw m_failure;
    }
}

template <class Callback>
bool Frame::Call(const char* name, Callback callback)
{
    Refusal failure{RK_CALLBACK, std::string("the callback ") + name};
    try {
        const Outside outside(*this);
        const std::int32_t answer = callback();
        if (answer == 0) {
            return true;
        }
        failure.message += " answered " + std::to_string(answer);
    } catch (const Refusal& refusal) {
        failure = refusal;
    } catch (...) {
        failure.message += " threw an exception";
    }
    if (m_failure.status == RK_OK) {
        m_failure = std::move(failure);
    }
    return false;
}

// The list takes the array's texts for the time of the callback, and none of them if it fails.
template <class Callback>
void Frame::Ask(const char* name, CStringArray& texts, CUIntArray* numbers, Callback callback)
{
    const auto list = std::make_shared<List>(m_context);
    list->m_texts = std::exchange(texts, CStringArray());
    Enter(list);
    const bool bDone = Call(name, [&] { return callback(HandleOf<rk_list>(*list)); });
    Leave(*list);
    if (!bDone) {
        return;
    }
    texts = std::move(list->m_texts);
    for (const std::uint32_t number : list->m_numbers) {
        if (numbers != nullptr) {
            numbers->Add(number);
        }
    }
}

template <class Callback>
void Frame::AskTexts(const char* name, CStringArray& arResult, Callback callback)
{
    if (m_project != nullptr) {
        AddAll(arResult, *m_project);
    } else if (callback != nullptr) {
        void* const user = m_context->m_callbacks.user;
        Ask(name, arResult, nullptr, [&](rk_list answer) { return callback(user, answer); });
    }
}

void Frame::AskBeamTypes(CStringArray& arType)
{
    Frame& frame = *g_current;
    if (frame.m_project == nullptr) {
        frame.AskTexts("beam_types", arType, frame.Callbacks().beam_types);
        return;
    }
    frame.GroupNames();
    for (const NamesOfType& names : frame.m_names) {
        arType.Add(names.type);
    }
}

void Frame::AskBeamNumbers(CUIntArray& arXu, CStringArray& arSuffix, CString strType)
{
    Frame& frame = *g_current;
    const rk_callbacks callbacks = frame.Callbacks();
    if (frame.m_project != nullptr) {
        for (const NamesOfType& names : frame.m_names) {
            if (names.type == strType) {
                arXu = names.serials;
                arSuffix = names.suffixes;
            }
        }
    } else if (callbacks.beam_numbers != nullptr) {
        frame.Ask("beam_numbers", arSuffix, &arXu, [&](rk_list answer) {
            const std::string type = SeenBy(*frame.m_context, strType);
            return callbacks.beam_numbers(callbacks.user, answer, type.data(), type.size());
        });
    }
}

// By type, in the order in which the types first occur.
void Frame::GroupNames()
{
    m_names.clear();
    std::map<CString, std::size_t> places;
    for (const CString& name : *m_project) {
        NamesOfType parts;
        int serial = 0;
        CString suffix;
        BEAMNAME_HITNESS_RANKER::GetBeamType(name, parts.type);
        BEAMNAME_HITNESS_RANKER::GetBeamXu(name, serial);
        BEAMNAME_HITNESS_RANKER::GetBeamKuaAndXuantiao(name, suffix);
        const std::size_t place = places.emplace(parts.type, m_names.size()).first->second;
        if (place == m_names.size()) {
            m_names.push_back(std::move(parts));
        }
        m_names[place].serials.Add(static_cast<unsigned int>(serial));
        m_names[place].suffixes.Add(suffix);
    }
}

void Frame::AskSections(CStringArray& arResult)
{
    g_current->AskTexts("sections", arResult, g_current->Callbacks().sections);
}

void Frame::AskElevations(CStringArray& arResult)
{
    g_current->AskTexts("elevations", arResult, g_current->Callbacks().elevations);
}

void Frame::AskStirrups(CStringArray& arResult)
{
    g_current->AskTexts("stirrups", arResult, g_current->Callbacks().stirrups);
}

void Frame::AskBars(CStringArray& arResult, CString strKind)
{
    Frame& frame = *g_current;
    const rk_callbacks callbacks = frame.Callbacks();
    if (frame.m_project != nullptr) {
        AddAll(arResult, *frame.m_project);
    } else if (callbacks.bars != nullptr) {
        frame.Ask("bars", arResult, nullptr, [&](rk_list answer) {
            const std::string kind = SeenBy(*frame.m_context, strKind);
            return callbacks.bars(callbacks.user, answer, kind.data(), kind.size());
        });
    }
}

void Frame::TakeText(void* target, int mode, CString text, int code)
{
    g_current->Deliver(target == nullptr ? RK_TO_PARENT : RK_TO_HOST, mode, text, code);
}

Frame* Frame::Of(const Panel& panel)
{
    return g_current != nullptr && g_current->m_panel == &panel ? g_current : nullptr;
}

// A panel that its receiver destroyed hands over nothing more.
void Frame::Deliver(int route, int mode, const CString& text, int code)
{
    const rk_callbacks callbacks = Callbacks();
    if (m_panel == nullptr || m_panel->m_handle == 0 || callbacks.deliver == nullptr) {
        return;
    }
    Call("deliver", [&] {
        const std::string bytes = SeenBy(*m_context, text);
        rk_delivery delivery{};
        delivery.struct_size = sizeof delivery;
        delivery.route = route;
        delivery.mode = mode;
        delivery.code = code;
        delivery.text = {bytes.data(), bytes.size()};
        return callbacks.deliver(callbacks.user, HandleOf<rk_panel>(*m_panel), &delivery);
    });
}

int Frame::TellUser(const CString& text)
{
    Frame& frame = *g_current;
    const rk_callbacks callbacks = frame.Callbacks();
    if (callbacks.message != nullptr) {
        frame.Call("message", [&] {
            const std::string bytes = SeenBy(*frame.m_context, text);
            return callbacks.message(callbacks.user, bytes.data(), bytes.size());
        });
    }
    return IDOK;
}

}  // namespace RankerC
