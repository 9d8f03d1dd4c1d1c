#include "ui/qt/widgets/binding.h"

#include "ui/qt/widgets/option_choice.h"
#include "ui/qt/widgets/rich_text_view.h"
#include "ui/qt/widgets/text.h"
#include "ui/qt/widgets/value_box.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTextEdit>

namespace warhost {

namespace {

/// Leaves an equal text alone, so that the cursor keeps its place while the user types.
void show_text(QLineEdit& box, std::string const& text)
{
    QString const wanted = to_qt(text);
    if (box.text() == wanted) return;
    box.setText(wanted);
    if (!box.hasFocus()) box.setCursorPosition(0); // shows the beginning of a long text
}

void bind_text(TextBox& field, QLineEdit& box)
{
    box.setMaxLength(longest_text);
    // textChanged, because assistive technology sets a text without a key; a text that the form shows comes back equal.
    QObject::connect(&box, &QLineEdit::textChanged, &box, [&](QString const& now) {
        if (now == to_qt(field.text())) return;
        if (takes_input(box)) field.set_text(now.toStdString());
        else field.show();
    });
    field.show = [&] { show_text(box, field.text()); };
    field.show();
}

} // namespace

bool takes_input(QWidget const& widget)
{
    // A dialog of the desktop is not a widget, but it has a window. An input method commits its text to the widget that
    // is about to lose the focus to such a dialog.
    bool const is_in_reach = QGuiApplication::modalWindow() == nullptr || widget.hasFocus();
    return widget.isVisible() && widget.isEnabled() && is_in_reach;
}

void name_after(Control const& field, QWidget& widget)
{
    widget.setObjectName(to_qt(field.name()));
    if (!field.tooltip.empty()) widget.setToolTip(to_qt(field.tooltip));
}

void also_show(Control& field, Notification const& more)
{
    field.show = [before = field.show, more] {
        before();
        more();
    };
    more();
}

void bind(TextLabel& field, QLabel& label)
{
    name_after(field, label);
    label.setTextFormat(Qt::PlainText);
    field.show = [&] {
        if (QString const caption = to_qt(field.caption()); label.text() != caption) label.setText(caption);
    };
    field.show();
}

void bind(TextBox& field, QLineEdit& box)
{
    name_after(field, box);
    box.setReadOnly(field.read_only);
    bind_text(field, box);
}

void bind(ComboBox& field, ValueBox& box)
{
    name_after(field, box);
    bind_text(field, *box.lineEdit());
}

void bind(CheckBox& field, QCheckBox& box)
{
    name_after(field, box);
    box.setText(to_caption(beginning_of(field.caption())));
    QObject::connect(&box, &QCheckBox::toggled, &box, [&](bool checked) {
        if (checked == (field.state() == 1)) return;
        if (takes_input(box)) field.set_state(checked ? 1 : 0);
        else field.show();
    });
    field.show = [&] { box.setChecked(field.state() == 1); };
    field.show();
}

void bind(OptionButton& field, OptionChoice& choice)
{
    name_after(field, choice);
    choice.setText(to_caption(field.caption()));
    QObject::connect(&choice, &QRadioButton::toggled, &choice, [&](bool on) {
        if (on == field.selected()) return;
        if (on && takes_input(choice)) field.set_selected(true);
        else field.show();
    });
    field.show = [&] { choice.show_selected(field.selected()); };
    field.show();
}

void bind(Button& field, QPushButton& button)
{
    name_after(field, button);
    button.setText(to_caption(field.caption()));
    QObject::connect(&button, &QPushButton::clicked, &button, [&] {
        if (takes_input(button)) field.press();
    });
}

void bind(Frame& field, QGroupBox& frame)
{
    name_after(field, frame);
    frame.setTitle(to_caption(field.caption()));
    frame.setAccessibleName(to_qt(field.caption()));
}

void bind(RichTextBox& field, QTextEdit& box)
{
    name_after(field, box);
    box.setReadOnly(true);
    field.show = [&] { show_rich_text(box, field.document()); };
    field.show();
}

} // namespace warhost
