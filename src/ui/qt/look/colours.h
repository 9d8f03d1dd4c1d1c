// Every colour that the program paints with, computed from the user's palette.
#pragma once

#include <QColor>
#include <QPalette>

#include <array>

namespace warhost {

/// Every text colour has a contrast of at least 4.5 to its background; indicators and the ring have at least 3.
/// Arrays: 0 for Side A, 1 for Side B.
struct Colours {
    bool dark = false;          // the page is darker than its text
    bool high_contrast = false; // black or white throughout; lines replace stripes

    QColor strip; // behind the menus and the tabs
    QColor page;  // behind everything below them, and behind dialogs
    QColor field; // of input boxes and of the sheet of descriptions
    QColor text;
    QColor dim;    // secondary text: labels of columns, unused rows, placeholders
    QColor firm;   // lower edges of boxes, indicators, axes
    QColor soft;   // outlines of boxes, lines of heads, edges of tables
    QColor hair;   // between cells
    QColor band;   // behind the heads of columns and values that cannot be edited
    QColor stripe; // behind every other row of a list
    QColor button;

    std::array<QColor, 2> side;
    std::array<QColor, 2> tint;         // behind text of the side's colour
    std::array<QColor, 2> text_on_side; // on a bar of the side's colour
    QColor tie;

    QColor ring;   // around the widget that has the focus
    QColor strong; // the button to press next, ticks, selected text
    QColor text_on_strong;
    QColor hint; // hints and links

    QColor warning; // of the signs beside messages, like the next three
    QColor text_on_warning;
    QColor error;
    QColor text_on_error;
};

/// Computed from a palette like the application's, whose Window is the colour of the strip.
Colours colours_of(QPalette const& palette);

/// The colours of the application's current palette.
Colours const& colours();

/// The colour itself, or mixed half and half with that of the page for a disabled widget.
QColor in_state(bool enabled, QColor const& colour);

/// The application's palette with the colour of the page as Window, for the widgets on the page.
QPalette page_palette();

/// The program's own dark palette, for platforms that request dark windows without specifying colours.
QPalette dark_palette();

} // namespace warhost
