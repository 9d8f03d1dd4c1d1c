#include "ui/qt/dialogs/answer_box.h"

#include "ui/qt/dialogs/dialog_parts.h"
#include "ui/qt/look/scale.h"
#include "ui/qt/look/type.h"
#include "ui/qt/widgets/text.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QStyle>
#include <QTextEdit>
#include <QVBoxLayout>

#include <algorithm>
#include <array>
#include <cmath>

namespace warhost {

namespace {

constexpr int message_gap = 16; // pixels of the base size

struct AnswerButton {
    Buttons set;
    Answer answer;
    char const* caption;
};

// From left to right; the last of a set is the answer of Escape.
constexpr std::array answer_buttons{
    AnswerButton{Buttons::ok, Answer::ok, "OK"},
    AnswerButton{Buttons::yes_no, Answer::yes, "&Yes"},
    AnswerButton{Buttons::yes_no, Answer::no, "&No"},
    AnswerButton{Buttons::abort_retry_ignore, Answer::abort, "&Abort"},
    AnswerButton{Buttons::abort_retry_ignore, Answer::retry, "&Retry"},
    AnswerButton{Buttons::abort_retry_ignore, Answer::ignore, "&Ignore"},
};

constexpr Answer answer_of_escape(Buttons set)
{
    Answer last{};
    for (auto const& row : answer_buttons) {
        if (row.set == set) last = row.answer;
    }
    return last;
}

/// A text edit, because a label would cut off a word that is wider than the box.
QTextEdit* wrapped_text(QString const& text, QFont const& own, QSize const& screen)
{
    auto* const view = new QTextEdit;
    set_type(*view, own, type::message);
    view->setReadOnly(true);
    view->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    view->setTabChangesFocus(true);
    view->setFrameStyle(QFrame::StyledPanel | QFrame::Plain); // the ring of the focus
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
    int const frame = 2 * view->frameWidth();
    view->setFixedSize(static_cast<int>(document.textWidth()) + bar + frame,
                       (scrolls ? screen.height() / 2 : height) + frame);
    return view;
}

QPixmap pixmap_of(Icon icon, QWidget const& box)
{
    QStyle const& style = *box.style();
    int const size = style.pixelMetric(QStyle::PM_MessageBoxIconSize, nullptr, &box);
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
    setWindowModality(Qt::WindowModal);
    QString const text = to_qt(box.text).replace("\r\n", "\n");
    setAccessibleDescription(text);

    auto* const message = new QHBoxLayout;
    message->setSpacing(scale_of(this).from_base(message_gap));
    if (QPixmap const pixmap = pixmap_of(box.icon, *this); !pixmap.isNull()) {
        auto* const sign = new QLabel;
        sign->setPixmap(pixmap);
        message->addWidget(sign, 0, Qt::AlignTop);
    }
    QTextEdit* const shown = wrapped_text(text, font(), screen()->availableSize());
    bool const begins_line = message->isEmpty();
    message->addWidget(shown, 1, Qt::AlignVCenter | Qt::AlignLeft);

    auto* const buttons = new QHBoxLayout;
    buttons->setSpacing(style()->pixelMetric(QStyle::PM_LayoutHorizontalSpacing, nullptr, this));
    buttons->addStretch();
    auto* const rows = new QVBoxLayout{this};
    if (begins_line) move_ring_into_margin(*rows, *shown);
    rows->setSpacing(scale_of(this).from_base(message_gap));
    rows->addLayout(message);
    rows->addLayout(buttons);
    for (auto const& row : answer_buttons) {
        if (row.set != box.buttons) continue;
        auto* const button = new QPushButton{row.caption};
        buttons->addWidget(button);
        connect(button, &QPushButton::clicked, this, [this, answer = row.answer] {
            answer_ = answer;
            accept();
        });
        if (row.answer != box.default_answer) continue;
        button->setDefault(true);
        button->setFocus();
    }
    rows->setSizeConstraint(QLayout::SetFixedSize);
}

Answer AnswerBox::ask()
{
    exec();
    return answer_;
}

} // namespace warhost
