#include "ui/qt/screens/winner_band.h"

#include "ui/qt/look/colours.h"
#include "ui/qt/look/ink.h"
#include "ui/qt/look/scale.h"
#include "ui/qt/widgets/elided_label.h"
#include "ui/qt/widgets/text.h"
#include "ui/qt/widgets/widget_maker.h"

#include <QHBoxLayout>
#include <QPainter>
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
#include <QAccessibleAnnouncementEvent>
#endif

#include <algorithm>

namespace warhost {

namespace {

// Pixels of the base size.
constexpr int band_height = 36;
constexpr int baseline = 26;
constexpr int text_left = 15;
constexpr int free_right = 10;
constexpr int edge_width = 4;
constexpr double corner = 4;
constexpr int gap = 8;

} // namespace

std::optional<BattleWinner> shown_winner(CombatControls const& controls)
{
    auto const* const place = std::ranges::find(winner_captions, controls.lblWinner.caption());
    if (place == winner_captions.end()) return {};
    return static_cast<BattleWinner>(place - winner_captions.begin());
}

WinnerBand::WinnerBand(CombatControls& controls, WidgetMaker const& make)
    : controls_(controls),
      winner_(make.label(controls.lblWinner, 0, type::winner)),
      margin_(make.label(controls.lblWinBy, 0, type::winner)),
      words_{make.label(controls.Label7(0), 0, type::reading), make.label(controls.Label8, 0, type::reading),
             make.label(controls.Label9, 0, type::reading)},
      name_(new ElidedLabel)
{
    setFixedHeight(make.pixels(band_height));
    name_->setFont(make.font(type::name));
    auto* const line = make.row(gap);
    setLayout(line);
    line->setContentsMargins(make.pixels(text_left), 0, make.pixels(free_right), 0);
    for (QLabel* const label : {words_[0], winner_, words_[1], margin_, words_[2], static_cast<QLabel*>(name_)}) {
        label->setAlignment(Qt::AlignTop | (label == name_ ? Qt::AlignRight : Qt::AlignLeft));
        label->setContentsMargins(0, make.pixels(baseline) - label->fontMetrics().ascent(), 0, 0);
        label->setFixedHeight(make.pixels(band_height));
        line->addWidget(label, label == name_ ? 1 : 0);
    }
    announcement_.setSingleShot(true);
    connect(&announcement_, &QTimer::timeout, this, &WinnerBand::announce);
}

void WinnerBand::show_army_names(std::array<QString, 2> const& names)
{
    names_ = names;
    show_winner();
}

void WinnerBand::show_winner()
{
    auto const winner = shown_winner(controls_);
    bool const decided = winner && *winner != tie;
    Ink const plain = winner ? Ink::text : Ink::dim;
    for (QLabel* const word : words_) set_ink(*word, plain);
    for (QWidget* const part : {winner_, margin_, static_cast<QLabel*>(name_)}) {
        set_ink(*part, decided ? ink_of_side(*winner) : plain);
    }
    name_->set_whole_text(decided ? names_.at(*winner) : QString{});
    update();
    announcement_.start(0);
}

/// Announces the whole line to screen readers, once.
void WinnerBand::announce()
{
    if (!shown_winner(controls_)) return;
    QStringList parts;
    for (QLabel const* const label : {words_[0], winner_, words_[1], margin_, words_[2]}) parts << label->text();
    QString const line = parts.join(' ');
    if (line == accessibleName()) return;
    setAccessibleName(line);
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
    QAccessibleAnnouncementEvent event{this, line};
    QAccessible::updateAccessibility(&event);
#endif
}

void WinnerBand::paintEvent(QPaintEvent* /*event*/)
{
    Colours const& of = colours();
    Scale const scale = scale_of(this);
    auto const winner = shown_winner(controls_);
    bool const decided = winner && *winner != tie;
    QPainter painter{this};
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(decided ? of.tint.at(*winner) : of.band);
    double const round = corner * scale.factor();
    painter.drawRoundedRect(QRectF{rect()}, round, round);
    painter.setClipRect(0, 0, scale.from_base(edge_width), height());
    painter.setBrush(decided ? in_state(isEnabled(), of.side.at(*winner)) : of.soft);
    painter.drawRoundedRect(QRectF{rect()}, round, round);
}

} // namespace warhost
