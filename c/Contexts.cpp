// Contexts, what a host's callbacks are, the version, and the last error.
#include "c/private/Encoding.h"
#include "c/private/Texts.h"

using namespace RankerC;

const char* rk_last_error(void) { return LastError(); }

rk_status rk_version(const char** text, int32_t* number)
{
    if (text != nullptr) {
        *text = RANKER_VERSION;
    }
    if (number != nullptr) {
        *number = RK_INTERFACE;
    }
    return RK_OK;
}

rk_status rk_context_create(rk_context* context)
{
    return Guarded([&] {
        Need(context, "context");
        EnterAs(std::make_shared<Context>(), context);
    });
}

rk_status rk_context_destroy(rk_context context)
{
    return Guarded([&] { Leave(*Find<Context>(context)); });
}

rk_status rk_context_set_encoding(rk_context context, int32_t encoding)
{
    return Guarded([&] {
        const auto found = Find<Context>(context);
        if (encoding != RK_UTF8 && encoding != RK_GBK) {
            RefuseValue("encoding", encoding);
        }
        found->m_bGbk = encoding == RK_GBK;
    });
}

rk_status rk_context_set_callbacks(rk_context context, const rk_callbacks* callbacks)
{
    return Guarded([&] {
        const auto found = Find<Context>(context);
        if (callbacks == nullptr) {
            found->m_callbacks = {};
            return;
        }
        NeedStruct(callbacks, "callbacks");
        found->m_callbacks = *callbacks;
    });
}

rk_status rk_gbk_from_utf8(const char* text, size_t text_length, char* buffer, size_t size, size_t* length)
{
    return Guarded([&] {
        const Context context;
        Give(TextOf(context, text, text_length, "text").View(), buffer, size, length);
    });
}

rk_status rk_utf8_from_gbk(const char* text, size_t text_length, char* buffer, size_t size, size_t* length)
{
    return Guarded([&] {
        const std::optional<std::string> utf8 = Utf8FromGbk(BytesOf(text, text_length, "text"));
        if (!utf8) {
            throw Refusal{RK_BAD_TEXT, "text is no whole GBK, or holds a zero byte"};
        }
        Give(*utf8, buffer, size, length);
    });
}
