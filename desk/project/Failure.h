// A failure that the person at the desk is told about: one clear line on the error stream, exit status 2,
// or a message of the window in the interface's language.
#pragma once

#include <functional>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace Desk {

// An English text of the source with %1 to %9 for what is filled in. The window's translation file has a
// translation of it, found there by context and text; lupdate collects the texts by this type's name.
struct Phrase {
    Phrase(const char* inContext, const char* inEnglish) : context(inContext), english(inEnglish) {}

    const char* context;
    const char* english;
};

// A phrase with what is filled in, which can be messages themselves.
class Message {
public:
    // A name, a number, somebody else's words: the same in every language.
    Message(std::string verbatim) : m_phrase("", ""), m_verbatim(std::move(verbatim)) {}

    template <class... Filled>
    Message(const Phrase& phrase, Filled&&... filled)
        : m_phrase(phrase), m_filled{Message(std::forward<Filled>(filled))...}
    {
    }

    [[nodiscard]] std::string English() const;
    // In a language that is given by the translation of a phrase.
    [[nodiscard]] std::string In(const std::function<std::string(const Phrase&)>& translate) const;

private:
    Phrase m_phrase;
    std::string m_verbatim;
    std::vector<Message> m_filled;
};

// what() is the message in English.
class Failure : public std::runtime_error {
public:
    explicit Failure(Message message) : std::runtime_error(message.English()), m_message(std::move(message))
    {
    }
    // For failures that only the console tells.
    explicit Failure(const std::string& english) : Failure(Message(english)) {}

    template <class... Filled>
    explicit Failure(const Phrase& phrase, Filled&&... filled)
        : Failure(Message(phrase, std::forward<Filled>(filled)...))
    {
    }

    [[nodiscard]] const Message& Told() const noexcept { return m_message; }

private:
    Message m_message;
};

}  // namespace Desk
