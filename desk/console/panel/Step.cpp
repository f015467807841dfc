// Reading steps: which words each step takes.
#include "desk/console/panel/Step.h"

#include <algorithm>
#include <charconv>

#include "desk/console/Print.h"
#include "desk/console/panel/EventNames.h"
#include "desk/console/panel/StepWords.h"
#include "desk/project/Encoding.h"
#include "desk/project/Failure.h"

namespace Desk::Panels {

namespace {

struct Form {
    Verb verb;
    const char* name;
    const char* form;
    const char* about;
};

constexpr Form Forms[] = {
    {Verb::Click, "click", "click LIST ROW, click CONTROL or click X,Y", "press and release"},
    {Verb::Double, "double", "double LIST ROW, double CONTROL or double X,Y", "double click"},
    {Verb::Right, "right", "right, right CONTROL, right LIST ROW or right X,Y",
     "confirm: right press and release"},
    {Verb::Type, "type", "type BOX TEXT", "go behind a box's text and type"},
    {Verb::Clear, "clear", "clear BOX", "take a box's text away with the Backspace key"},
    {Verb::Key, "key", "key NAME or key NAME TIMES", "esc tab shift+tab enter space back delete left ..."},
    {Verb::Wheel, "wheel", "wheel CONTROL NOTCHES", "turn the wheel, above 0 towards the first row"},
    {Verb::Drag, "drag", "drag DX DY, or with a place behind it as in click",
     "press, and release so far away"},
    {Verb::Press, "press", "press LIST ROW, press CONTROL or press X,Y", "the left button goes down"},
    {Verb::Release, "release", "release CONTROL or release X,Y", "it goes up"},
    {Verb::Text, "text", "text TEXT", "the host sets a new text"},
    {Verb::Kind, "kind", "kind N", "the host opens the bar panel for a kind, -1 to 8"},
    {Verb::Show, "show", "show", "the host shows the panel"},
    {Verb::Hide, "hide", "hide", "the host hides it"},
};

std::optional<int> NumberOf(std::string_view text)
{
    int number = 0;
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, number);
    return error == std::errc() && stop == end && !text.empty() ? std::optional(number) : std::nullopt;
}

std::optional<CPoint> PointOf(const Word& word)
{
    const std::size_t comma = word.text.find(',');
    if (word.quoted || comma == std::string::npos) {
        return std::nullopt;
    }
    const std::optional<int> x = NumberOf(std::string_view(word.text).substr(0, comma));
    const std::optional<int> y = NumberOf(std::string_view(word.text).substr(comma + 1));
    return x && y ? std::optional(CPoint(*x, *y)) : std::nullopt;
}

// Turns the words of one step into its parts.
class Reader {
public:
    explicit Reader(Line& line) : m_step(line.step), m_words(line.words) {}

    Step Read()
    {
        m_form = FindForm();
        m_step.verb = m_form->verb;
        ReadParts();
        if (m_next < m_words.size()) {
            Refuse("\"" + m_words[m_next].text + "\" is too much; a text with blanks stands in quotes");
        }
        return std::move(m_step);
    }

private:
    [[noreturn]] void Refuse(const std::string& what) const
    {
        ThrowAt(m_step, what + "; it is: " + m_form->form);
    }

    [[nodiscard]] const Form* FindForm() const
    {
        const std::string& name = m_words.front().text;
        const auto* const form = std::find_if(std::begin(Forms), std::end(Forms),
                                              [&](const Form& row) { return name == row.name; });
        if (form == std::end(Forms)) {
            std::string names;
            for (const Form& row : Forms) {
                names += std::string(names.empty() ? "" : ", ") + row.name;
            }
            ThrowAt(m_step, "no step is called \"" + name + "\"; there are " + names);
        }
        return form;
    }

    const Word& Take(const char* what)
    {
        if (m_next == m_words.size()) {
            Refuse(std::string(what) + " is missing");
        }
        return m_words[m_next++];
    }

    [[nodiscard]] bool HasMore() const { return m_next < m_words.size(); }

    int TakeNumber(const char* what, int least, int most)
    {
        const std::string& text = Take(what).text;
        const std::optional<int> number = NumberOf(text);
        if (!number || *number < least || *number > most) {
            Refuse(std::string(what) + " is a whole number from " + std::to_string(least) + " to " +
                   std::to_string(most) + ", not \"" + text + "\"");
        }
        return *number;
    }

    CString TakeText()
    {
        const std::optional<CString> text = GbkFromUtf8(Take("the text").text);
        if (!text) {
            Refuse("the text has a character that GBK lacks");
        }
        return *text;
    }

    void TakeControl(const char* what) { m_step.place.control = Take(what).text; }

    void TakePlace()
    {
        Place& place = m_step.place;
        const Word& word = Take("the place");
        place.point = PointOf(word);
        if (place.point) {
            return;
        }
        place.control = word.text;
        if (HasMore()) {
            const Word& row = m_words[m_next++];
            if (row.quoted || !row.text.starts_with('#')) {
                place.rowText = row.text;
            } else if (place.rowNumber = NumberOf(std::string_view(row.text).substr(1)); !place.rowNumber) {
                Refuse("a row by its number is #0, #1, ..., not \"" + row.text + "\"");
            }
        }
    }

    void TakeKey()
    {
        const std::string& name = Take("the key").text;
        const auto* const key = std::find_if(std::begin(Keys), std::end(Keys),
                                             [&](const NamedKey& row) { return name == row.name; });
        if (key == std::end(Keys)) {
            std::string names;
            for (const NamedKey& row : Keys) {
                names += std::string(names.empty() ? "" : ", ") + row.name;
            }
            Refuse("no key is called \"" + name + "\"; there are " + names);
        }
        m_step.key = key->key;
        m_step.shift = key->shift;
    }

    void ReadParts()
    {
        constexpr int Far = 10'000;  // pixels
        constexpr int Many = 1000;
        switch (m_step.verb) {
        case Verb::Click:
        case Verb::Double:
        case Verb::Press:
        case Verb::Release: TakePlace(); break;
        case Verb::Drag:
            m_step.distance.x = TakeNumber("the way across", -Far, Far);
            m_step.distance.y = TakeNumber("the way down", -Far, Far);
            [[fallthrough]];
        case Verb::Right:
            if (HasMore()) {
                TakePlace();
            }
            break;
        case Verb::Wheel:
            TakeControl("the control");
            m_step.number = TakeNumber("the number of notches", -Many, Many);
            break;
        case Verb::Type:
            TakeControl("the box");
            m_step.text = TakeText();
            break;
        case Verb::Clear: TakeControl("the box"); break;
        case Verb::Key:
            TakeKey();
            m_step.number = HasMore() ? TakeNumber("how often", 1, Many) : 1;
            break;
        case Verb::Text: m_step.text = TakeText(); break;
        case Verb::Kind: m_step.number = TakeNumber("the kind", -1, 8); break;
        case Verb::Show:
        case Verb::Hide: break;
        }
    }

    Step& m_step;
    const std::vector<Word>& m_words;
    const Form* m_form = nullptr;
    std::size_t m_next = 1;
};

}  // namespace

std::vector<Step> ReadSteps(std::string_view text, const std::string& file)
{
    std::vector<Step> steps;
    for (Line& line : CutSteps(text, file)) {
        steps.push_back(Reader(line).Read());
    }
    return steps;
}

void ThrowAt(const Step& step, const std::string& what)
{
    throw Failure(step.origin + ": " + step.source + ": " + what);
}

std::string StepHelp()
{
    constexpr int FormWidth = 51;
    std::string help = "Steps, with \";\" or a new line between them:\n";
    for (const Form& row : Forms) {
        help += "  " + PadRight(row.form, FormWidth) + row.about + "\n";
    }
    return help +
           "A control is named by its id, a button also by its caption; a row by its text or, "
           "from 0, as\n#N; X,Y are pixels from the panel's corner. A word with blanks or \";\" in it "
           "stands in quotes.";
}

}  // namespace Desk::Panels
