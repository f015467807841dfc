// Finds the place of a value by walking its path through the text; done only when a fault is to be told.
#include "desk/project/JsonText.h"

#include <vector>

namespace Desk {

namespace {

// Walks a text that is known to be valid JSON.
class Scanner {
public:
    explicit Scanner(std::string_view text) : m_text(text) { SkipTo("{[\"-0123456789tfn"); }

    [[nodiscard]] std::size_t At() const { return m_at; }

    // From the head of an array or object to the head of the member; false, and unmoved, without it.
    bool Enter(const std::string& member)
    {
        const std::size_t home = m_at;
        const char kind = m_text[m_at];
        if (kind != '{' && kind != '[') {
            return false;
        }
        ++m_at;
        for (std::size_t index = 0;; ++index) {
            SkipBlanks();
            if (m_text[m_at] == '}' || m_text[m_at] == ']') {
                m_at = home;
                return false;
            }
            bool found = kind == '[' && std::to_string(index) == member;
            if (kind == '{') {
                const std::size_t key = m_at;
                SkipString();
                found = Json::parse(m_text.substr(key, m_at - key)).get<std::string>() == member;
                SkipTo(":");
                ++m_at;
                SkipBlanks();
            }
            if (found) {
                return true;
            }
            SkipValue();
            SkipTo(",}]");
            m_at += m_text[m_at] == ',' ? 1 : 0;
        }
    }

private:
    void SkipTo(const char* characters) { m_at = m_text.find_first_of(characters, m_at); }
    void SkipBlanks() { m_at = m_text.find_first_not_of(" \t\r\n", m_at); }

    void SkipString()
    {
        for (++m_at; m_text[m_at] != '"'; ++m_at) {
            m_at += m_text[m_at] == '\\' ? 1 : 0;
        }
        ++m_at;
    }

    void SkipValue()
    {
        int depth = 0;
        do {
            const char ch = m_text[m_at];
            if (ch == '"') {
                SkipString();
            } else if (ch == '{' || ch == '[') {
                ++depth;
                ++m_at;
            } else if (ch == '}' || ch == ']') {
                --depth;
                ++m_at;
            } else if (depth > 0) {
                ++m_at;
            } else {
                SkipTo(",}] \t\r\n");
            }
        } while (depth > 0);
    }

    std::string_view m_text;
    std::size_t m_at = 0;
};

}  // namespace

std::size_t PlaceInJson(std::string_view text, const Json::json_pointer& path)
{
    std::vector<std::string> members;
    for (Json::json_pointer rest = path; !rest.empty(); rest.pop_back()) {
        members.push_back(rest.back());
    }
    Scanner scanner(text);
    while (!members.empty() && scanner.Enter(members.back())) {
        members.pop_back();
    }
    return scanner.At();
}

}  // namespace Desk
