// The number that a text counts as, for boxes that show it.
#pragma once

#include "army/value_conversion.h"
#include "ui/qt/widgets/text.h"

namespace warhost {

/// read: one of the conversions to a whole number.
template <auto read> QString whole_number(QString const& text) { return to_qt(plain_text(read(text.toStdString()))); }

} // namespace warhost
