// Light or dark, as the platform requests.
#pragma once

#include <QPalette>

namespace warhost {

/// plain: the toolkit's own choice. A platform with its own colours keeps them; one that only requests dark windows
/// gets the program's dark palette.
QPalette palette_for(QPalette const& platform, QPalette const& plain);

/// Sets the palette for the platform now and whenever the user changes between light and dark. The style must be set.
void follow_colour_scheme();

} // namespace warhost
