// In which of the program's colours a widget writes.
#pragma once

class QWidget;

namespace warhost {

enum class Ink { text, dim, first_side, second_side, hint };

constexpr Ink ink_of_side(int Index) { return Index == 0 ? Ink::first_side : Ink::second_side; }

/// Stays right when the user's palette changes, below a widget that follows the page palette.
void set_ink(QWidget& widget, Ink ink);

/// Computes the colours of the widgets below one anew.
void renew_inks(QWidget const& above);

} // namespace warhost
