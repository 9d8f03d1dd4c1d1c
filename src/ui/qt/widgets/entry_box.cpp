#include "ui/qt/widgets/entry_box.h"

#include "ui/qt/look/colours.h"
#include "ui/qt/look/scale.h"
#include "ui/qt/widgets/elided_label.h"
#include "ui/qt/widgets/text.h"

#include <QEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionFrame>

#include <array>
#include <utility>

namespace warhost {

namespace {

constexpr int free_side = 2;     // pixels that the toolkit keeps beside the text
constexpr double mark_size = 7;  // pixels of the base size
constexpr int most_shown = 1000; // characters; no box is wider
constexpr std::array<double, 3> smaller_sizes{10, 9, 8};

} // namespace

EntryBox::EntryBox(Holds holds, QWidget* parent) : QLineEdit(parent), holds_(holds)
{
    if (holds == Holds::number) setAlignment(Qt::AlignRight);
    connect(this, &QLineEdit::textChanged, this, [this] {
        fit();
        mark_reading();
    });
}

void EntryBox::set_type(Type type)
{
    if (type_ == type) return;
    type_ = type;
    fit();
}

void EntryBox::set_description(QString const& description)
{
    description_ = description;
    describe();
}

void EntryBox::set_reading(std::function<QString(QString const&)> reading)
{
    reading_ = std::move(reading);
    mark_reading();
}

QRect EntryBox::room() const
{
    QStyleOptionFrame panel;
    initStyleOption(&panel);
    return style()
        ->subElementRect(QStyle::SE_LineEditContents, &panel, this)
        .marginsRemoved(textMargins())
        .adjusted(free_side, 0, -free_side, 0);
}

bool EntryBox::is_cut() const { return fontMetrics().horizontalAdvance(text()) > room().width(); }

/// A box that is not visible is fitted when it is shown.
void EntryBox::fit()
{
    if (!isVisible()) return;
    if (holds_ == Holds::number) return fit_number();
    tell_whole(*this, !hasFocus() && is_cut() ? beginning_of(text().toStdString()) : QString{});
    update();
}

void EntryBox::fit_number()
{
    QFont const own = window()->font();
    QFont chosen = in_type(own, type_);
    auto const fits = [&](QFont const& font) {
        return text().isEmpty() || QFontMetrics{font}.horizontalAdvance(text()) < room().width(); // with the cursor
    };
    for (double const size : smaller_sizes) {
        if (fits(chosen)) break;
        if (size < type_.pixels) chosen = in_type(own, {size, QFont::Normal});
    }
    if (font() != chosen) setFont(chosen);
}

/// Ignores a sign and the blanks around a number in the comparison.
void EntryBox::mark_reading()
{
    if (!reading_) return;
    QString said = text().trimmed();
    if (said.startsWith('+')) said.remove(0, 1);
    QString const read = reading_(text());
    QString const now = said == read ? QString{} : "Counts as " + read;
    if (now == counts_as_) return;
    counts_as_ = now;
    setToolTip(now);
    describe();
    update();
}

void EntryBox::describe()
{
    QWidget* const heard = focusProxy() != nullptr ? focusProxy() : this; // the widget that has the focus
    bool const both = !description_.isEmpty() && !counts_as_.isEmpty();
    heard->setAccessibleDescription(description_ + (both ? ". " : "") + counts_as_);
}

void EntryBox::paintEvent(QPaintEvent* event)
{
    bool const elided = holds_ == Holds::name && !hasFocus() && is_cut();
    if (!elided) QLineEdit::paintEvent(event);
    if (!elided && counts_as_.isEmpty()) return;
    QPainter painter{this};
    if (elided) {
        QStyleOptionFrame panel;
        initStyleOption(&panel);
        style()->drawPrimitive(QStyle::PE_PanelLineEdit, &panel, &painter, this);
        painter.setPen(palette().color(QPalette::Text));
        painter.drawText(room(), static_cast<int>(Qt::AlignLeft | Qt::AlignVCenter),
                         fontMetrics().elidedText(text().left(most_shown), Qt::ElideRight, room().width()));
    }
    if (!counts_as_.isEmpty()) {
        double const size = scale_of(this).factor() * mark_size;
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(colours().ring);
        painter.drawPolygon(QPolygonF{{{0, 0}, {size, 0}, {0, size}}});
    }
}

void EntryBox::resizeEvent(QResizeEvent* event)
{
    QLineEdit::resizeEvent(event);
    fit();
}

void EntryBox::showEvent(QShowEvent* event)
{
    QLineEdit::showEvent(event);
    fit();
}

void EntryBox::changeEvent(QEvent* event)
{
    QLineEdit::changeEvent(event);
    if (event->type() == QEvent::StyleChange) fit();
}

void EntryBox::focusInEvent(QFocusEvent* event)
{
    QLineEdit::focusInEvent(event);
    clicked_into_ = event->reason() == Qt::MouseFocusReason;
    fit();
}

void EntryBox::focusOutEvent(QFocusEvent* event)
{
    QLineEdit::focusOutEvent(event);
    fit();
}

/// The first click selects a number, as Tab does, so that the next number replaces it.
void EntryBox::mouseReleaseEvent(QMouseEvent* event)
{
    QLineEdit::mouseReleaseEvent(event);
    if (clicked_into_ && holds_ == Holds::number && !hasSelectedText()) selectAll();
    clicked_into_ = false;
}

} // namespace warhost
