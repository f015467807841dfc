// A host that speaks C: a context of its own, and the interface's answers as plain values.
#pragma once

#include <functional>

#include <gtest/gtest.h>

#include "rankermodule.h"
#include "tests/support/Texts.h"

#define DONE(call) ASSERT_EQ(RK_OK, call) << rk_last_error()

inline rk_text TextFor(const std::string& text) { return {text.data(), text.size()}; }

inline Texts TextsOf(rk_list list)
{
    std::size_t count = 0;
    EXPECT_EQ(RK_OK, rk_list_count(list, &count));
    std::vector<rk_text> borrowed(count);
    EXPECT_EQ(RK_OK, rk_list_texts(list, 0, count, borrowed.data())) << rk_last_error();
    Texts texts;
    for (const rk_text& text : borrowed) {
        texts.emplace_back(text.data, text.length);
    }
    return texts;
}

inline Stamps StampsOf(rk_list list)
{
    const std::uint32_t* numbers = nullptr;
    std::size_t count = 0;
    EXPECT_EQ(RK_OK, rk_list_numbers(list, &numbers, &count));
    return {numbers, numbers + count};
}

inline rk_status AddAll(rk_list list, const Texts& texts)
{
    std::vector<rk_text> given;
    for (const std::string& text : texts) {
        given.push_back(TextFor(text));
    }
    return rk_list_add_texts(list, given.data(), given.size());
}

// What a function writes into a buffer: asked for its length first, then with just enough room.
template <class Function, class... Arguments>
std::string Written(Function function, Arguments... arguments)
{
    std::size_t length = 0;
    const rk_status asked = function(arguments..., nullptr, 0, &length);
    if (asked != RK_TOO_SMALL) {
        return "status " + std::to_string(asked);
    }
    std::string text(length + 1, '?');
    EXPECT_EQ(RK_TOO_SMALL, function(arguments..., text.data(), length, nullptr));
    EXPECT_EQ(std::string(length + 1, '?'), text) << "a buffer that is too small is left alone";
    EXPECT_EQ(RK_OK, function(arguments..., text.data(), length + 1, nullptr)) << rk_last_error();
    EXPECT_EQ('\0', text.back());
    text.pop_back();
    return text;
}

// Its callbacks answer what the test has written down and note what they are told.
class CHost {
public:
    struct Delivered {
        rk_panel panel;
        int route;
        int mode;
        std::string text;
        int code;

        bool operator==(const Delivered&) const = default;
        friend void PrintTo(const Delivered& d, std::ostream* out)
        {
            *out << d.panel << ' ' << d.route << ' ' << d.mode << ' ' << d.text << ' ' << d.code;
        }
    };

    CHost()
    {
        EXPECT_EQ(RK_OK, rk_context_create(&m_context));
        m_callbacks.struct_size = sizeof m_callbacks;
        m_callbacks.user = this;
        m_callbacks.beam_types = [](void* user, rk_list answer) {
            return Of(user).Answer(answer, Of(user).m_types);
        };
        m_callbacks.beam_numbers = [](void* user, rk_list answer, const char* type, std::size_t length) {
            Of(user).m_asked.emplace_back(type, length);
            const std::uint32_t serials[] = {1, 4};
            EXPECT_EQ(RK_OK, rk_list_add_numbers(answer, serials, 2));
            return Of(user).Answer(answer, {"(1)", "(2A)"});
        };
        const auto answer = [](void* user, rk_list list) {
            return Of(user).Answer(list, Of(user).m_texts);
        };
        m_callbacks.sections = answer;
        m_callbacks.elevations = answer;
        m_callbacks.stirrups = answer;
        m_callbacks.bars = [](void* user, rk_list list, const char* kind, std::size_t length) {
            Of(user).m_asked.emplace_back(kind, length);
            return Of(user).Answer(list, Of(user).m_texts);
        };
        m_callbacks.deliver = [](void* user, rk_panel panel, const rk_delivery* delivery) {
            const std::string text(delivery->text.data, delivery->text.length);
            Of(user).m_delivered.push_back({panel, delivery->route, delivery->mode, text, delivery->code});
            return Of(user).Act();
        };
        m_callbacks.message = [](void* user, const char* text, std::size_t length) {
            Of(user).m_messages.emplace_back(text, length);
            return Of(user).Act();
        };
        Register();
    }
    CHost(const CHost&) = delete;
    CHost& operator=(const CHost&) = delete;
    ~CHost() { rk_context_destroy(m_context); }

    void Register() { EXPECT_EQ(RK_OK, rk_context_set_callbacks(m_context, &m_callbacks)); }

    [[nodiscard]] rk_list NewList(const Texts& texts = {}) const
    {
        rk_list list = nullptr;
        EXPECT_EQ(RK_OK, rk_list_create(m_context, &list));
        EXPECT_EQ(RK_OK, AddAll(list, texts)) << rk_last_error();
        return list;
    }
    [[nodiscard]] rk_ranker NewRanker(int kind) const
    {
        rk_ranker ranker = nullptr;
        EXPECT_EQ(RK_OK, rk_ranker_create(m_context, kind, &ranker));
        return ranker;
    }
    [[nodiscard]] rk_panel NewPanel(int kind, int route = RK_TO_ITEM, int barKind = -1) const
    {
        const rk_panel_options options = {sizeof options, kind, route, barKind};
        rk_panel panel = nullptr;
        EXPECT_EQ(RK_OK, rk_panel_create(m_context, &options, &panel)) << rk_last_error();
        return panel;
    }
    // One that shows a text.
    [[nodiscard]] rk_panel Shown(int kind, const char* text, int route = RK_TO_ITEM) const
    {
        const rk_panel panel = NewPanel(kind, route);
        EXPECT_EQ(RK_OK, rk_panel_set_text(panel, text, RK_ZERO_ENDED)) << rk_last_error();
        EXPECT_EQ(RK_OK, rk_panel_show(panel, 200, 100));
        return panel;
    }

    rk_context m_context = nullptr;
    rk_callbacks m_callbacks{};
    Texts m_texts;
    Texts m_types;
    Texts m_asked;  // kinds and beam types
    std::vector<Delivered> m_delivered;
    Texts m_messages;
    std::function<int()> m_act;  // runs in each callback, once

private:
    static CHost& Of(void* user) { return *static_cast<CHost*>(user); }
    int Answer(rk_list answer, const Texts& texts)
    {
        const int acted = Act();
        return acted != 0 ? acted : AddAll(answer, texts);
    }
    int Act()
    {
        const auto act = std::exchange(m_act, nullptr);
        return act ? act() : 0;
    }
};
