// The modal message box.
#pragma once

#include "ui/desktop.h"

#include <QDialog>

namespace warhost {

/// A plain text with an icon and buttons, which stand in the order of their names in Buttons whatever the desktop's own
/// order is. A text wraps, inside a word too, and scrolls when it is higher than half of the screen; it can be selected
/// and copied.
class AnswerBox : public QDialog {
    Q_OBJECT

public:
    AnswerBox(Message const& box, QWidget* parent);

    /// Shows the box and waits. Escape and the close button do no harm: they never mean Yes, and never Abort.
    Answer ask();

private:
    Answer answer_; // until a button is pressed, that of Escape
};

} // namespace warhost
