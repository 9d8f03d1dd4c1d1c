#include "ui/qt/widgets/widget_maker.h"

#include "ui/qt/widgets/binding.h"
#include "ui/qt/widgets/caption_frame.h"
#include "ui/qt/widgets/option_choice.h"
#include "ui/qt/widgets/value_box.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTextEdit>

namespace warhost {

namespace {

constexpr int frame_margin_base = 4;

} // namespace

template <class Widget> Widget* WidgetMaker::interactive(Widget* widget, QString const& spoken)
{
    widget->setAccessibleName(spoken);
    order_.push_back(widget);
    return widget;
}

int WidgetMaker::frame_margin() const { return pixels(frame_margin_base); }

QLabel* WidgetMaker::label(TextLabel& field, int width) const
{
    auto* const made = new QLabel;
    bind(field, *made);
    made->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    if (width > 0) made->setFixedWidth(pixels(width));
    return made;
}

QLineEdit* WidgetMaker::text_box(TextBox& field, QString const& spoken, int width)
{
    auto* const made = interactive(new QLineEdit, spoken);
    bind(field, *made);
    made->setFixedHeight(pixels(row_height_));
    if (width > 0) made->setFixedWidth(pixels(width));
    else made->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    return made;
}

QLineEdit* WidgetMaker::number_box(TextBox& field, QString const& spoken, int width)
{
    QLineEdit* const made = text_box(field, spoken, width);
    made->setAlignment(Qt::AlignRight);
    return made;
}

ValueBox* WidgetMaker::value_box(ComboBox& field, QString const& spoken, int width)
{
    auto* const made = interactive(new ValueBox{field}, spoken);
    bind(field, *made);
    made->lineEdit()->setAlignment(Qt::AlignRight);
    made->setFixedSize(pixels(width), pixels(row_height_));
    return made;
}

QCheckBox* WidgetMaker::check_box(CheckBox& field, QString const& spoken)
{
    auto* const made = interactive(new QCheckBox, spoken);
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

QPushButton* WidgetMaker::button(Button& field, QString const& spoken, int width)
{
    auto* const made = interactive(new QPushButton, spoken);
    bind(field, *made);
    made->setAutoDefault(true); // Enter presses the button that has the keyboard
    made->setFixedHeight(pixels(row_height_));
    if (width > 0) made->setFixedWidth(pixels(width));
    return made;
}

QTextEdit* WidgetMaker::description(RichTextBox& field, QString const& spoken)
{
    auto* const made = interactive(new QTextEdit, spoken);
    bind(field, *made);
    made->setTabChangesFocus(true);
    return made;
}

CaptionFrame* WidgetMaker::frame(Frame& field) const
{
    auto* const made = new CaptionFrame{frame_margin(), &screen_};
    bind(field, *made);
    return made;
}

QHBoxLayout* WidgetMaker::line(int spacing) const
{
    auto* const made = new QHBoxLayout;
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
