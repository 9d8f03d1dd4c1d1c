// Icons drawn in the palette's colours: lines in that of the text, signs of messages in colours of their own.
#pragma once

#include <QIcon>
#include <QStyle>

namespace warhost {

/// The icon, painted in the palette of the moment and sharp at any size; null for one that is not drawn here.
QIcon line_icon(QStyle::StandardPixmap which);

} // namespace warhost
