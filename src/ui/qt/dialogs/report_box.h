// The simulation's report: the text, its pictures, the exact odds, and how far the sample may be off.
#pragma once

#include "battle/odds.h"
#include "battle/simulation.h"
#include "ui/desktop.h"

#include <QDialog>

namespace warhost {

/// A message box in function: the report's text and one button. Enter and Escape close it; its texts can be selected
/// and copied.
class ReportBox : public QDialog {
    Q_OBJECT

public:
    ReportBox(Message const& report, Tally const& tally, Odds const& odds, NumberFormat const& format, QWidget* parent);
};

} // namespace warhost
