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

// What failed and why, in the interface's language.
[[nodiscard]] QString Told(const Failure& failure);

}  // namespace Desk
