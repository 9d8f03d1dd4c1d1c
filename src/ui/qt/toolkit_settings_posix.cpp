#include "ui/qt/toolkit_settings.h"

#include <QCoreApplication>
#include <QSettings>

namespace warhost {

UnchangedToolkitSettings::UnchangedToolkitSettings()
{
    // The program is a file, so that nothing can exist or be made below it, and nothing is left when the program is
    // killed.
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, QCoreApplication::applicationFilePath());
}

UnchangedToolkitSettings::~UnchangedToolkitSettings() = default;

} // namespace warhost
