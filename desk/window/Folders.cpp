#include "desk/window/Folders.h"

namespace Desk {

QString RecoveryFolder()
{
    return QDir(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation)).filePath("recovery");
}

}  // namespace Desk
