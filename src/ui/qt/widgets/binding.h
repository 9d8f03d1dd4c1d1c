// Binds a field to its widget: the widget shows the field's text and state, and the user's input sets the field.
#pragma once

#include "ui/fields.h"

class QCheckBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QTextEdit;
class QWidget;

namespace warhost {

class OptionChoice;
class ValueBox;

/// Each call names the widget after its field, gives it the field's tool tip and shows the field. A text or a state
/// goes back only when it differs from the field's, so showing a field never writes back and no signal is silenced.
/// Input by the user, also through assistive technology, reaches the form unless the widget accepts no input. The field
/// must outlive the use of the widget, and must not be set once the widget is gone.
void bind(TextLabel& field, QLabel& label);
void bind(TextBox& field, QLineEdit& box);
void bind(ComboBox& field, ValueBox& box);
void bind(CheckBox& field, QCheckBox& box);
void bind(OptionButton& field, OptionChoice& choice);
void bind(Button& field, QPushButton& button);
void bind(Frame& field, QGroupBox& frame);
void bind(RichTextBox& field, QTextEdit& box);

/// Characters that a user can enter into one box; no army file holds more in a text.
inline constexpr int longest_text = 65535;

/// Whether the user can operate a widget of the main window now: it is enabled and visible, and has the focus or is not
/// blocked by a modal dialog. Assistive technology can act on any widget at any time; its changes to a widget that
/// accepts no input are undone.
bool takes_input(QWidget const& widget);

/// more: runs after the field has been shown, for whatever else depends on it. The field must already be bound.
void also_show(Control& field, Notification const& more);

/// The part of binding that all kinds of widgets share.
void name_after(Control const& field, QWidget& widget);

} // namespace warhost
