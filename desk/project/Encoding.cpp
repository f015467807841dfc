// GBK and UTF-8 by way of the system: the C library's iconv, or the code pages of Windows. Plain ASCII
// passes without it.
#include "desk/project/Encoding.h"

#include <algorithm>
#include <array>
#include <cerrno>

#if defined(_WIN32)
#include <windows.h>
#else
#include <iconv.h>
#endif

#include "desk/project/Failure.h"

namespace Desk {

namespace {

constexpr std::string_view ReplacementMark = "\xEF\xBF\xBD";  // U+FFFD

bool IsAscii(std::string_view text)
{
    return std::all_of(text.begin(), text.end(),
                       [](char ch) { return static_cast<unsigned char>(ch) < 0x80; });
}

#if defined(_WIN32)

constexpr UINT Utf8Page = CP_UTF8;
constexpr UINT GbkPage = 936;

// Character by character, since the system does not tell how far a text was good.
class Converter {
public:
    Converter(UINT to, UINT from) : m_to(to), m_from(from) {}

    // Converts as far as the text is good, appends to out and returns what is left of the text.
    std::string_view Convert(std::string_view text, std::string& out) const
    {
        while (!text.empty()) {
            const std::size_t length = LengthOfFirst(text);
            if (length == 0 || !Append(text.substr(0, length), out)) {
                break;
            }
            text.remove_prefix(length);
        }
        return text;
    }

private:
    // The page has a single byte from 0x80 on, the Euro sign, that GBK lacks.
    [[nodiscard]] std::size_t LengthOfFirst(std::string_view text) const
    {
        if (m_from == Utf8Page || IsAscii(text.substr(0, 1))) {
            return Utf8Length(text);
        }
        return text.size() > 1 ? 2 : 0;
    }

    bool Append(std::string_view character, std::string& out) const
    {
        std::array<wchar_t, 4> wide{};
        const int count =
            MultiByteToWideChar(m_from, MB_ERR_INVALID_CHARS, character.data(),
                                static_cast<int>(character.size()), wide.data(), int{wide.size()});
        std::array<char, 8> bytes{};
        const bool toGbk = m_to == GbkPage;
        BOOL isLacking = FALSE;
        const int length =
            count == 0 ? 0
                       : WideCharToMultiByte(m_to, toGbk ? WC_NO_BEST_FIT_CHARS : WC_ERR_INVALID_CHARS,
                                             wide.data(), count, bytes.data(), int{bytes.size()}, nullptr,
                                             toGbk ? &isLacking : nullptr);
        const std::string_view made(bytes.data(), static_cast<std::size_t>(length));
        if (made.empty() || isLacking || (toGbk && made.size() == 1 && !IsAscii(made))) {
            return false;
        }
        out += made;
        return true;
    }

    UINT m_to;
    UINT m_from;
};

#else

constexpr const char* Utf8Page = "UTF-8";
constexpr const char* GbkPage = "GBK";

class Converter {
public:
    Converter(const char* to, const char* from) : m_handle(iconv_open(to, from))
    {
        if (m_handle == Invalid()) {
            throw Failure(Phrase("Desk", "this system cannot turn %1 into %2"), from, to);
        }
    }
    Converter(const Converter&) = delete;
    Converter& operator=(const Converter&) = delete;
    ~Converter() { iconv_close(m_handle); }

    // Converts as far as the text is good, appends to out and returns what is left of the text.
    std::string_view Convert(std::string_view text, std::string& out)
    {
        iconv(m_handle, nullptr, nullptr, nullptr, nullptr);
        char* in = const_cast<char*>(text.data());  // iconv only moves the pointer
        std::size_t inLeft = text.size();
        while (inLeft > 0) {
            std::array<char, 512> buffer{};
            char* to = buffer.data();
            std::size_t room = buffer.size();
            const std::size_t result = iconv(m_handle, &in, &inLeft, &to, &room);
            const int error = errno;
            out.append(buffer.data(), buffer.size() - room);
            if (result == static_cast<std::size_t>(-1) && error != E2BIG) {
                break;
            }
        }
        return text.substr(text.size() - inLeft);
    }

private:
    static iconv_t Invalid() { return reinterpret_cast<iconv_t>(-1); }

    iconv_t m_handle;
};

#endif

}  // namespace

std::size_t Utf8Length(std::string_view text)
{
    const auto byte = [text](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    const unsigned char lead = byte(0);
    if (lead < 0x80) {
        return 1;
    }
    const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
    if (lead < 0xC2 || lead > 0xF4 || text.size() < length) {
        return 0;
    }
    for (std::size_t i = 1; i < length; ++i) {
        if ((byte(i) & 0xC0U) != 0x80U) {
            return 0;
        }
    }
    const bool overlong = (lead == 0xE0 && byte(1) < 0xA0) || (lead == 0xF0 && byte(1) < 0x90);
    const bool surrogate = lead == 0xED && byte(1) > 0x9F;
    const bool tooHigh = lead == 0xF4 && byte(1) > 0x8F;
    return overlong || surrogate || tooHigh ? 0 : length;
}

std::optional<CString> GbkFromUtf8(std::string_view text)
{
    if (IsAscii(text)) {
        return CString(text);
    }
    thread_local Converter converter(GbkPage, Utf8Page);
    std::string bytes;
    if (!converter.Convert(text, bytes).empty()) {
        return std::nullopt;
    }
    return CString(std::string_view(bytes));
}

std::string Utf8FromGbk(const CString& text)
{
    if (IsAscii(text.View())) {
        return std::string(text.View());
    }
    thread_local Converter converter(Utf8Page, GbkPage);
    std::string utf8;
    std::string_view rest = converter.Convert(text.View(), utf8);
    while (!rest.empty()) {
        utf8 += ReplacementMark;
        rest = converter.Convert(rest.substr(1), utf8);
    }
    return utf8;
}

}  // namespace Desk
