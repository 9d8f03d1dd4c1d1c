// Every colour that the program paints with, computed from the user's palette.
#pragma once

#include <QColor>
#include <QPalette>

#include <array>

namespace warhost {

/// Every text colour has a contrast of 4.5 to what it is written on; indicators and the ring have 3. Arrays: 0 for
/// Side A, 1 for Side B.
struct Colours {
    bool dark = false;          // the page is darker than its text
    bool high_contrast = false; // black or white throughout; lines replace stripes

    QColor strip; // behind the menus and the tabs
    QColor page;  // behind everything below them, and behind dialogs
    QColor field; // of boxes for input, and of the sheet of descriptions
    QColor text;
    QColor dim;    // text that matters less: labels of columns, unused rows, placeholders
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

    QColor ring;   // around what has the focus
    QColor strong; // the button to press next, ticks, selected text
    QColor text_on_strong;
    QColor hint; // hints and links

    QColor warning; // of the signs beside messages, as the next three
    QColor text_on_warning;
    QColor error;
    QColor text_on_error;
};

/// Of a palette whose Window is the strip's colour, which is the application's.
Colours colours_of(QPalette const& palette);

/// The colours of the application's palette, up to date after it has changed.
Colours const& colours();

/// The colour itself, or half of the page's in it for what is disabled.
QColor in_state(bool enabled, QColor const& colour);

/// The application's palette with the page for Window, for the widgets on the page.
QPalette page_palette();

/// The program's own dark palette, for platforms that ask for a dark window without saying in which colours.
QPalette dark_palette();

} // namespace warhost
