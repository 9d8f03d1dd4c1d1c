#include "ui/qt/widgets/rich_text_view.h"

#include "ui/qt/widgets/text.h"
#include "ui/rich_text_reader.h"

#include <QTextBlockFormat>
#include <QTextCharFormat>
#include <QTextCursor>
#include <QTextEdit>

namespace warhost {

void show_rich_text(QTextEdit& box, std::string const& document)
{
    box.setUndoRedoEnabled(false); // otherwise every document ever shown would be kept
    QTextCursor cursor{box.document()};
    cursor.beginEditBlock();
    cursor.select(QTextCursor::Document);
    cursor.removeSelectedText();
    cursor.setBlockFormat({});
    cursor.setBlockCharFormat({});

    bool first = true;
    for (auto const& paragraph : read_rich_text(document)) {
        if (!first) cursor.insertBlock(QTextBlockFormat{}, QTextCharFormat{});
        first = false;
        for (auto const& run : paragraph) {
            QTextCharFormat format;
            if (run.bold) format.setFontWeight(QFont::Bold);
            cursor.insertText(to_qt(run.text), format);
        }
    }
    cursor.endEditBlock();

    cursor.movePosition(QTextCursor::Start);
    box.setTextCursor(cursor);
}

} // namespace warhost
