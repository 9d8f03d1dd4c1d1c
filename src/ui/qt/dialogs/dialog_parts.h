// Parts that several dialogs use.
#pragma once

#include <QLabel>

class QLayout;

namespace warhost {

/// A hairline that separates two parts of a dialog.
class Rule : public QWidget {
    Q_OBJECT

public:
    explicit Rule(Qt::Orientation orientation, QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;
};

/// A plain text that can be selected and copied. spoken: its name for a screen reader.
QLabel* selectable_text(QString const& text, char const* spoken);

/// Reduces a layout's left margin by the frame of a text, which shows the focus ring, so that the text itself begins at
/// the margin. Returns the width of the frame.
int move_ring_into_margin(QLayout& layout, QFrame const& text);

} // namespace warhost
