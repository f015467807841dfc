// The texts that a ranker gets from a project, in numbers.
#pragma once

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "desk/ranking/ProjectHost.h"
#include "desk/ranking/Question.h"

namespace Desk {

// Empty texts, those that are not in the ranker's grammar and those that GBK does not hold are not
// delivered, nor are beam names without a type or with no serial above 0. A name without a span suffix
// delivers the empty suffix.
class RankerTexts {
public:
    struct Use {
        std::size_t beam = 0;
        int text = 0;

        bool operator==(const Use&) const = default;
    };

    // Of no beam yet. The kind text is the bar ranker's.
    explicit RankerTexts(Ranker ranker, std::string barKind = {});

    // Takes the beam's texts instead of those that it had; false when they are the same.
    bool Set(std::size_t beam, const Beam& texts);
    // One more use, at the last beam or one after it.
    void Add(std::size_t beam, int text) { m_uses.push_back({beam, text}); }
    // In project order.
    [[nodiscard]] const std::vector<Use>& Uses() const { return m_uses; }

    // The text's number, from 0; nothing for a text that is never delivered.
    std::optional<int> NumberOf(const std::string& text);
    [[nodiscard]] const std::string& Text(int number) const { return At(number).text; }  // UTF-8
    // The text as the ranker lists it, which cuts the heads of bars; equal numbers for equal ones.
    [[nodiscard]] const CString& Listed(int number) const { return At(number).listed; }
    [[nodiscard]] int ListedNumber(int number) const { return At(number).ofListed; }
    // The same for texts that the order of bars does not tell apart, and whether there are others such.
    [[nodiscard]] int ClassOf(int number) const { return At(number).ofClass; }
    [[nodiscard]] bool IsAlone(int number) const;
    // Type and suffix of a name, "KL(3)" of KL12(3), in UTF-8.
    [[nodiscard]] const std::string& FormOf(int number) const { return At(number).form; }
    // False for a name whose parts are not delivered.
    [[nodiscard]] bool IsDelivered(int number) const;

    [[nodiscard]] bool AreBars() const { return m_ranker == Ranker::Bars; }
    // These texts in their order, or their parts where they are names.
    [[nodiscard]] Delivery Delivered(const std::vector<int>& numbers) const;

private:
    struct Entry {
        std::string text;
        CString listed;
        int ofListed = 0;
        int ofClass = 0;
        CString gbk;
        CString type;  // parts of a name
        CString suffix;
        int serial = 0;
        std::string form;
    };
    using Numbers = std::unordered_map<std::string, int>;

    [[nodiscard]] const Entry& At(int number) const { return m_texts[static_cast<std::size_t>(number)]; }
    [[nodiscard]] Delivery DeliveredNames(const std::vector<int>& numbers) const;

    Ranker m_ranker;
    std::string m_barKind;
    std::vector<Use> m_uses;
    std::vector<Entry> m_texts;
    Numbers m_numbers;  // -1 for a text that GBK does not hold
    Numbers m_listed;
    Numbers m_classes;
    std::vector<int> m_sizes;  // of the classes
};

// "KL(3)" of the GBK name KL12(3), in UTF-8.
[[nodiscard]] std::string FormOfName(const CString& name);

// How often each text is used, one use after the other in project order; and the few texts that make the
// ranker give the same list, or the same place of one text, as all uses do. A ranker goes by the order of
// the first uses alone, that of bars also by which of them are used more often than which.
class TextCounts {
public:
    // Borrows the texts.
    explicit TextCounts(const RankerTexts& texts) : m_texts(texts) {}

    void Add(int text);
    // The used texts in the order of their first uses.
    [[nodiscard]] const std::vector<int>& InOrder() const { return m_order; }
    [[nodiscard]] int UsesOf(int text) const { return Of(text, m_uses); }
    // The text, or another one that is listed as it is.
    [[nodiscard]] bool Holds(int text) const { return RunOfListed(text) > 0; }

    // For the whole list: bars as often as their rank among the numbers of uses that there are.
    [[nodiscard]] std::vector<int> ForList() const;
    // The number of uses that the bar ranker counts for each rank.
    [[nodiscard]] std::vector<int> UsesByRank() const;
    // For the place of one text: bars that are used less often once, as often twice, more often three
    // times.
    [[nodiscard]] std::vector<int> ForPlaceOf(int text) const;

private:
    static int Of(int text, const std::vector<int>& counts)
    {
        const auto at = static_cast<std::size_t>(text);
        return at < counts.size() ? counts[at] : 0;
    }
    [[nodiscard]] int RunOfListed(int text) const;
    template <class Times>
    [[nodiscard]] std::vector<int> Repeated(Times times) const;

    const RankerTexts& m_texts;
    std::vector<int> m_order;
    std::vector<int> m_uses;  // by text
    // Bars count along their first run: the uses before another text of the class comes between.
    std::vector<int> m_runs;
    std::vector<int> m_last;  // by class: the text used last, from 1
};

}  // namespace Desk
