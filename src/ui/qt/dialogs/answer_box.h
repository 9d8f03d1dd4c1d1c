// The modal message box.
#pragma once

#include "ui/desktop.h"

#include <QDialog>

namespace warhost {

/// A plain text with an icon and buttons, in the order of their names in Buttons on every desktop. The text wraps, also
/// inside a word, and scrolls if it is higher than half of the screen; it can be selected and copied.
class AnswerBox : public QDialog {
    Q_OBJECT

public:
    AnswerBox(Message const& box, QWidget* parent);

    /// Shows the box and waits. Escape and the close button are harmless: they never mean Yes or Abort.
    Answer ask();

private:
    Answer answer_; // until a button is pressed, the answer of Escape
};

} // namespace warhost
