#include "ui/qt/screens/window.h"

#include "army/value_conversion.h"
#include "ui/menus.h"
#include "ui/qt/dialogs/qt_desktop.h"
#include "ui/qt/look/page_style.h"
#include "ui/qt/screens/army_drop.h"
#include "ui/qt/screens/army_page.h"
#include "ui/qt/screens/combat_page.h"
#include "ui/qt/screens/misc_panel.h"
#include "ui/qt/screens/tab_page.h"
#include "ui/qt/widgets/binding.h"
#include "ui/qt/widgets/focus_ring.h"
#include "ui/qt/widgets/text.h"

#include <QApplication>
#include <QCloseEvent>
#include <QLineEdit>
#include <QMenuBar>
#include <QScreen>
#include <QSessionManager>
#include <QShortcut>
#include <QSignalBlocker>
#include <QStyle>

#include <algorithm>
#include <array>
#include <chrono>

namespace warhost {

namespace {

constexpr double created_width = 12840; // twips, like the heights and margins below
constexpr double created_height = 9600;
// Pixels of the base size.
constexpr int tab_height = 22;
constexpr int strip_height = 25;
constexpr std::chrono::milliseconds put_off{100};

using MenuHandler = void (*)(Main&);

// In the order of the menus' items.
constexpr std::array<MenuHandler, 3> file_handlers{
    [](Main& form) { form.mnuLoad_Click(); },
    [](Main& form) { form.mnuSave_Click(); },
    [](Main& form) { form.mnuQuit_Click(); },
};
constexpr std::array<MenuHandler, 2> help_handlers{
    [](Main& form) { form.mnuHelpContents_Click(); },
    [](Main& form) { form.mnuAbout_Click(); },
};
static_assert(file_handlers.size() == file_menu.size() && help_handlers.size() == help_menu.size());

/// The size of a screen at the window's created size, without the space kept free on the right and below.
QSize content_size(Frame const& frame, Scale const& scale)
{
    constexpr double margin = 60;
    auto const& box = frame.box();
    return scale.from_twips(created_width - box.Left - 4 * margin, created_height - box.Top - 4 * margin);
}

} // namespace

Window::Window(Main& form, QtDesktop& desktop) : form_(form), desktop_(desktop), client_(new PageGround{strip_height})
{
    setWindowTitle(program_title);
    desktop.attach(this);
    setCentralWidget(client_);
    follow_page_palette(*client_);
    make_menus();
    fit_to_screen();
    form.Form_Load();
    make_tab_strip();
    make_screens();
    new FocusRing{*client_};
    make_tab_keys();
    client_->installEventFilter(this);
    close_later_.setSingleShot(true);
    connect(&close_later_, &QTimer::timeout, this, &QWidget::close);
    connect(qApp, &QGuiApplication::commitDataRequest, this, [this](QSessionManager& session) {
        if (!session_may_end(session.allowsInteraction())) session.cancel();
    });
    focus_first_control();
}

Window::~Window() { desktop_.attach(nullptr); }

void Window::make_menus()
{
    auto const add = [](QMenu& menu, std::string_view name, std::string_view caption) {
        auto* const action = menu.addAction(to_qt(caption));
        action->setObjectName(to_qt(name));
        return action;
    };
    auto const add_menu = [this](char const* name, char const* caption) {
        QMenu* const menu = menuBar()->addMenu(caption);
        menu->setObjectName(name);
        return menu;
    };
    auto const fill = [&](QMenu& menu, auto const& items, auto const& handlers) {
        for (std::size_t k = 0; k < items.size(); ++k) {
            QAction* const action = add(menu, items[k].name, items[k].caption);
            action->setShortcut(QKeySequence{to_qt(items[k].shortcut)});
            connect(action, &QAction::triggered, this, [this, handler = handlers[k]] {
                if (takes_input(*client_)) handler(form_);
            });
        }
    };
    fill(*add_menu("mnuFile", "&File"), file_menu, file_handlers);
    QMenu* const links = add_menu("mnuWebLinks", "&Web Links");
    for (auto const& link : web_links) {
        bool const separates = link.caption == "-";
        QAction* const action =
            add(*links, "mnuWeb(" + std::to_string(link.index) + ")", separates ? std::string_view{} : link.caption);
        action->setSeparator(separates);
        connect(action, &QAction::triggered, this, [this, index = link.index] {
            if (takes_input(*client_)) form_.mnuWeb_Click(index);
        });
    }
    fill(*add_menu("mnuHelp", "&Help"), help_menu, help_handlers);
}

void Window::fit_to_screen()
{
    constexpr QSize window_frame{8, 40}; // an estimate: the window has no frame yet
    QSize const largest = screen()->availableSize() - window_frame;
    QSize const room = largest - QSize{0, menuBar()->sizeHint().height()};
    QFont const font = fitting_font(QApplication::font(), created_width, created_height, room);
    scale_ = Scale{pixel_height(font)};
    if (pixel_height(font) != pixel_height(QApplication::font())) setFont(font);
    desktop_.set_scale(scale_);

    QSize size = scale_.from_twips(created_width, created_height);
    scrolls_ = size.width() > room.width() || size.height() > room.height();
    if (scrolls_) {
        int const bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent);
        extra_ = {size.height() > room.height() ? bar : 0, 0};
        if (size.width() + extra_.width() > room.width()) extra_.setHeight(bar);
    }
    desktop_.set_client_size(size);
    resize((size + extra_ + QSize{0, menuBar()->sizeHint().height()}).boundedTo(largest));
}

void Window::make_tab_strip()
{
    tabs_ = new TabPage{scale_.from_base(tab_height), client_};
    name_after(form_.TabStrip, *tabs_);
    tabs_->setAccessibleName("Screens");
    for (auto const& tab : tab_captions) {
        int const place = tabs_->addTab(to_caption(tab.caption));
        tabs_->setTabToolTip(place, to_qt(tab.tooltip));
    }
    connect(tabs_, &QTabBar::currentChanged, this, [this](int place) { choose_tab(place + 1); });
    connect(tabs_, &QTabBar::tabBarClicked, this, [this](int place) {
        if (place >= 0 && place == tabs_->currentIndex()) choose_tab(place + 1);
    });
    form_.TabStrip.show = [this] { place_tab_strip(); };
    place_tab_strip();
}

void Window::make_tab_keys()
{
    struct Keys {
        char const* keys;
        int step;
    };
    for (auto const& [keys, step] :
         {Keys{"Ctrl+Tab", 1}, {"Ctrl+PgDown", 1}, {"Ctrl+Shift+Tab", -1}, {"Ctrl+PgUp", -1}}) {
        connect(new QShortcut{QKeySequence{keys}, this}, &QShortcut::activated, this, [this, by = step] {
            tabs_->setCurrentIndex((tabs_->currentIndex() + by + tabs_->count()) % tabs_->count());
        });
    }
}

void Window::make_screens()
{
    army_ = new ArmyPage{form_,
                         [this](QString const& text) { return level_in_digits(text); },
                         scale_,
                         content_size(form_.FrameArmy, scale_),
                         [this] { return form_.add_misc_row(); },
                         client_};
    form_.FrameArmy.show = [this] { place_screen(form_.FrameArmy, *army_); };
    form_.FrameCombat.show = [this] {
        if (combat_ == nullptr && form_.FrameCombat.visible()) make_combat_screen();
        if (form_.FrameCombat.visible()) show_army_names();
        if (combat_ != nullptr) place_screen(form_.FrameCombat, *combat_);
    };
    form_.FrameMisc.show = [this] { place_misc_panel(); };
    for (Frame* const frame : {&form_.FrameArmy, &form_.FrameCombat, &form_.FrameMisc}) frame->show();
}

void Window::make_combat_screen()
{
    combat_ = new CombatPage{form_, scale_, content_size(form_.FrameCombat, scale_), client_};
}

void Window::show_army_names()
{
    combat_->show_army_names({beginning_of(form_.ArmyA.Name), beginning_of(form_.ArmyB.Name)});
}

/// The place of a frame. If the screens scroll, it ends margins, in pixels of the base size, before the client area.
QRect Window::place_of(Frame const& frame, int right_margin, int lower_margin) const
{
    auto const& box = frame.box();
    QPoint const place{scale_.from_twips(box.Left), scale_.from_twips(box.Top)};
    QSize const size = scale_.from_twips(box.Width, box.Height) + extra_;
    QSize const room{client_->width() - place.x() - scale_.from_base(right_margin),
                     client_->height() - place.y() - scale_.from_base(lower_margin)};
    return {place, scrolls_ ? size.boundedTo(room) : size};
}

void Window::place_tab_strip()
{
    tabs_->setGeometry(place_of(form_.TabStrip, 4, 4));
    QSignalBlocker const only_shown{tabs_};
    tabs_->setCurrentIndex(form_.TabStrip.position() - 1);
    tabs_->update();
}

/// A screen that scrolls begins below the tab strip, so that it does not cover the strip's line.
void Window::place_screen(Frame const& frame, ScreenArea& screen)
{
    auto const& box = frame.box();
    QRect room = place_of(frame, 8, 0);
    if (scrolls_) room.setTop(std::max(room.top(), scale_.from_base(strip_height)));
    screen.place(room, scale_.from_twips(box.Width, box.Height), scrolls_);
    screen.setVisible(frame.visible());
}

void Window::place_misc_panel()
{
    auto const& box = form_.FrameMisc.box();
    army_->misc_panel().setGeometry(
        QRect{{scale_.from_twips(box.Left), scale_.from_twips(box.Top)}, scale_.from_twips(box.Width, box.Height)});
}

/// Screens that scroll keep their created size whatever the size of the window.
void Window::follow_size()
{
    QSize size = client_->size();
    if (scrolls_) size = (size - extra_).expandedTo(scale_.from_twips(created_width, created_height));
    desktop_.set_client_size(size);
    form_.Form_Resize();
}

void Window::choose_tab(int position)
{
    if (!takes_input(*tabs_)) return place_tab_strip();
    form_.TabStrip.choose(position);
    focus_first_control();
}

void Window::focus_first_control()
{
    if (form_.FrameArmy.visible()) army_->findChild<QLineEdit*>("txtArmyName")->setFocus(Qt::OtherFocusReason);
    else if (combat_ != nullptr) combat_->focus_first_step();
}

QString Window::level_in_digits(QString const& text)
{
    NumberFormat const format = desktop_.number_format();
    return to_qt(general_text(TextToSingle(text.toStdString(), format), format));
}

bool Window::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == client_ && event->type() == QEvent::Resize) follow_size();
    return QMainWindow::eventFilter(watched, event);
}

void Window::showEvent(QShowEvent* event)
{
    QMainWindow::showEvent(event);
    if (drop_ == nullptr) drop_ = new ArmyDrop{*this, [this](auto const& path) { form_.load_dropped_army(path); }};
    follow_size();
}

void Window::changeEvent(QEvent* event)
{
    QMainWindow::changeEvent(event);
    if (tabs_ == nullptr) return;
    if (event->type() == QEvent::WindowStateChange) follow_size();
}

void Window::closeEvent(QCloseEvent* event)
{
    if (waits_for_disk()) {
        close_later_.start(put_off); // the user must see the result of a save
        return event->ignore();
    }
    if (!confirms_quit()) return event->ignore();
    desktop_.window_was_closed();
    for (QWidget* const other : QApplication::topLevelWidgets()) {
        if (other != this && other->isVisible()) other->close(); // an open manual would keep the program running
    }
    if (desktop_.simulates()) desktop_.end_program(); // the rest of a long run would also keep it running
}

bool Window::waits_for_disk() const { return !isEnabled() && !desktop_.simulates(); }

/// A second request while the question is open is rejected; after a Yes there is no further question.
bool Window::confirms_quit()
{
    if (quits_ || asks_to_quit_) return quits_;
    asks_to_quit_ = true;
    quits_ = form_.Form_QueryUnload();
    asks_to_quit_ = false;
    return quits_;
}

bool Window::session_may_end(bool may_ask)
{
    if (waits_for_disk()) return false;
    if (!may_ask) return true;
    if (!confirms_quit()) return false;
    close_later_.start(0); // after the session manager has its answer
    return true;
}

} // namespace warhost
