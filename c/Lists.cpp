// Lists of texts and numbers.
#include <algorithm>
#include <climits>
#include <cstring>
#include <utility>

#include "c/private/Encoding.h"
#include "c/private/Texts.h"

using namespace RankerC;

namespace {

// Adds so many texts, all of them or none; bytesOf gives the one at an index.
template <class BytesAt>
void AddAll(List& list, std::size_t count, BytesAt bytesAt)
{
    const int before = list.m_texts.GetSize();
    if (count > static_cast<std::size_t>(INT_MAX - before)) {
        throw Refusal{RK_BAD_ARGUMENT, "a list cannot hold so many texts"};
    }
    list.Changed();
    if (before == 0) {
        list.m_texts.Reserve(static_cast<int>(count));
    }
    std::size_t index = 0;
    try {
        for (; index < count; ++index) {
            const std::string_view bytes = bytesAt(index);
            list.m_texts.Add(IsPlain(bytes) ? CString(bytes) : TextOf(*list.m_context, bytes, "it"));
        }
    } catch (Refusal& refusal) {
        list.m_texts.SetSize(before);
        refusal.message = "text " + std::to_string(index) + ": " + refusal.message;
        throw;
    } catch (...) {
        list.m_texts.SetSize(before);
        throw;
    }
}

// A text as the context sees it, in memory that the list keeps.
rk_text Borrowed(List& list, int index)
{
    const CString& text = list.m_texts[index];
    if (IsSeenAsIs(*list.m_context, text)) {
        return {text, text.View().size()};
    }
    const auto kept = list.m_utf8.find(index);
    const std::string& utf8 =
        kept != list.m_utf8.end() ? kept->second : list.m_utf8.emplace(index, Utf8Of(text)).first->second;
    return {utf8.data(), utf8.size()};
}

int NeedRange(const List& list, std::size_t first, std::size_t count)
{
    const auto size = static_cast<std::size_t>(list.m_texts.GetSize());
    if (first > size || count > size - first) {
        throw Refusal{RK_BAD_INDEX, std::to_string(count) + " texts from " + std::to_string(first) +
                                        " on, and there are " + std::to_string(size)};
    }
    return static_cast<int>(first);
}

int NeedText(const List& list, std::size_t index)
{
    NeedRange(list, index, 1);
    return static_cast<int>(index);
}

}  // namespace

rk_status rk_list_create(rk_context context, rk_list* list)
{
    return Guarded([&] {
        const auto found = Find<Context>(context);
        Need(list, "list");
        EnterAs(std::make_shared<List>(found), list);
    });
}

rk_status rk_list_destroy(rk_list list)
{
    return Guarded([&] { Leave(*Find<List>(list)); });
}

rk_status rk_list_clear(rk_list list)
{
    return Guarded([&] {
        const auto found = Find<List>(list);
        found->Changed();
        found->m_texts.RemoveAll();
        found->m_numbers.clear();
    });
}

rk_status rk_list_add(rk_list list, const char* text, size_t text_length)
{
    return Guarded([&] {
        const auto found = Find<List>(list);
        CString added = TextOf(*found->m_context, text, text_length, "text");
        found->Changed();
        found->m_texts.Add(std::move(added));
    });
}

rk_status rk_list_add_texts(rk_list list, const rk_text* texts, size_t count)
{
    return Guarded([&] {
        const auto found = Find<List>(list);
        if (count > 0) {
            Need(texts, "texts");
        }
        AddAll(*found, count,
               [texts](std::size_t i) { return BytesOf(texts[i].data, texts[i].length, "it"); });
    });
}

rk_status rk_list_add_block(rk_list list, const char* block, size_t size)
{
    return Guarded([&] {
        const auto found = Find<List>(list);
        if (size > 0) {
            Need(block, "block");
            if (block[size - 1] != '\0') {
                throw Refusal{RK_BAD_ARGUMENT, "the block does not end with a zero byte"};
            }
        }
        std::vector<std::string_view> texts;
        for (const char* at = block; at != block + size; at += texts.back().size() + 1) {
            const std::size_t left = static_cast<std::size_t>(block + size - at);
            const auto* const end = static_cast<const char*>(std::memchr(at, 0, left));
            texts.push_back(BytesOf(at, static_cast<std::size_t>(end - at), "it"));
        }
        AddAll(*found, texts.size(), [&texts](std::size_t i) { return texts[i]; });
    });
}

rk_status rk_list_add_numbers(rk_list list, const uint32_t* numbers, size_t count)
{
    return Guarded([&] {
        const auto found = Find<List>(list);
        if (count == 0) {
            return;
        }
        Need(numbers, "numbers");
        if (count > static_cast<std::size_t>(INT_MAX) - found->m_numbers.size()) {
            throw Refusal{RK_BAD_ARGUMENT, "a list cannot hold so many numbers"};
        }
        found->m_numbers.insert(found->m_numbers.end(), numbers, numbers + count);
    });
}

rk_status rk_list_set(rk_list list, size_t index, const char* text, size_t text_length)
{
    return Guarded([&] {
        const auto found = Find<List>(list);
        const int at = NeedText(*found, index);
        CString replacing = TextOf(*found->m_context, text, text_length, "text");
        found->Changed();
        found->m_texts.SetAt(at, std::move(replacing));
    });
}

rk_status rk_list_remove(rk_list list, size_t index, size_t count)
{
    return Guarded([&] {
        const auto found = Find<List>(list);
        const int first = NeedRange(*found, index, count);
        found->Changed();
        found->m_texts.RemoveAt(first, static_cast<int>(count));
    });
}

rk_status rk_list_count(rk_list list, size_t* count)
{
    return Guarded([&] {
        const auto found = Find<List>(list);
        Need(count, "count");
        *count = static_cast<std::size_t>(found->m_texts.GetSize());
    });
}

rk_status rk_list_text(rk_list list, size_t index, const char** text, size_t* length)
{
    return Guarded([&] {
        const auto found = Find<List>(list);
        Need(text, "text");
        const rk_text given = Borrowed(*found, NeedText(*found, index));
        *text = given.data;
        if (length != nullptr) {
            *length = given.length;
        }
    });
}

rk_status rk_list_texts(rk_list list, size_t first, size_t count, rk_text* texts)
{
    return Guarded([&] {
        const auto found = Find<List>(list);
        const int from = NeedRange(*found, first, count);
        if (count > 0) {
            Need(texts, "texts");
        }
        std::vector<rk_text>
            borrowed;  // so that a text that cannot be given leaves the caller's array alone
        borrowed.reserve(count);
        for (int i = from; borrowed.size() < count; ++i) {
            borrowed.push_back(Borrowed(*found, i));
        }
        std::copy(borrowed.begin(), borrowed.end(), texts);
    });
}

rk_status rk_list_block(rk_list list, const char** block, size_t* size)
{
    return Guarded([&] {
        const auto found = Find<List>(list);
        Need(block, "block");
        Need(size, "size");
        std::string joined;
        for (const CString& text : found->m_texts) {
            if (IsSeenAsIs(*found->m_context, text)) {
                joined += text.View();
            } else {
                joined += Utf8Of(text);
            }
            joined += '\0';
        }
        found->m_block = std::move(joined);
        *block = found->m_block.data();
        *size = found->m_block.size();
    });
}

rk_status rk_list_numbers(rk_list list, const uint32_t** numbers, size_t* count)
{
    return Guarded([&] {
        const auto found = Find<List>(list);
        Need(numbers, "numbers");
        Need(count, "count");
        *numbers = found->m_numbers.data();
        *count = found->m_numbers.size();
    });
}
