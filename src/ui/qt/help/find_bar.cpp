#include "ui/qt/help/find_bar.h"

#include "ui/qt/widgets/binding.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QTextEdit>
#include <QToolButton>

namespace warhost {

FindBar::FindBar(QTextEdit& page, QWidget* parent)
    : QWidget(parent),
      page_(page),
      text_(new QLineEdit),
      message_(new QLabel)
{
    setObjectName("findBar");
    auto* const label = new QLabel{"Find &text:"};
    label->setBuddy(text_);
    text_->setObjectName("findText");
    text_->setAccessibleName("Text to find in the page");
    text_->setClearButtonEnabled(true);
    text_->setMaxLength(longest_text);
    text_->setMaximumWidth(text_->fontMetrics().averageCharWidth() * 40);
    message_->setObjectName("findMessage");
    message_->setAccessibleName("Result of the search");

    auto const button = [this](char const* name, char const* caption, char const* spoken, void (FindBar::*act)()) {
        auto* const made = new QToolButton;
        made->setObjectName(name);
        made->setText(caption);
        made->setAccessibleName(spoken);
        made->setAutoRaise(true);
        made->setFocusPolicy(Qt::TabFocus);
        connect(made, &QToolButton::clicked, this, act);
        return made;
    };

    auto* const row = new QHBoxLayout{this};
    row->setContentsMargins(6, 3, 6, 3);
    row->addWidget(label);
    row->addWidget(text_, 1);
    row->addWidget(button("findPrevious", "Previous", "Find previous", &FindBar::find_previous));
    row->addWidget(button("findNext", "Next", "Find next", &FindBar::find_next));
    row->addWidget(message_, 1);
    row->addWidget(button("findClose", "Close", "Close the find bar", &FindBar::close_bar));

    connect(text_, &QLineEdit::textEdited, this, &FindBar::find_while_typing);
    hide();
}

void FindBar::open()
{
    show();
    text_->setFocus(Qt::ShortcutFocusReason);
    text_->selectAll();
}

void FindBar::close_bar()
{
    hide();
    message_->clear();
    page_.setFocus(Qt::OtherFocusReason);
}

void FindBar::find_next() { find({}); }

void FindBar::find_previous() { find(QTextDocument::FindBackward); }

/// While the user types, the search starts at the current match, so a longer text can match at the same place.
void FindBar::find_while_typing()
{
    auto cursor = page_.textCursor();
    cursor.setPosition(cursor.selectionStart());
    page_.setTextCursor(cursor);
    find({});
}

void FindBar::find(QTextDocument::FindFlags direction)
{
    message_->clear();
    if (text_->text().isEmpty() || page_.find(text_->text(), direction)) return;

    bool const backward = direction.testFlag(QTextDocument::FindBackward);
    QTextCursor start{page_.document()};
    if (backward) start.movePosition(QTextCursor::End);
    QTextCursor const found = page_.document()->find(text_->text(), start, direction);
    if (found.isNull()) return message_->setText("Not found on this page");
    page_.setTextCursor(found);
    message_->setText(backward ? "Continued from the end of the page" : "Continued from the top of the page");
}

void FindBar::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Escape: close_bar(); return;
    case Qt::Key_Enter:
    case Qt::Key_Return:
        if (event->modifiers().testFlag(Qt::ShiftModifier)) find_previous();
        else find_next();
        return;
    default: QWidget::keyPressEvent(event);
    }
}

} // namespace warhost
