// Tables of counts, then lists of lines.
#include "desk/console/ImportReport.h"

#include <algorithm>
#include <array>
#include <map>
#include <ostream>

namespace Desk {

namespace {

using Counts = std::array<std::size_t, 4>;

std::size_t Index(Outcome outcome) { return static_cast<std::size_t>(outcome); }

constexpr std::size_t NamesWidth = 14;  // of the column of names

std::string Padded(std::string_view text, std::size_t width)
{
    return std::string(text).append(width - std::min(width, text.size()), ' ');
}

std::string Right(std::size_t number, std::size_t width)
{
    const std::string text = std::to_string(number);
    return std::string(width - std::min(width, text.size()), ' ').append(text);
}

// A text as one line of a list: without control characters, long ones cut off.
std::string Shown(const std::string& text)
{
    constexpr std::size_t Longest = 120;  // bytes
    std::string shown;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool isHead = (static_cast<unsigned char>(text[i]) & 0xC0) != 0x80;
        if (i >= Longest && isHead) {
            return "\"" + shown + "\"...";
        }
        const auto byte = static_cast<unsigned char>(text[i]);
        shown += byte < 0x20 || byte == 0x7F ? '?' : text[i];
    }
    return "\"" + shown + "\"";
}

class Report {
public:
    Report(std::ostream& out, const std::vector<ImportedText>& texts) : m_out(out), m_texts(texts) {}

    void PrintHead(const std::string& name, const TextsFile& file) const
    {
        const Counts all = Count([](const ImportedText&) { return true; });
        m_out << name << ": " << Plural(file.lines, "line") << ", " << Plural(m_texts.size(), "text");
        if (file.hasKinds) {
            m_out << ", each with its kind";
        }
        if (file.blankLines > 0) {
            m_out << ", " << Plural(file.blankLines, "blank line");
        }
        m_out << "\nread " << all[0] << ", partly read " << all[1] << ", no annotation of a beam or wall "
              << all[2] << ", not read " << all[3] << "\n";
    }

    void PrintKinds() const
    {
        m_out << "\n"
              << "  " << Padded("kind given", NamesWidth)
              << "  texts   read  in part  no annotation  not read\n";
        for (const Kind kind : AllKinds) {
            const Counts counts = Count([kind](const ImportedText& text) { return text.kind == kind; });
            const std::size_t sum = counts[0] + counts[1] + counts[2] + counts[3];
            if (sum > 0) {
                m_out << "  " << Padded(KindWord(kind), NamesWidth) << Right(sum, 7) << Right(counts[0], 7)
                      << Right(counts[1], 9) << Right(counts[2], 15) << Right(counts[3], 10) << "\n";
            }
        }
    }

    void PrintFields() const
    {
        std::map<Field, std::size_t> counts;
        for (const ImportedText& text : m_texts) {
            for (const Annotation& annotation : text.reading.annotations) {
                ++counts[annotation.field];
            }
        }
        m_out << "\n  annotations read as\n";
        for (const auto& [field, count] : counts) {
            m_out << "  " << Padded(PlainFieldName(field), NamesWidth) << Right(count, 7) << "\n";
        }
    }

    void PrintFilled(const Choices& choices) const
    {
        bool hasHead = false;
        for (const Filled filled : AllFilled) {
            std::vector<std::size_t> lines;
            for (const ImportedText& text : m_texts) {
                if (text.reading.filled.count(filled) > 0) {
                    lines.push_back(text.drawn.line);
                }
            }
            if (lines.empty()) {
                continue;
            }
            m_out << (hasHead ? "" : "\nfilled in or kept as written\n");
            hasHead = true;
            m_out << "  " << FilledWords(filled, choices) << "\n    " << Plural(lines.size(), "text")
                  << (lines.size() == 1 ? ", line " : ", lines ") << Ranges(lines) << "\n";
        }
    }

    void PrintList(const char* head, Outcome outcome) const
    {
        bool hasHead = false;
        for (const ImportedText& text : m_texts) {
            if (text.reading.outcome == outcome) {
                m_out << (hasHead ? "" : head);
                hasHead = true;
                PrintLine(text, text.reading.why);
            }
        }
    }

    void PrintContradictions() const
    {
        bool hasHead = false;
        for (const ImportedText& text : m_texts) {
            if (!text.reading.contradiction.empty()) {
                m_out << (hasHead ? "" : "\ntext and kind disagree\n");
                hasHead = true;
                PrintLine(text, text.reading.contradiction);
            }
        }
    }

    void PrintAll() const
    {
        m_out << "\nevery text\n";
        for (const ImportedText& text : m_texts) {
            std::string became;
            for (const Annotation& annotation : text.reading.annotations) {
                became.append(became.empty() ? "" : ", ").append(PlainFieldName(annotation.field));
                became.append(" ").append(annotation.text);
            }
            PrintLine(text, became.empty() ? "-" : became);
        }
    }

private:
    template <class Wanted>
    Counts Count(Wanted wanted) const
    {
        Counts counts{};
        for (const ImportedText& text : m_texts) {
            if (wanted(text)) {
                ++counts[Index(text.reading.outcome)];
            }
        }
        return counts;
    }

    void PrintLine(const ImportedText& text, const std::string& result) const
    {
        m_out << "  line " << text.drawn.line << ": " << Shown(text.drawn.text) << ": " << result << "\n";
    }

    std::ostream& m_out;
    const std::vector<ImportedText>& m_texts;
};

}  // namespace

std::string Plural(std::size_t count, const std::string& word)
{
    return std::to_string(count) + " " + word + (count == 1 ? "" : "s");
}

std::string Ranges(const std::vector<std::size_t>& numbers)
{
    std::string text;
    for (std::size_t i = 0; i < numbers.size();) {
        std::size_t last = i;
        while (last + 1 < numbers.size() && numbers[last + 1] == numbers[last] + 1) {
            ++last;
        }
        const bool isRun = last - i >= 2;
        text.append(text.empty() ? "" : ", ").append(std::to_string(numbers[i]));
        if (isRun) {
            text.append("-").append(std::to_string(numbers[last]));
        }
        i = isRun ? last + 1 : i + 1;
    }
    return text;
}

void PrintReport(std::ostream& out, const std::string& name, const TextsFile& file,
                 const std::vector<ImportedText>& texts, const Choices& choices, bool all)
{
    const Report report(out, texts);
    report.PrintHead(name, file);
    if (file.hasKinds) {
        report.PrintKinds();
    }
    report.PrintFields();
    report.PrintFilled(choices);
    report.PrintContradictions();
    report.PrintList("\npartly read\n", Outcome::InPart);
    report.PrintList("\nno annotation of a beam or wall\n", Outcome::NoBeam);
    report.PrintList("\nnot read\n", Outcome::Unread);
    if (all) {
        report.PrintAll();
    }
}

}  // namespace Desk
