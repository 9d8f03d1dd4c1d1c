#include "ui/qt/toolkit_settings.h"

#include <QSettings>

#include <windows.h>

namespace warhost {

namespace {

void remove_if_empty(wchar_t const* key)
{
    QSettings const settings{"HKEY_CURRENT_USER\\" + QString::fromWCharArray(key), QSettings::NativeFormat};
    if (settings.allKeys().isEmpty()) ::RegDeleteKeyW(HKEY_CURRENT_USER, key);
}

} // namespace

UnchangedToolkitSettings::UnchangedToolkitSettings()
{
    QSettings settings{QSettings::UserScope, "QtProject"};
    settings.beginGroup("FileDialog");
    for (QString const& key : settings.allKeys()) before_[key] = settings.value(key);
}

UnchangedToolkitSettings::~UnchangedToolkitSettings()
{
    {
        QSettings settings{QSettings::UserScope, "QtProject"};
        settings.beginGroup("FileDialog");
        settings.remove({});
        for (auto entry = before_.cbegin(); entry != before_.cend(); ++entry)
            settings.setValue(entry.key(), entry.value());
    }
    remove_if_empty(L"Software\\QtProject\\OrganizationDefaults");
    remove_if_empty(L"Software\\QtProject");
}

} // namespace warhost
