// Who gets what panels deliver: the host's callback, a property item, the message box.
#pragma once

#include <functional>
#include <ostream>
#include <string>
#include <vector>

#include "tests/support/Texts.h"

struct Delivery {
    const void* first;
    int mode;
    std::string text;
    int code;

    bool operator==(const Delivery&) const = default;
    friend std::ostream& operator<<(std::ostream& out, const Delivery& d)
    {
        return out << d.first << ' ' << d.mode << ' ' << d.text << ' ' << d.code;
    }
};

// Registers itself on construction and empties the slots afterwards. One at a time.
class Receiver : public CPropertyGridItem {
public:
    Receiver()
    {
        s_receiver = this;
        SetBeamMouseInputFunc([](void* first, int mode, CString text, int code) {
            s_receiver->m_calls.push_back({first, mode, std::string(text.View()), code});
            s_receiver->Answer();
        });
        SetMessageBoxFunc([](const CString& text) {
            s_receiver->m_messages.emplace_back(text.View());
            s_receiver->Answer();
            return IDOK;
        });
    }
    ~Receiver() override
    {
        SetBeamMouseInputFunc(nullptr);
        SetMessageBoxFunc(nullptr);
        s_receiver = nullptr;
    }

    void SetValue(CString strValue) override
    {
        m_items.emplace_back(strValue.View());
        Answer();
    }

    [[nodiscard]] std::size_t Count() const { return m_calls.size() + m_items.size(); }
    void Forget()
    {
        m_calls.clear();
        m_items.clear();
        m_messages.clear();
    }

    std::vector<Delivery> m_calls;  // to the callback
    Texts m_items;                  // to the item
    Texts m_messages;
    std::function<void()> m_answer;  // runs at the end of each of them, once

private:
    void Answer()
    {
        if (const auto answer = std::exchange(m_answer, nullptr)) {
            answer();
        }
    }

    static inline Receiver* s_receiver = nullptr;
};
