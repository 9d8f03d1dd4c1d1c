// Light or dark, as the platform asks for it.
#pragma once

#include <QPalette>

namespace warhost {

/// plain: what the toolkit takes by itself. A platform with colours of its own keeps them; one that asks for dark
/// windows and no more gets the program's dark palette.
QPalette palette_for(QPalette const& platform, QPalette const& plain);

/// Takes the palette for the platform now and whenever the user chooses light or dark. The style must be set.
void follow_colour_scheme();

} // namespace warhost
