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

/// Widgets are made in reading order, which becomes the order of the Tab key. Each is a child of the screen from the
/// start, so that it has the screen's font and palette; its layout may later change its parent. spoken: the name by
/// which a screen reader distinguishes the widget from its neighbours. Lengths are in pixels of the base size; a width
/// of 0 is left to the layout.
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
    /// The table determines the height of its cells.
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

    /// Sets the order of the Tab key to the order of creation.
    void set_tab_order() const;

private:
    template <class Widget> Widget* interactive(Widget* widget, QString const& spoken);
    EntryBox* entry(TextBox& field, QString const& spoken, bool number);

    QWidget& screen_;
    Scale scale_;
    std::vector<QWidget*> order_;
};

/// Adds a label and the box that it names to the end of a line.
void add_labelled(QHBoxLayout& line, QLabel* label, QWidget* box);

} // namespace warhost
