// Progress: work that may take long says how far it is, and who hears it may cut it off.
#pragma once

#include <cstddef>
#include <functional>

#include "desk/project/Failure.h"

namespace Desk {

// Thrown out of work that is not wanted any more.
class Cancelled : public Failure {
public:
    Cancelled() : Failure(Phrase("Desk", "cancelled")) {}
};

// Hears of the work of its thread for as long as it lives; one at a time, and not of work that it does
// while it hears.
class ProgressListener {
public:
    // How many parts of all of the present step are done. May throw Cancelled: the work then leaves files
    // and projects as they were.
    using Hear = std::function<void(std::size_t done, std::size_t all)>;

    explicit ProgressListener(Hear hear);
    ~ProgressListener();
    ProgressListener(const ProgressListener&) = delete;
    ProgressListener& operator=(const ProgressListener&) = delete;

private:
    Hear m_hear;
};

// Called by the work; costs nothing where nobody listens.
void TellProgress(std::size_t done, std::size_t all);

}  // namespace Desk
