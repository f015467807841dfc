// A failure that the person at the desk is told about: one clear line on the error stream, exit status 2.
#pragma once

#include <stdexcept>

namespace Desk {

class Failure : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

}  // namespace Desk
