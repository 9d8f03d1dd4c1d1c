#include "ui/qt/widgets/caption_frame.h"

#include "ui/qt/look/colours.h"
#include "ui/qt/look/device_pixels.h"
#include "ui/qt/look/marks.h"
#include "ui/qt/look/scale.h"
#include "ui/qt/look/type.h"
#include "ui/qt/widgets/elided_label.h"

#include <QPainter>

#include <algorithm>

namespace warhost {

namespace {

// Pixels of the base size.
constexpr int gap = 8;

QString without_access_keys(QString title) { return title.replace("&&", "&"); }

} // namespace

void CaptionFrame::set_side(int Index)
{
    Index_ = Index;
    update();
}

void CaptionFrame::set_note(QString const& note)
{
    if (note == note_) return;
    note_ = note;
    show_note_whole_when_cut();
    update();
}

void CaptionFrame::set_hint(QString const& hint)
{
    if (hint == hint_) return;
    hint_ = hint;
    setAccessibleDescription(hint);
    update(0, 0, width(), scale_of(this).from_base(caption_height));
}

void CaptionFrame::keep_free(int pixels) { kept_free_ = pixels; }

int CaptionFrame::caption_left() const { return Index_ ? scale_of(this).from_base(mark_room) : 0; }

QFont CaptionFrame::caption_font() const
{
    QFont const own = window()->font();
    QFont const strong = in_type(own, type::caption);
    int const wide = QFontMetrics{strong}.horizontalAdvance(without_access_keys(title()));
    return caption_left() + wide <= width() - kept_free_ ? strong : in_type(own, type::plain);
}

int CaptionFrame::note_left() const
{
    return caption_left() + QFontMetrics{caption_font()}.horizontalAdvance(without_access_keys(title())) +
           scale_of(this).from_base(gap);
}

int CaptionFrame::note_room() const { return std::max(0, width() - kept_free_ - note_left()); }

void CaptionFrame::show_note_whole_when_cut()
{
    bool const cut = fontMetrics().horizontalAdvance(note_) > note_room();
    tell_whole(*this, cut ? note_ : QString{});
}

void CaptionFrame::resizeEvent(QResizeEvent* event)
{
    QGroupBox::resizeEvent(event);
    if (!note_.isEmpty()) show_note_whole_when_cut();
}

void CaptionFrame::paintEvent(QPaintEvent* /*event*/)
{
    Colours const& of = colours();
    Scale const scale = scale_of(this);
    QColor const own = Index_ ? of.side.at(static_cast<std::size_t>(*Index_)) : of.text;
    QPainter painter{this};
    QRect const head{0, 0, width(), scale.from_base(caption_height)};
    DevicePixels{painter}.draw_line(QRect{0, head.height(), width(), scale.line()},
                                    Index_ ? in_state(isEnabled(), own) : of.soft);
    if (Index_) {
        double const size = mark_size * scale.factor();
        draw_side_mark(painter, *Index_, {mark_left * scale.factor(), (head.height() - size) / 2, size, size},
                       in_state(isEnabled(), own));
    }
    auto const write = [&](int left, int room, Qt::Alignment alignment, QColor const& colour, QFont const& font,
                           QString const& text) {
        painter.setPen(in_state(isEnabled(), colour));
        painter.setFont(font);
        painter.drawText(QRect{left, 0, room, head.height()}, static_cast<int>(alignment | Qt::AlignVCenter), text);
    };
    QFont const plain = in_type(window()->font(), type::plain);
    write(caption_left(), width(), Qt::AlignLeft, own, caption_font(), without_access_keys(title()));
    if (!note_.isEmpty()) {
        write(note_left(), note_room(), Qt::AlignLeft, of.dim, plain,
              QFontMetrics{plain}.elidedText(note_, Qt::ElideRight, note_room()));
    }
    if (!hint_.isEmpty()) {
        write(0, width(), Qt::AlignRight, of.hint, in_type(window()->font(), type::caption), hint_);
    }
}

} // namespace warhost
