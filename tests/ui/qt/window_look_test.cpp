// Nothing is clipped, everything is readable, reachable and named.
#include "window_fixture.h"

#include "ui/qt/look/contrast.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QStyleOptionButton>
#include <QStyleOptionGroupBox>
#include <QTextEdit>

#include <algorithm>
#include <cstdlib>
#include <map>
#include <set>

namespace warhost {

namespace {

constexpr std::array tabs{1, 2, 3};

/// A battle with long numbers and texts everywhere.
void fill(Screen& screen)
{
    screen.form.txtUnitType(0).set_text("Spears");
    screen.form.txtUnitNum(0).set_text("99999");
    for (int const option : {3, 6, 12, 19, 40, 29, 41}) screen.form.opt(option).set_selected(true);
    for (int row = 1; row <= screen.form.chkMisc.highest(); ++row) screen.form.chkMisc(row).set_state(1);
    screen.form.cmdRollAll_Click();
    screen.form.txtVictorCas.set_text("100.0");
    screen.form.lblWinBy.set_caption("64000");
    screen.form.lblOtherLevel.set_caption("1234567.5");
    QCoreApplication::processEvents();
}

QList<QWidget*> shown_widgets(Screen& screen)
{
    auto shown = screen.window.findChildren<QWidget*>();
    shown.removeIf([](QWidget* at) {
        auto const is = [&](char const* kind) { return at->inherits(kind); };
        return !at->isVisible() || at->width() <= 0 ||
               std::ranges::none_of(std::array{"QLabel", "QAbstractButton", "QGroupBox", "QLineEdit", "QTextEdit"}, is);
    });
    return shown;
}

QString name_of(QWidget const& widget)
{
    return widget.objectName().isEmpty() ? widget.parentWidget()->objectName() : widget.objectName();
}

/// The room that a widget has for its text, and the text.
std::pair<QRect, QString> content_of(QWidget& widget)
{
    if (auto* const label = qobject_cast<QLabel*>(&widget)) return {label->contentsRect(), label->text()};
    if (auto* const box = qobject_cast<QLineEdit*>(&widget)) // keeps two pixels free on either side
        return {box->rect().adjusted(2, 0, -2, 0), box->text()};
    if (auto* const button = qobject_cast<QAbstractButton*>(&widget)) {
        QStyleOptionButton option;
        option.initFrom(button);
        auto const part = qobject_cast<QCheckBox*>(button) != nullptr      ? QStyle::SE_CheckBoxContents
                          : qobject_cast<QRadioButton*>(button) != nullptr ? QStyle::SE_RadioButtonContents
                                                                           : QStyle::SE_PushButtonContents;
        return {button->style()->subElementRect(part, &option, button), button->text().replace("&&", "&")};
    }
    if (auto* const frame = qobject_cast<QGroupBox*>(&widget)) {
        QStyleOptionGroupBox option;
        option.initFrom(frame);
        option.text = frame->title();
        option.subControls = QStyle::SC_GroupBoxFrame | QStyle::SC_GroupBoxLabel;
        QRect room = frame->style()->subControlRect(QStyle::CC_GroupBox, &option, QStyle::SC_GroupBoxLabel, frame);
        room = {{room.left(), 0}, frame->rect().bottomRight()};
        for (auto* const result : frame->findChildren<QComboBox*>())
            if (result->y() == 0) room.setRight(result->x() - 1);
        return {room, frame->title()};
    }
    return {};
}

bool inside_its_parents(QWidget const& widget)
{
    QRect place = widget.geometry();
    for (QWidget const* parent = widget.parentWidget(); parent != nullptr; parent = parent->parentWidget()) {
        if (!parent->rect().contains(place)) return false;
        place.translate(parent->pos());
    }
    return true;
}

TEST(WindowLook, no_text_is_clipped_and_nothing_overlaps)
{
    for (double const share : {1.0, 1.25, 1.5}) {
        Screen screen{share};
        fill(screen);
        auto const place_of = [&](QWidget* at) { return QRect{at->mapTo(&screen.window, QPoint{}), at->size()}; };
        for (int const tab : tabs) {
            screen.choose_tab(tab);
            auto const widgets = shown_widgets(screen);
            EXPECT_GT(widgets.size(), 60U);
            for (QWidget* const widget : widgets) {
                SCOPED_TRACE(QString{"%1 at %2, tab %3"}.arg(name_of(*widget)).arg(share).arg(tab).toStdString());
                auto const [room, text] = content_of(*widget);
                auto const font = widget->fontMetrics();
                bool const wraps = widget->property("wordWrap").toBool(); // a label's
                int const height = wraps ? font.boundingRect(room, Qt::TextWordWrap, text).height() : font.height();
                EXPECT_TRUE(text.isEmpty() || height <= room.height());
                EXPECT_TRUE(wraps || font.horizontalAdvance(text) <= room.width()) << text.toStdString();
                EXPECT_TRUE(inside_its_parents(*widget));
                for (QWidget* const other : widgets) {
                    if (other == widget) break; // those behind it compare themselves with it
                    // The value of a misc row stands on the row's band, and the rows share their border lines.
                    bool const misc = name_of(*widget).contains("Misc") && name_of(*other).contains("Misc");
                    EXPECT_TRUE(misc || other->isAncestorOf(widget) || !place_of(widget).intersects(place_of(other)))
                        << "with " << name_of(*other).toStdString();
                }
            }
        }
    }
}

/// The best contrast of any pixel to the commonest colour.
double contrast_in(QImage const& picture)
{
    std::map<QRgb, int> counts;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x) ++counts[picture.pixel(x, y)];
    QColor const background{std::ranges::max_element(counts, {}, [](auto const& at) { return at.second; })->first};
    double best = 1;
    for (auto const& [colour, count] : counts) best = std::max(best, contrast_ratio(QColor{colour}, background));
    return best;
}

TEST(WindowLook, every_text_is_readable_in_light_dark_and_high_contrast)
{
    QPalette const usual = QApplication::palette();
    Screen screen{1.5}; // strokes of full colour
    fill(screen);
    QPalette dark{QColor{53, 53, 56}, QColor{45, 45, 48}};
    dark.setColor(QPalette::Base, QColor{30, 30, 30});
    QPalette high_contrast{Qt::black, Qt::black};
    high_contrast.setColor(QPalette::Base, Qt::black);
    for (QPalette const& palette : {usual, dark, high_contrast}) {
        QApplication::setPalette(palette);
        QCoreApplication::processEvents();
        for (int const tab : tabs) {
            screen.choose_tab(tab);
            QPixmap const window = screen.window.grab();
            for (QWidget* const widget : shown_widgets(screen)) {
                auto const [room, text] = content_of(*widget);
                if (text.trimmed().isEmpty()) continue;
                QRect place{widget->mapTo(&screen.window, room.topLeft()), room.size()};
                if (qobject_cast<QGroupBox*>(widget) != nullptr) place.setHeight(widget->fontMetrics().height());
                place.adjust(2, 2, -2, -2);
                qreal const dots = window.devicePixelRatio();
                QRect const in_dots{(place.topLeft().toPointF() * dots).toPoint(), place.size() * dots};
                EXPECT_GE(contrast_in(window.copy(in_dots).toImage()), least_contrast)
                    << name_of(*widget).toStdString() << " on " << palette.color(QPalette::Window).name().toStdString();
            }
        }
    }
    QApplication::setPalette(usual);
}

TEST(WindowLook, neighbouring_misc_rows_differ_and_odd_ones_are_light_grey)
{
    Screen screen;
    auto const behind = [&](char const* row) {
        auto& box = screen.named<QCheckBox>(row);
        QPixmap const panel = box.parentWidget()->grab();
        return panel.toImage().pixelColor(
            (QPointF{box.width() / 2.0, box.y() + 3.0} * panel.devicePixelRatio()).toPoint());
    };
    for (char const* const row : {"chkMisc(1)", "chkMisc(3)"}) EXPECT_EQ(behind(row), QColor(240, 240, 240));
    EXPECT_GE(std::abs(behind("chkMisc(2)").lightness() - 240), 8);
}

/// The names of the widgets that the Tab key reaches, from the tab strip on.
QStringList tab_walk(Screen& screen)
{
    QStringList names;
    auto* const first = &screen.named<QWidget>("TabStrip");
    first->setFocus();
    do {
        names.push_back(screen.window.focusWidget()->objectName());
        QTest::keyClick(screen.window.focusWidget(), Qt::Key_Tab);
    } while (screen.window.focusWidget() != first && names.size() < 500);
    return names;
}

TEST(WindowLook, the_tab_key_goes_in_reading_order_through_everything)
{
    Screen screen;
    // The options of one frame are one stop; the arrow keys go on from there.
    EXPECT_EQ(
        tab_walk(screen),
        spelled_out(
            "TabStrip txtArmyName cmdSaveArmy cmdLoadArmy txtTotal txtUnitType,txtUnitNum(0-7) txtTotalNo cmbOpt(5) opt(25) "
            "cmbOpt(1) opt(4) cmbLevel cmbOpt(0) opt(0) cmbOpt(2) opt(7) cmbOpt(3) opt(13) cmbOpt(7) opt(41) cmbOpt(4) opt(20) " +
            QString{"chkMisc,cmbMisc(1-%1)"}.arg(screen.form.chkMisc.highest())));
    screen.choose_tab(3);
    EXPECT_EQ(
        tab_walk(screen),
        spelled_out(
            "TabStrip txtTotalMod(0-1) cmdRollAll cmdRoll(0-1) txtResult(0-1) txtLoserCasualty txtVictorCasRoll "
            "cmdRollCasualty txtCasRollBonus chkPlus5 chkMinus5 cmdRollVictorCas txtVictorCasPercent txtVictorCas "
            "txtAName,txtANum,txtLoses(0-7) cmdApplyCasualties(0) txtAName,txtANum,txtLoses(8-15) cmdApplyCasualties(1) "
            "txtBattleResults txtVictorDesc cmdSimulate"));
}

TEST(WindowLook, every_widget_that_takes_the_keyboard_has_a_name_of_its_own)
{
    Screen screen;
    screen.choose_tab(3);
    std::set<QString> names;
    for (QWidget* const widget : screen.window.findChildren<QWidget*>()) {
        QString const name = widget->accessibleName();
        if (widget->parentWidget()->inherits("QComboBox") || (widget->focusPolicy() & Qt::TabFocus) == 0) continue;
        EXPECT_TRUE(!name.isEmpty() && names.insert(name).second) << name_of(*widget).toStdString();
    }
    EXPECT_EQ(screen.named<QWidget>("txtLoses(10)").accessibleName(), "Side B, unit 3, loses");
}

TEST(SmallScreen, every_control_can_be_scrolled_to)
{
    Screen screen{1.5};
    EXPECT_LE(screen.window.height(), 600);
    EXPECT_EQ(screen.form.FrameMisc.box(), (Frame::Box{6360, 360, 6120, 8520}));
    for (int const tab : {1, 3}) {
        screen.choose_tab(tab);
        for (QString const& name : tab_walk(screen)) {
            auto& widget = screen.named<QWidget>(name);
            widget.setFocus();
            QTest::keyClick(&widget, Qt::Key_Tab);
            QTest::keyClick(screen.window.focusWidget(), Qt::Key_Backtab);
            EXPECT_TRUE(inside_its_parents(widget)) << name.toStdString();
        }
    }
}

} // namespace

} // namespace warhost
