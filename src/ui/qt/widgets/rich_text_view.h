// Shows a rich-text document in a text box.
#pragma once

#include <string>

class QTextEdit;

namespace warhost {

/// Replaces the whole content. The document's size of 10 points is the box's own font, other sizes are in proportion;
/// its font is the box's own too, but for Courier, which is the system's font of fixed width. Text without a colour
/// of its own takes the palette's; a colour that would be unreadable on the box is made readable.
void show_rich_text(QTextEdit& box, std::string const& document);

} // namespace warhost
