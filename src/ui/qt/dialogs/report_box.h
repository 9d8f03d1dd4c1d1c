// The simulation's report: the text, its pictures, the exact odds, and how far the sample may be off.
#pragma once

#include "battle/odds.h"
#include "battle/simulation.h"
#include "ui/desktop.h"

#include <QDialog>

class QBoxLayout;
class QLabel;
class QLayout;
class QPushButton;

namespace warhost {

/// A message box in function: the report's text and one button. Enter and Escape close it. Its texts can be selected;
/// Copy, and the key for it while nothing is selected, copies all of them.
class ReportBox : public QDialog {
    Q_OBJECT

public:
    ReportBox(Message const& report, Tally const& tally, Odds const& odds, NumberFormat const& format, QWidget* parent);

private:
    QLayout* pictures(Tally const& tally, Odds const& odds, NumberFormat const& format);
    QPushButton* add_button(QBoxLayout& row, char const* caption, void (ReportBox::*act)());
    void copy_selected_or_all();
    void copy_all();

    QList<QLabel*> texts_;
};

} // namespace warhost
