// Shows a rich-text document in a text box.
#pragma once

#include <string>

class QTextEdit;

namespace warhost {

/// Replaces the whole content. The document's size of 10 points becomes the size of the box's font; other sizes are in
/// proportion. Its fonts become the box's font, except Courier, which becomes the system's fixed-width font. Text
/// without a colour uses the palette's; a colour that would be unreadable on the box is made readable.
void show_rich_text(QTextEdit& box, std::string const& document);

} // namespace warhost
