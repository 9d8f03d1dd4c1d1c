#include "ui/qt/screens/misc_panel.h"

#include "ui/qt/look/contrast.h"
#include "ui/qt/widgets/binding.h"
#include "ui/qt/widgets/text.h"
#include "ui/qt/widgets/value_box.h"

#include <QCheckBox>
#include <QEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QStyle>
#include <QStyleOptionButton>

#include <cstdlib>
#include <utility>

namespace warhost {

namespace {

constexpr QColor light_stripe{240, 240, 240};
constexpr int least_difference = 8; // of the lightness of two neighbouring rows, of 255

/// Neighbouring rows meet: each edge is rounded by itself.
QRect geometry_of(Place const& place, Scale const& scale)
{
    QPoint const top_left{scale.from_twips(place.Left), scale.from_twips(place.Top)};
    QPoint const behind{scale.from_twips(place.Left + place.Width), scale.from_twips(place.Top + place.Height)};
    return {top_left, behind - QPoint{1, 1}};
}

} // namespace

RowColours row_colours(QPalette const& palette)
{
    QColor const button = palette.color(QPalette::Button);
    QColor const text = palette.color(QPalette::ButtonText);
    if (button.lightness() <= text.lightness()) return {button, mixture(button, text, 12)};
    bool const differs = std::abs(button.lightness() - light_stripe.lightness()) >= least_difference;
    return {differs ? button : mixture(button, text, 7), light_stripe};
}

MiscPanel::MiscPanel(ArmyControls& controls, Scale const& scale, std::function<bool()> add_row,
                     std::function<void(int)> show_help, QWidget* parent)
    : CaptionFrame(0, parent),
      controls_(controls),
      scale_(scale),
      add_row_(std::move(add_row)),
      show_help_(std::move(show_help))
{
    bind(controls.FrameMisc, *this);
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
    Row const row{index, new QCheckBox{this}, new ValueBox{value_field}};

    bind(box_field, *row.box);
    row.box->setAccessibleName(caption);
    row.box->setBackgroundRole(QPalette::Window);
    row.box->setAutoFillBackground(true);
    row.box->setGeometry(geometry_of(box_field.place, scale_));
    box_field.show = [this, row, &box_field] {
        row.box->setChecked(box_field.state() == 1);
        if (row.box->font().bold() == box_field.bold()) return;
        QFont font = row.box->font();
        font.setBold(box_field.bold());
        row.box->setFont(font);
        fit_caption(row);
    };

    row.value->setParent(this);
    bind(value_field, *row.value);
    row.value->setAccessibleName(caption + ", value");
    row.value->lineEdit()->setAlignment(Qt::AlignRight);
    row.value->setGeometry(geometry_of(value_field.place, scale_));

    colour(row);
    box_field.show();
    fit_caption(row);
    if (rows_.size() > 1) setTabOrder(rows_.back().value, row.box);
    setTabOrder(row.box, row.value);
    row.box->setVisible(box_field.visible);
    row.value->setVisible(value_field.visible);
    rows_.push_back(row);
}

void MiscPanel::colour(Row const& row) const
{
    auto const [face, stripe] = row_colours(palette());
    QPalette band;
    band.setColor(QPalette::Window, controls_.chkMisc(row.index).striped ? stripe : face);
    band.setColor(QPalette::WindowText, palette().color(QPalette::ButtonText));
    row.box->setPalette(band);
}

/// A caption that would run under the value is cut short; the tool tip has it whole.
void MiscPanel::fit_caption(Row const& row) const
{
    QStyleOptionButton option;
    option.initFrom(row.box);
    int const text_left = style()->subElementRect(QStyle::SE_CheckBoxContents, &option, row.box).left();
    int const room = row.value->x() - row.box->x() - text_left - scale_.from_base(4);
    QString const caption = beginning_of(controls_.chkMisc(row.index).caption());
    QString const shown = row.box->fontMetrics().elidedText(caption, Qt::ElideRight, room);
    row.box->setText(to_caption(shown));
    row.box->setToolTip(shown == caption ? QString{} : to_tooltip(caption));
}

void MiscPanel::changeEvent(QEvent* event)
{
    CaptionFrame::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        for (auto const& row : rows_) colour(row);
    } else if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        for (auto const& row : rows_) fit_caption(row);
    }
}

void MiscPanel::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_F1) {
        for (auto const& row : rows_) {
            if (!row.box->hasFocus() && !row.value->hasFocus()) continue;
            if (int const topic = controls_.chkMisc(row.index).help_topic; topic != 0) show_help_(topic);
            return;
        }
    }
    CaptionFrame::keyPressEvent(event);
}

} // namespace warhost
