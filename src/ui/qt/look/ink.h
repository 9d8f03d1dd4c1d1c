// Which of the program's colours a widget writes in.
#pragma once

class QWidget;

namespace warhost {

enum class Ink { text, dim, first_side, second_side, hint };

constexpr Ink ink_of_side(int Index) { return Index == 0 ? Ink::first_side : Ink::second_side; }

/// The colour follows changes of the user's palette if the widget is inside one that follows the page palette.
void set_ink(QWidget& widget, Ink ink);

/// Recomputes the colours of the widgets inside a widget.
void renew_inks(QWidget const& above);

} // namespace warhost
