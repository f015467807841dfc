// Watched: long work with a box that shows how far it is and cancels it.
#pragma once

#include <functional>
#include <optional>
#include <type_traits>
#include <utility>

#include <QtCore>

#include "desk/project/Progress.h"

namespace Desk {

void RunWatched(const QString& what, const std::function<void()>& work);

// Does work that tells its progress; when it takes long a box says what is done. Throws what the work
// throws, Cancelled when the person cancels. Nothing else can be done with the desk meanwhile.
template <class Work>
auto Watched(const QString& what, const Work& work)
{
    using Result = std::invoke_result_t<Work>;
    if constexpr (std::is_void_v<Result>) {
        RunWatched(what, work);
    } else {
        std::optional<Result> result;
        RunWatched(what, [&] { result.emplace(work()); });
        return std::move(*result);
    }
}

}  // namespace Desk
