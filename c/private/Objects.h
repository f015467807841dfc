// What the handles name: contexts, and the lists, rankers and panels made in them.
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "RankerModule.h"
#include "c/private/Call.h"
#include "c/private/PanelFace.h"

namespace RankerC {

// A call holds the objects that it works on, so that one destroyed inside a callback goes when the call
// ends.
class Object {
public:
    Object() = default;
    Object(const Object&) = delete;
    Object& operator=(const Object&) = delete;
    virtual ~Object() = default;

    // The handle has been taken away; the object itself goes with the last call that works on it.
    virtual void Retire() {}
    [[nodiscard]] virtual const char* Name() const = 0;

    std::uintptr_t m_handle = 0;  // 0 once it is retired
};

class Context : public Object {
public:
    static constexpr const char* ClassName = "context";
    [[nodiscard]] const char* Name() const override { return ClassName; }

    rk_callbacks m_callbacks{};
    bool m_bGbk = false;
};

class Member : public Object {
public:
    explicit Member(std::shared_ptr<Context> context) : m_context(std::move(context)) {}

    std::shared_ptr<Context> m_context;
};

class List : public Member {
public:
    using Member::Member;
    static constexpr const char* ClassName = "list";
    [[nodiscard]] const char* Name() const override { return ClassName; }

    // Pointers that were given out are no good from here on.
    void Changed()
    {
        m_utf8.clear();
        m_block.clear();
    }

    CStringArray m_texts;
    std::vector<std::uint32_t> m_numbers;
    std::map<int, std::string>
        m_utf8;           // texts that are not the same in UTF-8, as far as they were asked for
    std::string m_block;  // all texts, as last asked for
};

class Ranker : public Member {
public:
    Ranker(std::shared_ptr<Context> context, std::int32_t kind, std::unique_ptr<HITNESS_RANKER> ranker)
        : Member(std::move(context)), m_kind(kind), m_ranker(std::move(ranker))
    {
    }
    static constexpr const char* ClassName = "ranker";
    [[nodiscard]] const char* Name() const override { return ClassName; }

    const std::int32_t m_kind;
    const std::unique_ptr<HITNESS_RANKER> m_ranker;
};

class Panel : public Member, public PanelKeeper, public std::enable_shared_from_this<Panel> {
public:
    using Member::Member;
    static constexpr const char* ClassName = "panel";
    [[nodiscard]] const char* Name() const override { return ClassName; }
    void Retire() override;
    BOOL Offer(const std::function<BOOL()>& offer) override;
    void Take(const CString& text) override;

    std::unique_ptr<PanelFace> m_face;
    std::string m_text;  // what rk_panel_control gave out
};

// Enters a new object and answers its handle, which counts up and is never used again.
std::uintptr_t Enter(const std::shared_ptr<Object>& object);
// Takes an object's handle away, a context's with all that was made in it.
void Leave(Object& object);
// Null for a handle that names nothing.
[[nodiscard]] std::shared_ptr<Object> FindObject(std::uintptr_t handle);
[[noreturn]] void RefuseHandle(const Object* object, const char* wanted);

template <class Wanted>
[[nodiscard]] std::shared_ptr<Wanted> Find(const void* handle)
{
    const std::shared_ptr<Object> object = FindObject(reinterpret_cast<std::uintptr_t>(handle));  // NOLINT
    std::shared_ptr<Wanted> found = std::dynamic_pointer_cast<Wanted>(object);
    if (found == nullptr) {
        RefuseHandle(object.get(), Wanted::ClassName);
    }
    return found;
}

template <class Handle>
[[nodiscard]] Handle HandleOf(const Object& object)
{
    return reinterpret_cast<Handle>(object.m_handle);  // NOLINT: a number in the shape of a pointer
}

template <class Handle>
void EnterAs(const std::shared_ptr<Object>& object, Handle* handle)
{
    Enter(object);
    *handle = HandleOf<Handle>(*object);
}

}  // namespace RankerC
