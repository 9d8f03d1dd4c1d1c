// Makes the widgets of one screen, bound to their fields, and remembers their order.
#pragma once

#include "ui/fields.h"
#include "ui/qt/look/scale.h"
#include "ui/qt/look/type.h"

#include <QString>

#include <vector>

class QCheckBox;
class QHBoxLayout;
class QLabel;
class QPushButton;
class QTextEdit;
class QWidget;

namespace warhost {

class CaptionFrame;
class EntryBox;
class OptionChoice;
class ValueBox;

/// Made in reading order, which becomes the order of the Tab key. All are children of the screen at once, so that
/// they have its font and palette; the layout that they are put in may give them to another parent. spoken: the name by
/// which a screen reader tells the widget from its neighbours. Lengths are in pixels of the base size; a width of 0 is
/// left to the layout.
class WidgetMaker {
public:
    WidgetMaker(QWidget& screen, Scale const& scale) : screen_(screen), scale_(scale) {}

    int pixels(double base) const { return scale_.from_base(base); }
    int span(double from, double to) const { return scale_.span(from, to); }
    int line() const { return scale_.line(); }
    QFont font(Type type) const;

    QLabel* label(TextLabel& field, int width = 0, Type type = type::plain) const;
    EntryBox* name_box(TextBox& field, QString const& spoken, int width = 0);
    EntryBox* number_box(TextBox& field, QString const& spoken, int width = 0);
    /// A table gives its cells their height.
    EntryBox* name_cell(TextBox& field, QString const& spoken);
    EntryBox* number_cell(TextBox& field, QString const& spoken);
    /// height: in pixels.
    ValueBox* value_box(ComboBox& field, QString const& spoken, int width, int height);
    QCheckBox* check_box(CheckBox& field, QString const& spoken);
    /// height: in pixels.
    OptionChoice* option(OptionButton& field, QString const& spoken, QWidget* group, int height);
    QPushButton* button(Button& field, QString const& spoken, int width, int height);
    QTextEdit* description(RichTextBox& field, QString const& spoken);
    CaptionFrame* frame(Frame& field) const;

    QHBoxLayout* row(int spacing) const;

    /// Lets the Tab key follow the order of making.
    void set_tab_order() const;

private:
    template <class Widget> Widget* interactive(Widget* widget, QString const& spoken);
    EntryBox* entry(TextBox& field, QString const& spoken, bool number);

    QWidget& screen_;
    Scale scale_;
    std::vector<QWidget*> order_;
};

/// Puts a box at the end of a line, beside the label that names it.
void add_labelled(QHBoxLayout& line, QLabel* label, QWidget* box);

} // namespace warhost
