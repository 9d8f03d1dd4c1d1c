// Nothing is clipped, everything is readable, reachable and named.
#include "window_fixture.h"

#include "ui/qt/look/colour_scheme.h"
#include "ui/qt/look/colours.h"
#include "ui/qt/look/contrast.h"
#include "ui/qt/widgets/caption_frame.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPaintEvent>
#include <QPushButton>
#include <QRadioButton>
#include <QStyleOptionButton>
#include <QTextEdit>

#include <algorithm>
#include <cstdlib>
#include <map>
#include <set>

namespace warhost {

namespace {

constexpr std::array tabs{1, 2, 3};

QPalette high_contrast()
{
    QPalette made{Qt::black, Qt::black};
    made.setColor(QPalette::Base, Qt::black);
    for (auto const role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) made.setColor(role, Qt::white);
    made.setColor(QPalette::Highlight, Qt::yellow);
    made.setColor(QPalette::HighlightedText, Qt::black);
    return made;
}

/// Until the test ends.
struct Theme {
    QPalette const usual = QApplication::palette();
    explicit Theme(QPalette const& palette) { show(palette); }
    ~Theme() { show(usual); }
    static void show(QPalette const& palette)
    {
        QApplication::setPalette(palette);
        QCoreApplication::processEvents();
    }
};

/// A battle with long numbers and names everywhere.
void fill(Screen& screen)
{
    std::string const name(70, 'm');
    for (int const side : {2, 1}) {
        screen.form.TabStrip.choose(side);
        screen.form.txtArmyName.set_text(name);
        for (int row = 0; row < unit_rows; ++row) screen.form.txtUnitType(row).set_text(name);
        screen.form.txtUnitNum(0).set_text("2000000000");
        screen.form.txtUnitNum(1).set_text("12 men");
        screen.form.cmbLevel.set_text("12.75");
    }
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
    if (auto* const box = qobject_cast<QLineEdit*>(&widget)) { // keeps two pixels free on either side
        bool const cut = !box->alignment().testFlag(Qt::AlignRight) && (box->hasFocus() || !box->toolTip().isEmpty());
        return {box->rect().adjusted(2, 0, -2, 0), cut ? QString{} : box->text()};
    }
    if (auto* const button = qobject_cast<QAbstractButton*>(&widget)) {
        QStyleOptionButton option;
        option.initFrom(button);
        auto const part = qobject_cast<QCheckBox*>(button) != nullptr      ? QStyle::SE_CheckBoxContents
                          : qobject_cast<QRadioButton*>(button) != nullptr ? QStyle::SE_RadioButtonContents
                                                                           : QStyle::SE_PushButtonContents;
        return {button->style()->subElementRect(part, &option, button), button->text().replace("&&", "&")};
    }
    if (auto* const frame = qobject_cast<CaptionFrame*>(&widget)) {
        QRect room = frame->rect();
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
    for (double const share : {1.0, 12.0 / 11, 13.0 / 11, 1.25, 1.5, 17.0 / 11}) {
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
                auto* const section = qobject_cast<CaptionFrame*>(widget);
                auto const font = section != nullptr ? QFontMetrics{section->caption_font()} : widget->fontMetrics();
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

TEST(Contrast, is_that_of_the_accessibility_guidelines)
{
    EXPECT_NEAR(contrast_ratio(Qt::black, Qt::white), 21, 0.001);
    EXPECT_NEAR(contrast_ratio(QColor{0x76, 0x76, 0x76}, Qt::white), 4.54, 0.005);
    EXPECT_NEAR(contrast_ratio(Qt::white, Qt::blue), 8.59, 0.005);
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
    Screen screen{1.5}; // strokes of full colour
    fill(screen);
    Theme const theme{QApplication::palette()};
    for (QPalette const& palette : {theme.usual, dark_palette(), high_contrast()}) {
        Theme::show(palette);
        for (int const tab : tabs) {
            screen.choose_tab(tab);
            QPixmap const window = screen.window.grab();
            for (QWidget* const widget : shown_widgets(screen)) {
                auto const [room, text] = content_of(*widget);
                if (text.trimmed().isEmpty()) continue;
                QRect place{widget->mapTo(&screen.window, room.topLeft()), room.size()};
                if (qobject_cast<CaptionFrame*>(widget) != nullptr) place.setHeight(widget->fontMetrics().height());
                place.adjust(2, 2, -2, -2);
                qreal const dots = window.devicePixelRatio();
                QRect const in_dots{(place.topLeft().toPointF() * dots).toPoint(), place.size() * dots};
                EXPECT_GE(contrast_in(window.copy(in_dots).toImage()), least_contrast)
                    << name_of(*widget).toStdString() << " on " << palette.color(QPalette::Window).name().toStdString();
            }
        }
    }
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

TEST(Colours, are_computed_from_the_palette_and_stand_out)
{
    struct {
        char const* name;
        QColor Colours::*member;
        char const *light, *dark;
    } const rows[] = {
        {"page", &Colours::page, "#f9f9f9", "#232427"},     {"dim", &Colours::dim, "#646464", "#9d9e9e"},
        {"firm", &Colours::firm, "#8c8c8c", "#7a7a7c"},     {"soft", &Colours::soft, "#bebebe", "#555658"},
        {"hair", &Colours::hair, "#d9d9d9", "#424345"},     {"band", &Colours::band, "#ededed", "#2e2f32"},
        {"stripe", &Colours::stripe, "#f0f0f0", "#303134"}, {"tie", &Colours::tie, "#c8c8c8", "#4a4a4d"},
        {"ring", &Colours::ring, "#308cc6", "#4c8dd6"},     {"strong", &Colours::strong, "#2a79ab", "#3f74b0"},
        {"hint", &Colours::hint, "#2976a7", "#5290d6"},
    };
    auto const near = [](QColor const& one, QColor const& other) { // a hundredth of a mixture may be rounded
        return std::max({std::abs(one.red() - other.red()), std::abs(one.green() - other.green()),
                         std::abs(one.blue() - other.blue())}) <= 2;
    };
    Colours const light = colours_of(QApplication::style()->standardPalette());
    Colours const dark = colours_of(dark_palette());
    for (auto const& [name, member, in_light, in_dark] : rows) {
        EXPECT_TRUE(near(light.*member, QColor{in_light})) << name << (light.*member).name().toStdString();
        EXPECT_TRUE(near(dark.*member, QColor{in_dark})) << name << (dark.*member).name().toStdString();
    }
    for (Colours const& of : {light, dark, colours_of(high_contrast())}) {
        for (QColor const& ground : {of.page, of.stripe, of.band})
            EXPECT_GE(contrast_ratio(of.dim, ground), least_contrast);
        for (QColor const& text : {of.hint, of.side[0], of.side[1]})
            EXPECT_GE(contrast_ratio(text, of.page), least_contrast);
        for (QColor const& mark : {of.ring, of.firm}) {
            for (QColor const& below : {of.page, of.stripe}) EXPECT_GE(contrast_ratio(mark, below), 3);
        }
        EXPECT_GE(contrast_ratio(of.text_on_strong, of.strong), 4.5);
        EXPECT_GE(contrast_ratio(of.side[0], of.tint[0]), 4.5);
        EXPECT_GE(contrast_ratio(of.side[1], of.tint[1]), 4.5);
    }
}

TEST(Colours, are_the_platforms_own_unless_it_only_asks_for_dark)
{
    QPalette const plain_dark{Qt::darkGray, Qt::black};
    EXPECT_EQ(palette_for(plain_dark, plain_dark), dark_palette());
    EXPECT_EQ(palette_for(plain_dark, high_contrast()), plain_dark);
    EXPECT_EQ(palette_for(Theme{QPalette{}}.usual, QApplication::palette()), QApplication::palette());
}

/// The one button that is painted strong.
std::string strong_button(Screen& screen)
{
    std::string found;
    for (auto* const button : screen.window.findChildren<QPushButton*>()) {
        if (button->property("strong").toBool()) found += button->objectName().toStdString();
    }
    return found;
}

TEST(CombatScreen, shows_what_to_press_next)
{
    Screen screen;
    screen.choose_tab(3);
    Main& form = screen.form;
    auto const hint = [&](char const* frame) {
        return !screen.named<QWidget>(frame).accessibleDescription().isEmpty();
    };
    EXPECT_EQ(screen.window.focusWidget()->objectName(), "cmdRollAll");
    EXPECT_EQ(strong_button(screen), "cmdRollAll");
    form.txtResult(0).set_text("9");
    form.txtCasRollBonus.set_text("0");
    form.txtVictorCasRoll.set_text("1"); // a natural 1 checks the box
    EXPECT_EQ(strong_button(screen), "cmdRollCasualty");
    EXPECT_TRUE(hint("Frame7"));
    form.txtVictorCasPercent.set_text("50"); // not asked for yet
    EXPECT_EQ(strong_button(screen), "cmdRollCasualty");
    form.txtVictorCasRoll.set_text("7");
    EXPECT_EQ(strong_button(screen), "cmdRollVictorCas");
    form.txtVictorCasPercent.set_text("50");
    EXPECT_EQ(strong_button(screen), "cmdRollAll");
    EXPECT_FALSE(hint("Frame7"));

    form.chkMinus5.set_state(0);
    screen.named<QCheckBox>("chkPlus5").click(); // by hand: nothing was rolled
    EXPECT_EQ(strong_button(screen), "cmdRollAll");
    screen.named<QCheckBox>("chkPlus5").click();
    form.txtVictorCasRoll.set_text("20");
    EXPECT_EQ(strong_button(screen), "cmdRollCasualty");
    form.chkPlus5.set_state(0);
    EXPECT_EQ(strong_button(screen), "cmdRollAll");

    auto const state = [&](int Index) {
        return screen.named<QWidget>(QString{"cmdApplyCasualties(%1)"}.arg(Index))
            .accessibleDescription()
            .toStdString();
    };
    form.txtLoserCasualty.set_text("20");
    EXPECT_EQ(state(1), "Loser loses 20%");
    form.cmdApplyCasualties(1).press();
    EXPECT_EQ(state(1), "\u2713 Applied");
    EXPECT_EQ(state(0).substr(0, 12), "Victor loses");
    form.txtLoses(8).set_text("3");
    EXPECT_EQ(state(1), "Loser loses 20%");
    form.txtResult(1).set_text("12"); // B wins now, and its losses are not known yet
    EXPECT_EQ(state(1), "");
    form.txtVictorCasPercent.set_text("50");
    EXPECT_EQ(state(1).substr(0, 12), "Victor loses");

    form.cmdSimulate.press();
    EXPECT_TRUE(hint("Frame6"));
    form.cmdApplyCasualties(0).press();
    EXPECT_TRUE(hint("Frame6"));
    form.cmdRollAll.press();
    EXPECT_FALSE(hint("Frame6"));
}

TEST(WindowLook, a_text_that_does_not_fit_or_counts_as_something_else_is_explained)
{
    Screen screen;
    QString const long_name(70, 'm');
    auto& name = screen.named<QLineEdit>("txtArmyName");
    QTest::keyClicks(&name, long_name);
    EXPECT_TRUE(name.toolTip().isEmpty());
    auto& soldiers = screen.named<QLineEdit>("txtUnitNum(0)");
    soldiers.setFocus();
    EXPECT_EQ(name.accessibleDescription(), long_name);
    struct {
        char const *typed, *tooltip;
    } const rows[] = {
        {"12 men", "Counts as 12"}, {"+12", ""}, {"1,000", "Counts as 1"}, {"12", ""}, {"Pikes", "Counts as 0"}};
    for (auto const& [typed, tooltip] : rows) {
        soldiers.clear();
        QTest::keyClicks(&soldiers, typed);
        EXPECT_EQ(soldiers.toolTip(), tooltip) << typed;
        EXPECT_EQ(soldiers.text(), typed);
    }
    auto& others = screen.named<QLineEdit>("txtUnitNum(1)");
    QTest::mouseClick(&others, Qt::LeftButton, {}, {2, others.height() / 2});
    QTest::keyClicks(&others, "200");
    EXPECT_EQ(others.text(), "200");
    screen.choose_tab(3);
    screen.form.txtTotalMod(0).set_text("2 or 3");
    EXPECT_EQ(screen.named<QLineEdit>("txtTotalMod(0)").accessibleDescription(), long_name + ". Counts as 2");
}

TEST(WindowLook, the_usual_keys_change_tabs_and_the_focus_follows)
{
    Screen screen;
    struct {
        Qt::Key key;
        Qt::KeyboardModifiers with;
        int tab;
        char const* focus;
    } const rows[] = {{Qt::Key_PageUp, Qt::ControlModifier, 3, "cmdRollAll"},
                      {Qt::Key_Tab, Qt::ControlModifier, 1, "txtArmyName"},
                      {Qt::Key_PageDown, Qt::ControlModifier, 2, "txtArmyName"},
                      {Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier, 1, "txtArmyName"}};
    for (auto const& [key, with, tab, focus] : rows) {
        QTest::keyClick(screen.window.focusWidget(), key, with);
        EXPECT_EQ(screen.form.TabStrip.position(), tab);
        EXPECT_EQ(screen.window.focusWidget()->objectName(), focus);
    }
}

TEST(WindowLook, a_key_repaints_only_what_it_changes)
{
    struct Painted : QObject {
        QWidget& window;
        QRegion region;
        explicit Painted(QWidget& in) : window(in) { qApp->installEventFilter(this); }
        bool eventFilter(QObject* watched, QEvent* event) override
        {
            auto* const widget = qobject_cast<QWidget*>(watched);
            if (event->type() == QEvent::Paint && widget != nullptr && !widget->isWindow())
                region += static_cast<QPaintEvent*>(event)->region().translated(widget->mapTo(&window, QPoint{}));
            return false;
        }
    };
    Screen screen;
    fill(screen);
    screen.choose_tab(1);
    auto& soldiers = screen.named<QLineEdit>("txtUnitNum(3)");
    soldiers.setFocus();
    QCoreApplication::processEvents();
    Painted painted{screen.window};
    QTest::keyClicks(&soldiers, "7");
    QCoreApplication::processEvents();
    int area = 0;
    for (QRect const& part : painted.region) area += part.width() * part.height();
    EXPECT_GT(area, 0);
    EXPECT_LT(5 * area, screen.window.width() * screen.window.height());
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

TEST(WindowLook, the_tab_key_visits_everything_in_reading_order)
{
    Screen screen;
    // The options of one frame are one stop; the arrow keys go on from there.
    EXPECT_EQ(
        tab_walk(screen),
        spelled_out("TabStrip txtArmyName cmdSaveArmy cmdLoadArmy txtTotal txtUnitType,txtUnitNum(0-7) txtTotalNo "
                    "cmbOpt(5) opt(25) cmbOpt(1) opt(4) cmbLevel cmbOpt(0) opt(0) cmbOpt(2) opt(7) cmbOpt(3) opt(13) "
                    "cmbOpt(7) opt(41) cmbOpt(4) opt(20) " +
                    QString{"chkMisc,cmbMisc(1-%1)"}.arg(screen.form.chkMisc.highest())));
    screen.choose_tab(3);
    EXPECT_EQ(
        tab_walk(screen),
        spelled_out(
            "TabStrip txtTotalMod(0-1) cmdRollAll cmdRoll(0-1) txtResult(0-1) txtLoserCasualty txtVictorCasRoll "
            "cmdRollCasualty txtCasRollBonus chkPlus5 chkMinus5 cmdRollVictorCas txtVictorCasPercent txtVictorCas "
            "txtAName,txtANum,txtLoses(0-7) cmdApplyCasualties(0) "
            "txtAName,txtANum,txtLoses(8-15) cmdApplyCasualties(1) "
            "txtBattleResults txtVictorDesc cmdSimulate"));
}

TEST(WindowLook, every_focusable_widget_has_a_name_of_its_own)
{
    Screen screen;
    screen.choose_tab(3);
    std::set<QString> names;
    for (QWidget* const widget : screen.window.findChildren<QWidget*>()) {
        QString const name = widget->accessibleName();
        if (widget->parentWidget()->inherits("QComboBox") || (widget->focusPolicy() & Qt::TabFocus) == 0) continue;
        EXPECT_NE(name, "") << name_of(*widget).toStdString();
        EXPECT_TRUE(names.insert(name).second) << name.toStdString();
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
