// The settings that the toolkit would keep between runs.
#pragma once

#include <QVariantMap>

namespace warhost {

/// Discards changes made while it exists to the user's settings of the toolkit, in which its file dialog records the
/// visited folders. Needs the application.
class UnchangedToolkitSettings {
public:
    UnchangedToolkitSettings();
    ~UnchangedToolkitSettings();
    UnchangedToolkitSettings(UnchangedToolkitSettings const&) = delete;
    UnchangedToolkitSettings& operator=(UnchangedToolkitSettings const&) = delete;

private:
    QVariantMap before_; // empty on systems where the settings are never written
};

} // namespace warhost
