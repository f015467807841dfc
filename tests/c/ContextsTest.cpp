// Two hosts in a process, calls inside callbacks, and what is destroyed there.
#include <array>
#include <atomic>
#include <stdexcept>
#include <thread>

#include "tests/c/CHost.h"
#include "tests/support/FakeHost.h"

namespace {

// Hosts are built with these numbers, and hosts in other languages have them written down.
static_assert(RK_OK == 0 && RK_BAD_ARGUMENT == 1 && RK_BAD_HANDLE == 2 && RK_BAD_INDEX == 3 &&
              RK_BAD_TEXT == 4 && RK_TOO_SMALL == 5 && RK_NOT_DONE == 6 && RK_CALLBACK == 7 &&
              RK_NO_MEMORY == 8 && RK_FAILED == 9);
static_assert(RK_UTF8 == 0 && RK_GBK == 1 && RK_TO_ITEM == 0 && RK_TO_PARENT == 1 && RK_TO_HOST == 2);
static_assert(RK_NAME == 0 && RK_SECTION == 1 && RK_ELEVATION == 2 && RK_STIRRUP == 3 && RK_BARS == 4 &&
              RK_BAR_PIECE == 5 && RK_WALL_BARS == 6);
static_assert(RK_THROUGH_BARS == 0 && RK_TOTAL_BARS == 1 && RK_BOTTOM_BARS == 2 &&
              RK_TOTAL_ON_THROUGH == 3);
static_assert(RK_NAME_PANEL == 0 && RK_SECTION_PANEL == 1 && RK_ELEVATION_PANEL == 2 &&
              RK_STIRRUP_PANEL == 3 && RK_BAR_PANEL == 4 && RK_HORIZONTAL_PICKER == 5 &&
              RK_VERTICAL_PICKER == 6);
static_assert(RK_THE_PANEL == 0 && RK_LABEL == IDC_STATIC && RK_THE_FOCUS == -2 && RK_CLICK == 0 &&
              RK_DOUBLE_CLICK == 1 && RK_RIGHT_CLICK == 2 && RK_A_LABEL == 0 && RK_AN_EDIT_BOX == 1 &&
              RK_A_LIST_BOX == 2 && RK_A_BUTTON == 3);
static_assert(RK_KEY_DOWN == WM_KEYDOWN && RK_KEY_UP == WM_KEYUP && RK_CHARACTER == WM_CHAR &&
              RK_MOUSE_MOVE == WM_MOUSEMOVE && RK_LEFT_DOWN == WM_LBUTTONDOWN &&
              RK_LEFT_UP == WM_LBUTTONUP && RK_LEFT_DOUBLE == WM_LBUTTONDBLCLK &&
              RK_RIGHT_DOWN == WM_RBUTTONDOWN && RK_RIGHT_UP == WM_RBUTTONUP &&
              RK_RIGHT_DOUBLE == WM_RBUTTONDBLCLK && RK_WHEEL == WM_MOUSEWHEEL);

Texts RankedStirrups(const CHost& host)
{
    const rk_ranker ranker = host.NewRanker(RK_STIRRUP);
    const rk_list result = host.NewList();
    EXPECT_EQ(RK_OK, rk_ranker_run(ranker, nullptr, result)) << rk_last_error();
    Texts texts = TextsOf(result);
    texts.resize(1);
    return texts;
}

Texts RankedByCpp()
{
    CStringArray candidates;
    GUJIN_HITNESS_RANKER().ProcessController(candidates);
    return {std::string(candidates[0].View())};
}

TEST(Contexts, KeepTheirCallbacksApartAndTheSlotsAsTheyWere)
{
    FakeHost cpp;
    cpp.m_texts = {"A6@60(2)"};
    CHost one;
    CHost other;
    one.m_texts = {"A6@70(2)"};
    other.m_texts = {"A6@80(2)"};
    EXPECT_EQ(Texts{"A6@70(2)"}, RankedStirrups(one));
    EXPECT_EQ(Texts{"A6@80(2)"}, RankedStirrups(other));
    EXPECT_EQ(Texts{"A6@60(2)"}, RankedByCpp()) << "the slots are the C++ host's between the calls";

    // Inside a callback they are as well, and another context's call is in its own world.
    one.m_act = [&] {
        EXPECT_EQ(Texts{"A6@60(2)"}, RankedByCpp());
        other.m_act = [&] {
            EXPECT_EQ(Texts{"A6@70(2)"}, RankedStirrups(one));
            EXPECT_EQ(Texts{"A6@60(2)"}, RankedByCpp());
            return 0;
        };
        EXPECT_EQ(Texts{"A6@80(2)"}, RankedStirrups(other));
        return 0;
    };
    EXPECT_EQ(Texts{"A6@70(2)"}, RankedStirrups(one));
    EXPECT_FALSE(one.m_act || other.m_act);

    // A slot that a C++ host writes inside a callback stays written.
    one.m_act = [] {
        SetBeamGujinFunc([](CStringArray& list) { list.Add("A6@90(2)"); });
        return 0;
    };
    EXPECT_EQ(Texts{"A6@70(2)"}, RankedStirrups(one));
    EXPECT_EQ(Texts{"A6@90(2)"}, RankedByCpp());
}

TEST(Contexts, TellAFailedCallbackAndGoOnWithoutItsAnswer)
{
    CHost host;
    host.m_texts = {"A6@70(2)"};
    const rk_ranker ranker = host.NewRanker(RK_STIRRUP);
    const rk_list result = host.NewList();
    const auto runsTo = [&](rk_status expected, const char* told) {
        EXPECT_EQ(expected, rk_ranker_run(ranker, nullptr, result));
        if (expected != RK_OK) {
            EXPECT_STREQ(told, rk_last_error());
        }
        EXPECT_EQ(expected == RK_OK ? "A6@70(2)" : "A8@200(2)", TextsOf(result)[0]);
    };
    host.m_act = [] { return -3; };
    runsTo(RK_CALLBACK, "the callback stirrups answered -3");
    host.m_act = []() -> int { throw std::runtime_error("a host in C++"); };
    runsTo(RK_CALLBACK, "the callback stirrups threw an exception");
    host.m_texts = {"A6@70(2)", "\xFF"};
    runsTo(RK_CALLBACK, "the callback stirrups answered 4");
    host.m_texts.pop_back();
    runsTo(RK_OK, "");
    host.m_callbacks.stirrups = nullptr;
    host.Register();
    DONE(rk_ranker_run(ranker, nullptr, result));
    EXPECT_EQ("A8@200(2)", TextsOf(result)[0]) << "guesses alone";
}

// A beam type that GBK bytes left cut cannot be told to a host that wants UTF-8.
TEST(Contexts, TellATextThatCannotBeHandedToACallback)
{
    CHost host;
    host.m_types = {"\xC1\xBA", "\xC1"};
    const rk_ranker ranker = host.NewRanker(RK_NAME);
    const rk_list result = host.NewList();
    DONE(rk_context_set_encoding(host.m_context, RK_GBK));
    DONE(rk_ranker_run(ranker, nullptr, result));
    DONE(rk_context_set_encoding(host.m_context, RK_UTF8));
    host.m_types.clear();
    EXPECT_EQ(RK_BAD_TEXT, rk_ranker_run(ranker, nullptr, result));
    EXPECT_EQ("梁2(1)", TextsOf(result)[1]) << "behind the guess for a project without frame beams";
}

TEST(Contexts, AnAnswerListIsGoneAfterwards)
{
    const CHost host;
    rk_list kept = nullptr;
    rk_callbacks callbacks{};
    callbacks.struct_size = sizeof callbacks;
    callbacks.user = &kept;
    callbacks.sections = [](void* user, rk_list answer) {
        *static_cast<rk_list*>(user) = answer;
        return rk_list_add(answer, "310x310", RK_ZERO_ENDED);
    };
    DONE(rk_context_set_callbacks(host.m_context, &callbacks));
    const rk_list result = host.NewList();
    DONE(rk_ranker_run(host.NewRanker(RK_SECTION), nullptr, result));
    EXPECT_NE(nullptr, kept);
    EXPECT_EQ(RK_BAD_HANDLE, rk_list_add(kept, "", 0));
}

TEST(Contexts, MayGoInsideTheirOwnCallbacks)
{
    for (const char what : {'r', 'l', 'c'}) {
        CHost host;
        host.m_texts = {"2B22"};
        const rk_ranker ranker = host.NewRanker(RK_BARS);
        const rk_list result = host.NewList({"old"});
        host.m_act = [&] {
            return what == 'r'   ? rk_ranker_destroy(ranker)
                   : what == 'l' ? rk_list_destroy(result)
                                 : rk_context_destroy(host.m_context);
        };
        // Of a context that has gone the answer's list has gone too, so that the callback fails.
        EXPECT_EQ(what == 'c' ? RK_CALLBACK : RK_OK, rk_ranker_run(ranker, nullptr, result)) << what;
        EXPECT_EQ(what == 'l' ? RK_OK : RK_BAD_HANDLE, rk_ranker_destroy(ranker)) << what;
        EXPECT_EQ(what == 'r' ? RK_OK : RK_BAD_HANDLE, rk_list_destroy(result)) << what;
    }
}

// A context that has gone is asked nothing more, though the call goes on.
TEST(Contexts, AreNotCalledOnceTheyHaveGone)
{
    CHost host;
    host.m_types = {"KL"};
    const rk_ranker ranker = host.NewRanker(RK_NAME);
    const rk_list result = host.NewList();
    rk_ranker_run(ranker, nullptr, result);
    EXPECT_EQ(Texts{"KL"}, host.m_asked);
    host.m_act = [&] { return rk_context_destroy(host.m_context); };
    EXPECT_EQ(RK_CALLBACK, rk_ranker_run(ranker, nullptr, result));
    EXPECT_EQ(Texts{"KL"}, host.m_asked);
}

TEST(Contexts, ServeManyThreadsOneAtATime)
{
    constexpr int Threads = 4;
    constexpr int Runs = 200;
    std::atomic<int> inside = 0;
    std::atomic<int> good = 0;
    const auto serve = [&](int number) {
        CHost host;
        host.m_texts = {"A6@" + std::to_string(70 + number) + "(2)"};
        const Texts own = host.m_texts;
        for (int run = 0; run < Runs; ++run) {
            host.m_act = [&] {
                const bool bAlone = ++inside == 1;
                std::this_thread::yield();
                --inside;
                return bAlone ? 0 : 1;
            };
            good += RankedStirrups(host) == own ? 1 : 0;
            const rk_status status = rk_list_add(nullptr, "", 0);
            good +=
                status == RK_BAD_HANDLE && std::string(rk_last_error()).find("list") != std::string::npos;
        }
    };
    std::array<std::thread, Threads> threads;
    for (int i = 0; i < Threads; ++i) {
        threads[static_cast<std::size_t>(i)] = std::thread(serve, i);
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    EXPECT_EQ(2 * Threads * Runs, good);
}

TEST(Contexts, TellTheVersion)
{
    const char* text = nullptr;
    std::int32_t number = 0;
    DONE(rk_version(&text, &number));
    EXPECT_STREQ(MODULE_VERSION, text);
    EXPECT_EQ(RK_INTERFACE, number);
    DONE(rk_version(nullptr, nullptr));
}

// A host built against a later header, whose structures are longer, and one whose member is not there yet.
TEST(Contexts, TakeStructuresThatHaveGrown)
{
    const CHost host;
    struct Longer {
        rk_measures known;
        std::array<char, 16> later;
    } longer{};
    longer.known.struct_size = sizeof longer;
    longer.later.fill('x');
    DONE(rk_text_measure(host.m_context, RK_BARS, "2B22", 4, &longer.known));
    EXPECT_EQ(22, longer.known.diameter);
    EXPECT_EQ(sizeof longer, longer.known.struct_size);
    EXPECT_EQ('x', longer.later[0]);
}

}  // namespace
