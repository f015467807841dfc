// Builds the value from the parser's events, since only the events know where in the text they happen.
#include "desk/project/JsonText.h"

#include <algorithm>
#include <charconv>
#include <iterator>
#include <unordered_set>
#include <vector>

#include "desk/project/Encoding.h"

namespace Desk {

namespace {

constexpr std::size_t MaxDepth = 64;
constexpr std::size_t FewKeys = 16;  // up to here a walk over the keys is cheaper than a hash
constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";

void CheckCharacters(std::string_view text)
{
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t length = Utf8Length(text.substr(at));
        if (length == 0) {
            throw JsonFault(at, Phrase("Desk", "not UTF-8"));
        }
        if (text[at] == '\0') {
            throw JsonFault(at, Phrase("Desk", "a zero byte in the text"));
        }
        at += length;
    }
}

// The parser's words as a phrase, where they are known. A translation may leave out a detail.
Message ParserReason(const std::string& words)
{
    static constexpr std::string_view Unexpected = "unexpected ";
    static constexpr std::string_view Expected = "; expected ";
    const std::size_t expected = words.find(Expected);
    if (words.starts_with(Unexpected) && expected != std::string::npos) {
        return {Phrase("Desk", "unexpected %1; expected %2"),
                ParserReason(words.substr(Unexpected.size(), expected - Unexpected.size())),
                ParserReason(words.substr(expected + Expected.size()))};
    }
    for (const Phrase& phrase :
         {Phrase("Desk", "unexpected %1"), Phrase("Desk", "invalid string: %1"),
          Phrase("Desk", "invalid number; %1"), Phrase("Desk", "number overflow parsing %1"),
          Phrase("Desk", "invalid literal"), Phrase("Desk", "string literal"),
          Phrase("Desk", "number literal"), Phrase("Desk", "true literal"), Phrase("Desk", "false literal"),
          Phrase("Desk", "null literal"), Phrase("Desk", "'[', '{', or a literal"),
          Phrase("Desk", "end of input")}) {
        const std::string_view english = phrase.english;
        const std::string_view head = english.substr(0, english.find("%1"));
        if (words == english) {
            return phrase;
        }
        if (head != english && words.starts_with(head)) {
            return {phrase, ParserReason(words.substr(head.size()))};
        }
    }
    return words;
}

// Walks the text for the parser and tells the builder how far it has come.
class Walker {
public:
    using iterator_category = std::input_iterator_tag;
    using value_type = char;
    using difference_type = std::ptrdiff_t;
    using pointer = const char*;
    using reference = const char&;

    Walker(const char* at, const char** seen) : m_at(at), m_seen(seen) {}
    reference operator*() const { return *m_at; }
    Walker& operator++()
    {
        *m_seen = ++m_at;
        return *this;
    }
    bool operator==(const Walker& other) const { return m_at == other.m_at; }

private:
    const char* m_at;
    const char** m_seen;
};

class Builder : public nlohmann::json_sax<Json> {
public:
    explicit Builder(std::string_view text) : m_text(text), m_seen(text.data()) {}

    Json Build()
    {
        const char* const end = m_text.data() + m_text.size();
        Json::sax_parse(Walker(m_seen, &m_seen), Walker(end, &m_seen), this);
        return std::move(m_root);
    }

    bool null() override { return Add(nullptr); }
    bool boolean(bool value) override { return Add(value); }
    bool number_integer(std::int64_t value) override { return Add(value); }
    bool number_unsigned(std::uint64_t value) override { return Add(value); }
    bool number_float(double value, const std::string& written) override
    {
        if (Json(value).dump() == written) {
            return Add(value);
        }
        return Add(Json::binary({written.begin(), written.end()}));
    }
    bool string(std::string& value) override { return Add(std::move(value)); }
    bool binary(Json::binary_t& /*value*/) override { return false; }

    bool start_object(std::size_t /*size*/) override { return Open(Json::object()); }
    bool start_array(std::size_t /*size*/) override { return Open(Json::array()); }
    bool end_object() override { return Close(); }
    bool end_array() override { return Close(); }

    bool key(std::string& key) override
    {
        Level& level = m_open.back();
        auto& members = level.value->get_ref<Json::object_t&>();
        if (Knows(level, key)) {
            throw JsonFault(StartOfString(),
                            {Phrase("Desk", "the key \"%1\" stands twice in one object"), key});
        }
        members.emplace_back(key, nullptr);
        return true;
    }

    bool parse_error(std::size_t position, const std::string& token,
                     const nlohmann::detail::exception& fault) override
    {
        std::string what = fault.what();
        const std::size_t reason = what.find(" - ", what.find("while parsing"));
        const bool syntax = reason != std::string::npos;
        what = what.substr(syntax ? reason + 3 : what.find("] ") + 2);
        what = what.substr(0, what.find("; last read"));
        // The parser stands behind an unexpected literal, and right behind the character that is wrong
        // in all other cases.
        const bool wholeToken =
            !syntax || (what.starts_with("unexpected") && what.find(" literal;") != std::string::npos);
        const std::size_t back = wholeToken ? token.size() : 1;
        throw JsonFault(std::min(position - std::min(position, back), m_text.size()),
                        {Phrase("Desk", "no valid JSON: %1"), ParserReason(what)});
    }

private:
    struct Level {
        Json* value;
        std::unordered_set<std::string> keys;  // filled from FewKeys on
    };

    Json* Place(Json&& value)
    {
        if (m_open.empty()) {
            m_root = std::move(value);
            return &m_root;
        }
        Json& parent = *m_open.back().value;
        if (parent.is_array()) {
            parent.push_back(std::move(value));
            return &parent.back();
        }
        Json& member = parent.get_ref<Json::object_t&>().back().second;
        member = std::move(value);
        return &member;
    }

    bool Add(Json&& value)
    {
        Place(std::move(value));
        return true;
    }

    bool Open(Json&& value)
    {
        if (m_open.size() == MaxDepth) {
            throw JsonFault(Seen() - 1,
                            {Phrase("Desk", "nested deeper than %1 levels"), std::to_string(MaxDepth)});
        }
        m_open.push_back({Place(std::move(value)), {}});
        return true;
    }

    bool Close()
    {
        m_open.pop_back();
        return true;
    }

    static bool Knows(Level& level, const std::string& key)
    {
        const auto& members = level.value->get_ref<Json::object_t&>();
        if (members.size() < FewKeys) {
            return std::any_of(members.begin(), members.end(),
                               [&key](const auto& member) { return member.first == key; });
        }
        if (level.keys.empty()) {
            for (const auto& member : members) {
                level.keys.insert(member.first);
            }
        }
        return !level.keys.insert(key).second;
    }

    [[nodiscard]] std::size_t Seen() const { return static_cast<std::size_t>(m_seen - m_text.data()); }

    // Where the string begins that was read last: its own quotes stand behind a backslash.
    [[nodiscard]] std::size_t StartOfString() const
    {
        std::size_t start = Seen() - 1;
        do {
            start = m_text.rfind('"', start - 1);
        } while (start > 0 && m_text[start - 1] == '\\');
        return start;
    }

    std::string_view m_text;
    const char* m_seen;
    Json m_root;
    std::vector<Level> m_open;
};

}  // namespace

std::string LineAndColumn(std::string_view text, std::size_t byte)
{
    const std::string_view before = text.substr(0, byte);
    const auto line = std::count(before.begin(), before.end(), '\n') + 1;
    std::string_view row = before.substr(before.rfind('\n') + 1);  // npos + 1 is 0
    if (line == 1 && row.starts_with(ByteOrderMark)) {
        row.remove_prefix(ByteOrderMark.size());
    }
    const auto column =
        std::count_if(row.begin(), row.end(), [](char ch) { return (ch & 0xC0) != 0x80; }) + 1;
    return std::to_string(line) + ":" + std::to_string(column);
}

Json ReadJson(std::string_view text)
{
    if (text.empty()) {
        throw JsonFault(0, Phrase("Desk", "the file is empty"));
    }
    CheckCharacters(text);
    return Builder(text).Build();
}

bool JsonNumber(const Json& value, double& number)
{
    if (value.is_binary()) {
        const auto& written = value.get_binary();
        const std::string text(written.begin(), written.end());
        number = 0.0;  // what a number too small for a double stays at
        std::from_chars(text.data(), text.data() + text.size(), number);
        return true;
    }
    if (value.is_number()) {
        number = value.get<double>();
        return true;
    }
    return false;
}

}  // namespace Desk
