#include "desk/project/Progress.h"

#include <utility>

namespace Desk {

namespace {

thread_local const ProgressListener::Hear* heard = nullptr;

}  // namespace

ProgressListener::ProgressListener(Hear hear) : m_hear(std::move(hear)) { heard = &m_hear; }

ProgressListener::~ProgressListener() { heard = nullptr; }

void TellProgress(std::size_t done, std::size_t all)
{
    if (heard == nullptr) {
        return;
    }
    struct Deaf {
        const ProgressListener::Hear* hear = std::exchange(heard, nullptr);
        ~Deaf() { heard = hear; }
    };
    const Deaf deaf;
    (*deaf.hear)(done, all);
}

}  // namespace Desk
