// The interface's languages: English is in the source, Chinese in beamdesk_zh.ts.
#pragma once

#include <QtCore>

#include "desk/project/Failure.h"

namespace Desk {

enum class Language { System, Chinese, English };

// Gives the application the language; System is Chinese where the system is.
void ApplyLanguage(Language language);
// Whether the application has been given Chinese.
[[nodiscard]] bool IsChinese();

// In the interface's language; of a failure what failed and why.
[[nodiscard]] QString Told(const Message& message);
[[nodiscard]] inline QString Told(const Failure& failure) { return Told(failure.Told()); }

}  // namespace Desk
