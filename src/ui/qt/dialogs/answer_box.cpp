#include "ui/qt/dialogs/answer_box.h"

#include "ui/qt/widgets/text.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QStyle>
#include <QTextEdit>

#include <algorithm>
#include <array>
#include <cmath>

namespace warhost {

namespace {

using StandardButton = QDialogButtonBox::StandardButton;

struct AnswerButton {
    Buttons set;
    Answer answer;
    StandardButton button;
};

// From left to right; the last of a set is the answer of Escape.
constexpr std::array answer_buttons{
    AnswerButton{Buttons::ok, Answer::ok, StandardButton::Ok},
    AnswerButton{Buttons::yes_no, Answer::yes, StandardButton::Yes},
    AnswerButton{Buttons::yes_no, Answer::no, StandardButton::No},
    AnswerButton{Buttons::abort_retry_ignore, Answer::abort, StandardButton::Abort},
    AnswerButton{Buttons::abort_retry_ignore, Answer::retry, StandardButton::Retry},
    AnswerButton{Buttons::abort_retry_ignore, Answer::ignore, StandardButton::Ignore},
};

constexpr Answer answer_of_escape(Buttons set)
{
    Answer last{};
    for (auto const& row : answer_buttons) {
        if (row.set == set) last = row.answer;
    }
    return last;
}

/// A text edit and not a label, which would cut a word that is wider than the box.
QTextEdit* wrapped_text(QString const& text, QSize const& screen)
{
    auto* const view = new QTextEdit;
    view->setReadOnly(true);
    view->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    view->setTabChangesFocus(true);
    view->setFrameShape(QFrame::NoFrame);
    view->viewport()->setAutoFillBackground(false);
    view->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    view->setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    view->setAccessibleName("Message");
    view->setPlainText(text);

    constexpr int widest = 85; // characters
    QTextDocument& document = *view->document();
    document.setDocumentMargin(0);
    double const room = std::min(view->fontMetrics().averageCharWidth() * widest, screen.width() / 2);
    document.setTextWidth(room);
    document.setTextWidth(std::ceil(std::min(document.idealWidth(), room)));
    int const height = static_cast<int>(std::ceil(document.size().height()));
    bool const scrolls = height > screen.height() / 2;
    int const bar = scrolls ? view->style()->pixelMetric(QStyle::PM_ScrollBarExtent) : 0;
    view->setVerticalScrollBarPolicy(scrolls ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff);
    view->setFixedSize(static_cast<int>(document.textWidth()) + bar, scrolls ? screen.height() / 2 : height);
    return view;
}

QPixmap pixmap_of(Icon icon, QStyle const& style)
{
    int const size = style.pixelMetric(QStyle::PM_MessageBoxIconSize);
    switch (icon) {
    case Icon::exclamation: return style.standardIcon(QStyle::SP_MessageBoxWarning).pixmap(size);
    case Icon::critical: return style.standardIcon(QStyle::SP_MessageBoxCritical).pixmap(size);
    case Icon::none: break;
    }
    return {};
}

} // namespace

AnswerBox::AnswerBox(Message const& box, QWidget* parent) : QDialog(parent), answer_(answer_of_escape(box.buttons))
{
    setWindowTitle(to_qt(box.title));
    QString const text = to_qt(box.text).replace("\r\n", "\n");
    setAccessibleDescription(text);

    auto* const grid = new QGridLayout{this};
    if (QPixmap const pixmap = pixmap_of(box.icon, *style()); !pixmap.isNull()) {
        auto* const icon = new QLabel;
        icon->setPixmap(pixmap);
        grid->addWidget(icon, 0, 0, Qt::AlignTop);
    }
    grid->addWidget(wrapped_text(text, screen()->availableSize()), 0, 1);

    auto* const buttons = new QDialogButtonBox;
    grid->addWidget(buttons, 1, 0, 1, 2); // before there are buttons, which look for their dialog
    for (auto const& row : answer_buttons) {
        if (row.set != box.buttons) continue;
        QPushButton* const button = buttons->addButton(row.button);
        // Buttons of this role keep their order on every desktop.
        buttons->addButton(button, QDialogButtonBox::ActionRole);
        connect(button, &QPushButton::clicked, this, [this, answer = row.answer] {
            answer_ = answer;
            accept();
        });
        if (row.answer != box.default_answer) continue;
        button->setDefault(true);
        button->setFocus();
    }
    grid->setSizeConstraint(QLayout::SetFixedSize);
}

Answer AnswerBox::ask()
{
    exec();
    return answer_;
}

} // namespace warhost
