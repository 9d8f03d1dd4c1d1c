// What the toolkit would keep from one run to the next.
#pragma once

namespace warhost {

/// Neither reads nor writes the user's settings of the toolkit, in which its file dialog notes the folders that were
/// visited, from here on. Needs the application. Without effect on Windows, where such settings have no path.
void keep_no_toolkit_settings();

} // namespace warhost
