#include "ui/qt/screens/misc_panel.h"

#include "ui/qt/help/help_key.h"
#include "ui/qt/look/colours.h"
#include "ui/qt/look/device_pixels.h"
#include "ui/qt/look/ink.h"
#include "ui/qt/widgets/binding.h"
#include "ui/qt/widgets/elided_label.h"
#include "ui/qt/widgets/entry_box.h"
#include "ui/qt/widgets/number_reading.h"
#include "ui/qt/widgets/text.h"
#include "ui/qt/widgets/value_box.h"

#include <QCheckBox>
#include <QEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionButton>

#include <utility>

namespace warhost {

namespace {

/// Each edge is rounded by itself, so that neighbouring rows touch.
QRect geometry_of(RowPlace const& place, Scale const& scale)
{
    QPoint const top_left{scale.from_twips(place.Left), scale.from_twips(place.Top)};
    QPoint const behind{scale.from_twips(place.Left + place.Width), scale.from_twips(place.Top + place.Height)};
    return {top_left, behind - QPoint{1, 1}};
}

} // namespace

MiscPanel::MiscPanel(ArmyControls& controls, Scale const& scale, std::function<bool()> add_row, QWidget* parent)
    : CaptionFrame(parent),
      controls_(controls),
      scale_(scale),
      add_row_(std::move(add_row))
{
    bind(controls.FrameMisc, *this);
}

/// The stripes behind the rows, over the whole width.
void MiscPanel::paintEvent(QPaintEvent* event)
{
    Colours const& of = colours();
    QPainter painter{this};
    painter.setClipRect(event->rect());
    DevicePixels pixels{painter};
    for (auto const& row : rows_) {
        CheckBox const& field = controls_.chkMisc(row.index);
        if (!field.visible) continue;
        QRect const band{0, row.box->y(), width(), row.box->height()};
        if (of.high_contrast) pixels.draw_line(QRect{0, band.bottom(), width(), scale_.line()}, of.hair);
        else painter.fillRect(band, field.striped ? of.stripe : of.page);
    }
    painter.end();
    CaptionFrame::paintEvent(event);
}

void MiscPanel::resizeEvent(QResizeEvent* event)
{
    CaptionFrame::resizeEvent(event);
    make_rows_in_sight();
}

void MiscPanel::make_rows_in_sight()
{
    for (int index = static_cast<int>(rows_.size());; ++index) {
        if (index > controls_.chkMisc.highest() && !add_row_()) return;
        if (scale_.from_twips(controls_.chkMisc(index).place.Top) >= height()) return;
        make_row(index);
    }
}

void MiscPanel::make_row(int index)
{
    CheckBox& box_field = controls_.chkMisc(index);
    ComboBox& value_field = controls_.cmbMisc(index);
    QString const caption = beginning_of(box_field.caption());
    Row const row{index, new QCheckBox{this}, new ValueBox{value_field, this}};

    bind(box_field, *row.box);
    row.box->setAccessibleName(caption);
    row.box->setGeometry(geometry_of(box_field.place, scale_));
    bind(value_field, *row.value);
    row.value->setAccessibleName(caption + ", value");
    row.value->entry().set_reading(whole_number<TextToLong>);
    row.value->setGeometry(geometry_of(value_field.place, scale_));

    set_help_topic(*row.box, box_field.help_topic);
    set_help_topic(*row.value, value_field.help_topic);
    also_show(box_field, [this, row] { show_ticked(row); });
    fit_caption(row);
    if (rows_.size() > 1) setTabOrder(rows_.back().value, row.box);
    setTabOrder(row.box, row.value);
    row.box->setVisible(box_field.visible);
    row.value->setVisible(value_field.visible);
    rows_.push_back(row);
}

void MiscPanel::show_ticked(Row const& row) const
{
    CheckBox const& field = controls_.chkMisc(row.index);
    Type const type = field.bold() ? type::caption : type::plain;
    row.value->entry().set_type(type);
    set_ink(row.value->entry(), field.bold() ? Ink::text : Ink::dim);
    QFont const font = in_type(window()->font(), type);
    if (row.box->font() == font) return;
    row.box->setFont(font);
    fit_caption(row);
}

/// A caption that would overlap the value is shortened; the tool tip shows all of it.
void MiscPanel::fit_caption(Row const& row) const
{
    QStyleOptionButton option;
    option.initFrom(row.box);
    int const text_left = style()->subElementRect(QStyle::SE_CheckBoxContents, &option, row.box).left();
    int const room = row.value->x() - row.box->x() - text_left - scale_.from_base(4);
    QString const caption = beginning_of(controls_.chkMisc(row.index).caption());
    QString const shown = row.box->fontMetrics().elidedText(caption, Qt::ElideRight, room);
    row.box->setText(to_caption(shown));
    tell_whole(*row.box, shown == caption ? QString{} : caption);
}

void MiscPanel::changeEvent(QEvent* event)
{
    CaptionFrame::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        for (auto const& row : rows_) fit_caption(row);
    }
}

} // namespace warhost
