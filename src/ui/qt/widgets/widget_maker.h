// Makes the widgets of one screen, bound to their fields, and remembers their order.
#pragma once

#include "ui/fields.h"
#include "ui/qt/look/scale.h"

#include <QString>

#include <vector>

class QCheckBox;
class QHBoxLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QTextEdit;
class QWidget;

namespace warhost {

class CaptionFrame;
class OptionChoice;
class ValueBox;

/// Made in reading order, which becomes the order of the Tab key. Frames are children of the screen at once, so that
/// they know their font; everything else is left to the layout that it is put in. spoken: the name by which a screen
/// reader tells the widget from its neighbours. Widths are in pixels of the base size; 0 leaves the width to the
/// layout.
class WidgetMaker {
public:
    /// row_height: of boxes and buttons.
    WidgetMaker(QWidget& screen, Scale const& scale, int row_height)
        : screen_(screen),
          scale_(scale),
          row_height_(row_height)
    {
    }

    int pixels(double base) const { return scale_.from_base(base); }
    int frame_margin() const;

    /// A label of no fixed text gets a fixed width, so that its neighbours stay where they are.
    QLabel* label(TextLabel& field, int width = 0) const;
    QLineEdit* text_box(TextBox& field, QString const& spoken, int width = 0);
    QLineEdit* number_box(TextBox& field, QString const& spoken, int width = 0);
    ValueBox* value_box(ComboBox& field, QString const& spoken, int width);
    QCheckBox* check_box(CheckBox& field, QString const& spoken);
    OptionChoice* option(OptionButton& field, QString const& spoken, QWidget* group, int height);
    QPushButton* button(Button& field, QString const& spoken, int width = 0);
    QTextEdit* description(RichTextBox& field, QString const& spoken);
    CaptionFrame* frame(Frame& field) const;

    QHBoxLayout* line(int spacing) const;

    /// Lets the Tab key follow the order of making.
    void set_tab_order() const;

private:
    template <class Widget> Widget* interactive(Widget* widget, QString const& spoken);

    QWidget& screen_;
    Scale scale_;
    int row_height_;
    std::vector<QWidget*> order_;
};

/// Puts a box at the end of a line, beside the label that names it.
void add_labelled(QHBoxLayout& line, QLabel* label, QWidget* box);

} // namespace warhost
