#include "ui/qt/widgets/widget_maker.h"

#include "ui/qt/look/page_style.h"
#include "ui/qt/widgets/binding.h"
#include "ui/qt/widgets/caption_frame.h"
#include "ui/qt/widgets/entry_box.h"
#include "ui/qt/widgets/option_choice.h"
#include "ui/qt/widgets/value_box.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QTextEdit>

namespace warhost {

namespace {

constexpr int field_height = 20;

} // namespace

template <class Widget> Widget* WidgetMaker::interactive(Widget* widget, QString const& spoken)
{
    widget->setAccessibleName(spoken);
    order_.push_back(widget);
    return widget;
}

QFont WidgetMaker::font(Type type) const { return in_type(screen_.window()->font(), type); }

QLabel* WidgetMaker::label(TextLabel& field, int width, Type type) const
{
    auto* const made = new QLabel{&screen_};
    bind(field, *made);
    if (type != type::plain) made->setFont(font(type));
    made->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    if (width > 0) made->setFixedWidth(pixels(width));
    return made;
}

EntryBox* WidgetMaker::entry(TextBox& field, QString const& spoken, bool number)
{
    auto* const made =
        interactive(new EntryBox{number ? EntryBox::Holds::number : EntryBox::Holds::name, &screen_}, spoken);
    bind(field, *made);
    return made;
}

EntryBox* WidgetMaker::name_box(TextBox& field, QString const& spoken, int width)
{
    EntryBox* const made = entry(field, spoken, false);
    made->setFixedSize(pixels(width), pixels(field_height));
    return made;
}

EntryBox* WidgetMaker::number_box(TextBox& field, QString const& spoken, int width)
{
    EntryBox* const made = entry(field, spoken, true);
    made->setFixedSize(pixels(width), pixels(field_height));
    return made;
}

EntryBox* WidgetMaker::name_cell(TextBox& field, QString const& spoken)
{
    EntryBox* const made = entry(field, spoken, false);
    make_cell(*made);
    made->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    return made;
}

EntryBox* WidgetMaker::number_cell(TextBox& field, QString const& spoken)
{
    EntryBox* const made = entry(field, spoken, true);
    make_cell(*made);
    made->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    return made;
}

ValueBox* WidgetMaker::value_box(ComboBox& field, QString const& spoken, int width, int height)
{
    auto* const made = interactive(new ValueBox{field, &screen_}, spoken);
    bind(field, *made);
    made->setFixedSize(pixels(width), height);
    return made;
}

QCheckBox* WidgetMaker::check_box(CheckBox& field, QString const& spoken)
{
    auto* const made = interactive(new QCheckBox{&screen_}, spoken);
    bind(field, *made);
    return made;
}

OptionChoice* WidgetMaker::option(OptionButton& field, QString const& spoken, QWidget* group, int height)
{
    auto* const made = interactive(new OptionChoice{group}, spoken);
    bind(field, *made);
    made->setFixedHeight(height);
    made->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    return made;
}

QPushButton* WidgetMaker::button(Button& field, QString const& spoken, int width, int height)
{
    auto* const made = interactive(new QPushButton{&screen_}, spoken);
    bind(field, *made);
    made->setAutoDefault(true); // Enter presses the button that has the focus
    made->setFixedSize(pixels(width), pixels(height));
    return made;
}

QTextEdit* WidgetMaker::description(RichTextBox& field, QString const& spoken)
{
    auto* const made = interactive(new QTextEdit{&screen_}, spoken);
    bind(field, *made);
    made->setTabChangesFocus(true);
    return made;
}

CaptionFrame* WidgetMaker::frame(Frame& field) const
{
    auto* const made = new CaptionFrame{&screen_};
    bind(field, *made);
    return made;
}

QHBoxLayout* WidgetMaker::row(int spacing) const
{
    auto* const made = new QHBoxLayout;
    made->setContentsMargins(0, 0, 0, 0);
    made->setSpacing(pixels(spacing));
    return made;
}

void WidgetMaker::set_tab_order() const
{
    for (std::size_t k = 1; k < order_.size(); ++k) QWidget::setTabOrder(order_[k - 1], order_[k]);
}

void add_labelled(QHBoxLayout& line, QLabel* label, QWidget* box)
{
    label->setBuddy(box);
    line.addWidget(label);
    line.addWidget(box);
}

} // namespace warhost
