// Ties a field to its widget: the field's text and state are shown, and what the user types, chooses or ticks is set.
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
/// What a user types, ticks or sets through assistive technology reaches the form, unless the widget takes no input.
/// The field must outlive the widget's use, and must not be set any more once the widget is gone.
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

/// Whether a user can act on a widget of the main window now: it is enabled, visible, and has the focus or no modal
/// dialog open before it.
/// Assistive technology acts on any widget at any time; what it does to one that takes no input is undone.
bool takes_input(QWidget const& widget);

/// Runs after a field has been shown, for what else depends on it. The field must be bound before.
void also_show(Control& field, Notification const& more);

/// The part of it that every kind shares.
void name_after(Control const& field, QWidget& widget);

} // namespace warhost
