#include "ui/qt/toolkit_settings.h"

#include <QCoreApplication>
#include <QSettings>

namespace warhost {

UnchangedToolkitSettings::UnchangedToolkitSettings()
{
    // A path below the program: since the program is a file, nothing can exist or be created there, and nothing is left
    // behind if the program is killed.
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, QCoreApplication::applicationFilePath());
}

UnchangedToolkitSettings::~UnchangedToolkitSettings() = default;

} // namespace warhost
