// Where the desk keeps what outlives a session.
#pragma once

#include <QtCore>

namespace Desk {

// Below the person's own data folder.
[[nodiscard]] QString RecoveryFolder();

}  // namespace Desk
