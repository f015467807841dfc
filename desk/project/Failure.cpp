#include "desk/project/Failure.h"

namespace Desk {

std::string Message::English() const
{
    return In([](const Phrase& phrase) { return std::string(phrase.english); });
}

std::string Message::In(const std::function<std::string(const Phrase&)>& translate) const
{
    if (*m_phrase.english == '\0') {
        return m_verbatim;
    }
    const std::string text = translate(m_phrase);
    std::string told;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const std::size_t number = i + 1 < text.size() ? static_cast<std::size_t>(text[i + 1] - '1') : 9;
        if (text[i] == '%' && number < m_filled.size()) {
            told += m_filled[number].In(translate);
            ++i;
        } else {
            told += text[i];
        }
    }
    return told;
}

}  // namespace Desk
