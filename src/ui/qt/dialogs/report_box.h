// The simulation's report: the text, its charts, the exact odds, and the likely error of the sample.
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

/// Works like a message box with one button: Enter and Escape close it. Its texts can be selected; Copy copies all of
/// them, and so does the key for copying while nothing is selected.
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
