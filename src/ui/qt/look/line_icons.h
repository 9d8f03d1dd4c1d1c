// Icons drawn in the palette's colours: lines in the text's, signs of messages in their own.
#pragma once

#include <QIcon>
#include <QStyle>

namespace warhost {

/// The icon, in the palette of the moment at which it is painted and sharp at any size; null for one not drawn here.
QIcon line_icon(QStyle::StandardPixmap which);

} // namespace warhost
