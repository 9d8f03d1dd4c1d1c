// What the toolkit would keep from one run to the next.
#pragma once

#include <QVariantMap>

namespace warhost {

/// The user's settings of the toolkit, in which its file dialog notes the folders that were visited: what is changed
/// while this exists is not kept. Needs the application.
class UnchangedToolkitSettings {
public:
    UnchangedToolkitSettings();
    ~UnchangedToolkitSettings();
    UnchangedToolkitSettings(UnchangedToolkitSettings const&) = delete;
    UnchangedToolkitSettings& operator=(UnchangedToolkitSettings const&) = delete;

private:
    QVariantMap before_; // empty where the settings are not touched at all
};

} // namespace warhost
