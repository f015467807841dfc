#include "c/private/Objects.h"

#include <unordered_map>

namespace RankerC {

namespace {

struct Table {
    std::unordered_map<std::uintptr_t, std::shared_ptr<Object>> objects;
    std::uintptr_t last = 0;
};

// Never destroyed: what a host leaves behind at the end of the process stays.
Table& Objects()
{
    static Table& table = *new Table;
    return table;
}

}  // namespace

std::uintptr_t Enter(const std::shared_ptr<Object>& object)
{
    Table& table = Objects();
    const std::uintptr_t handle = table.last + 1;
    table.objects.emplace(handle, object);
    table.last = handle;
    object->m_handle = handle;
    return handle;
}

void Leave(Object& object)
{
    std::vector<std::shared_ptr<Object>> leaving;
    auto& objects = Objects().objects;
    const bool bContext = dynamic_cast<Context*>(&object) != nullptr;
    for (auto entry = objects.begin(); bContext && entry != objects.end();) {
        const auto* const member = dynamic_cast<const Member*>(entry->second.get());
        if (member != nullptr && member->m_context.get() == &object) {
            leaving.push_back(entry->second);
            entry = objects.erase(entry);
        } else {
            ++entry;
        }
    }
    if (const auto own = objects.find(object.m_handle); own != objects.end()) {
        leaving.push_back(own->second);
        objects.erase(own);
    }
    for (const std::shared_ptr<Object>& each : leaving) {
        each->m_handle = 0;
        each->Retire();
    }
}

std::shared_ptr<Object> FindObject(std::uintptr_t handle)
{
    const auto found = Objects().objects.find(handle);
    return found != Objects().objects.end() ? found->second : nullptr;
}

void RefuseHandle(const Object* object, const char* wanted)
{
    const std::string what = object != nullptr ? object->Name() : "nothing, or something destroyed";
    throw Refusal{RK_BAD_HANDLE,
                  "the handle of a " + std::string(wanted) + " is wanted, this one names " + what};
}

}  // namespace RankerC
