#include "ui/qt/rich_text_view.h"

#include "ui/qt/contrast.h"
#include "ui/qt/text.h"
#include "ui/rich_text_reader.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QTextBlockFormat>
#include <QTextCharFormat>
#include <QTextCursor>
#include <QTextEdit>

#include <algorithm>
#include <cmath>

namespace warhost {

namespace {

constexpr double base_points = 10;
constexpr double largest_scale = 10;

QTextCharFormat format_of(RichTextRun const& run, QTextEdit const& box)
{
    QTextCharFormat format;
    if (run.bold) format.setFontWeight(QFont::Bold);
    if (run.points != base_points) {
        double const scale = std::min(run.points / base_points, largest_scale);
        int const pixels = static_cast<int>(std::lround(QFontInfo{box.font()}.pixelSize() * scale));
        format.setProperty(QTextFormat::FontPixelSize, std::max(1, pixels));
    }
    if (to_qt(run.font).startsWith(QLatin1String{"Courier"}, Qt::CaseInsensitive)) {
        format.setFontFamilies(QFontDatabase::systemFont(QFontDatabase::FixedFont).families());
        format.setFontFixedPitch(true);
    }
    if (run.colour) {
        QColor const colour{run.colour->red, run.colour->green, run.colour->blue};
        QPalette const& palette = box.palette();
        format.setForeground(readable_colour(colour, palette.color(QPalette::Base), palette.color(QPalette::Text)));
    }
    return format;
}

} // namespace

void show_rich_text(QTextEdit& box, std::string const& document)
{
    box.setUndoRedoEnabled(false); // or every document ever shown would be kept
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
        for (auto const& run : paragraph) cursor.insertText(to_qt(run.text), format_of(run, box));
    }
    cursor.endEditBlock();

    cursor.movePosition(QTextCursor::Start);
    box.setTextCursor(cursor);
}

} // namespace warhost
