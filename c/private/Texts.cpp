#include "c/private/Texts.h"

#include <climits>
#include <cstring>

#include "c/private/Encoding.h"

namespace RankerC {

namespace {

[[noreturn]] void RefuseText(const char* name, const char* why)
{
    throw Refusal{RK_BAD_TEXT, std::string(name) + why};
}

}  // namespace

std::string_view BytesOf(const char* data, std::size_t length, const char* name)
{
    if (data == nullptr) {
        if (length != 0) {
            throw Refusal{RK_BAD_ARGUMENT, std::string(name) + " is null"};
        }
        return {};
    }
    const std::size_t bytes = length == RK_ZERO_ENDED ? std::strlen(data) : length;
    if (bytes > INT_MAX) {
        throw Refusal{RK_BAD_ARGUMENT, std::string(name) + " is too long"};
    }
    return {data, bytes};
}

CString TextOf(const Context& context, std::string_view bytes, const char* name)
{
    if (IsPlain(bytes)) {
        return bytes;
    }
    if (bytes.find('\0') != std::string_view::npos) {
        RefuseText(name, " holds a zero byte");
    }
    if (context.m_bGbk) {
        return bytes;
    }
    const std::optional<std::string> gbk = GbkFromUtf8(bytes);
    if (!gbk) {
        RefuseText(name, " is no UTF-8, or holds a character that GBK lacks");
    }
    return std::string_view(*gbk);
}

CString TextOf(const Context& context, const char* data, std::size_t length, const char* name)
{
    return TextOf(context, BytesOf(data, length, name), name);
}

bool IsSeenAsIs(const Context& context, const CString& text)
{
    return context.m_bGbk || IsPlain(text.View());
}

std::string Utf8Of(const CString& text)
{
    std::optional<std::string> utf8 = Utf8FromGbk(text.View());
    if (!utf8) {
        RefuseText("the text", " is no whole GBK; set the context to RK_GBK to get its bytes");
    }
    return std::move(*utf8);
}

std::string SeenBy(const Context& context, const CString& text)
{
    return IsSeenAsIs(context, text) ? std::string(text.View()) : Utf8Of(text);
}

void Give(std::string_view bytes, char* buffer, std::size_t size, std::size_t* length)
{
    if (buffer == nullptr && size > 0) {
        throw Refusal{RK_BAD_ARGUMENT, "buffer is null and its size is not 0"};
    }
    if (length != nullptr) {
        *length = bytes.size();
    }
    if (size <= bytes.size()) {
        throw Refusal{RK_TOO_SMALL, "the buffer needs " + std::to_string(bytes.size() + 1) + " bytes"};
    }
    std::memcpy(buffer, bytes.data(), bytes.size());
    buffer[bytes.size()] = '\0';
}

void Give(const Context& context, const CString& text, char* buffer, std::size_t size, std::size_t* length)
{
    Give(SeenBy(context, text), buffer, size, length);
}

}  // namespace RankerC
