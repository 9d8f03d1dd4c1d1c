#include "ui/qt/help/help_viewer.h"

#include "ui/qt/help/contents_pane.h"
#include "ui/qt/help/find_bar.h"
#include "ui/qt/help/help_page.h"
#include "ui/qt/look/page_style.h"
#include "ui/qt/look/scale.h"

#include <QAction>
#include <QMenuBar>
#include <QScreen>
#include <QSplitter>
#include <QStyle>
#include <QToolBar>
#include <QToolButton>
#include <QUrl>
#include <QVBoxLayout>

#include <algorithm>
#include <optional>
#include <utility>

namespace warhost {

namespace {

// At the base font; a larger font makes the window larger, up to the size of the screen.
constexpr QSize base_size{860, 680};
constexpr int base_contents_width = 260;

void add_to_bar(QToolBar& bar, QAction* action, char const* spoken, std::optional<QStyle::StandardPixmap> icon = {})
{
    if (icon) action->setIcon(bar.style()->standardIcon(*icon));
    action->setIconVisibleInMenu(false);
    bar.addAction(action);
    auto* const button = qobject_cast<QToolButton*>(bar.widgetForAction(action));
    button->setAccessibleName(spoken);
    button->setFocusPolicy(Qt::TabFocus);
}

} // namespace

QPoint place_beside(QRect const& other, QSize size, QRect const& room)
{
    int const right = room.right() + 1 - size.width();
    int const bottom = room.bottom() + 1 - size.height();
    int const level = std::clamp(other.top(), room.top(), std::max(room.top(), bottom));
    for (int const left : {other.right() + 1, other.left() - size.width()}) {
        if (room.contains(QRect{{left, level}, size})) return {left, level};
    }
    auto const covered = [&](QPoint const& place) {
        QRect const both = other & QRect{place, size};
        return both.width() * both.height();
    };
    return std::min({QPoint{right, room.top()}, {room.left(), room.top()}, {right, bottom}, {room.left(), bottom}},
                    [&](auto const& one, auto const& another) { return covered(one) < covered(another); });
}

HelpViewer::HelpViewer(QString const& folder, QWidget const* main_window)
    : folder_(folder),
      contents_(new ContentsPane{folder, entries_}),
      page_(new HelpPage{folder}),
      find_bar_(new FindBar{*page_})
{
    setObjectName("helpViewer");
    setWindowTitle("Warhost Help");
    setAttribute(Qt::WA_QuitOnClose, false);
    arrange(main_window != nullptr && main_window->isVisible() ? *main_window : *this);
    make_actions();

    connect(contents_, &ContentsPane::entry_chosen, page_,
            [this](HelpEntry const& entry) { page_->show_page(entry.page, entry.anchor); });
    connect(contents_, &ContentsPane::hit_chosen, this, [this](HelpEntry const& page, int begin, int end) {
        page_->show_page(page.page, {});
        page_->mark(begin, end);
    });
    connect(contents_, &ContentsPane::search_closed, page_, [this] { page_->setFocus(Qt::OtherFocusReason); });
    connect(page_, &QTextBrowser::sourceChanged, this, &HelpViewer::follow_page);
}

/// other: the window that this one is placed beside, or this one itself.
void HelpViewer::arrange(QWidget const& other)
{
    auto* const side = new QWidget;
    auto* const column = new QVBoxLayout{side};
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(page_, 1);
    column->addWidget(find_bar_);

    auto* const splitter = new QSplitter;
    splitter->setObjectName("helpSplitter");
    splitter->setAutoFillBackground(true);
    splitter->addWidget(contents_);
    splitter->addWidget(side);
    splitter->setStretchFactor(1, 1);
    splitter->setChildrenCollapsible(false);
    setCentralWidget(splitter);
    follow_page_palette(*splitter);

    double const scale = growth(font());
    QRect const room = other.screen()->availableGeometry();
    QSize const frame = other.frameSize() - other.size();
    resize((QSizeF{base_size} * scale).toSize().boundedTo(room.size() - frame));
    if (&other != this) move(place_beside(other.frameGeometry(), size() + frame, room));
    int const contents_width = static_cast<int>(base_contents_width * scale);
    splitter->setSizes({contents_width, std::max(1, width() - contents_width)});
}

void HelpViewer::open(int topic)
{
    read_contents();
    show_topic(topic);
    come_forward();
}

void HelpViewer::open(QString const& address)
{
    read_contents();
    if (entries_.empty()) page_->show_missing_manual();
    else page_->show_page(address.section('#', 0, 0), address.section('#', 1));
    come_forward();
}

void HelpViewer::read_contents()
{
    if (!entries_.empty()) return;
    entries_ = read_help_contents(folder_);
    contents_->fill();
}

void HelpViewer::come_forward()
{
    contents_->close_search();
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
    page_->setFocus(Qt::OtherFocusReason);
}

void HelpViewer::show_topic(int topic)
{
    if (entries_.empty()) {
        page_->show_missing_manual();
        return;
    }
    auto const found = topic == 0 ? entries_.begin()
                                  : std::find_if(entries_.begin(), entries_.end(),
                                                 [&](HelpEntry const& each) { return each.topic == topic; });
    if (found == entries_.end()) page_->show_unknown_topic(topic);
    else page_->show_page(found->page, found->anchor);
}

void HelpViewer::make_actions()
{
    auto* const bar = addToolBar("Manual");
    bar->setObjectName("helpToolBar");
    bar->setMovable(false);
    bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    bar->toggleViewAction()->setVisible(false);
    setContextMenuPolicy(Qt::NoContextMenu);

    make_page_actions(*bar);
    bar->addSeparator();
    make_find_actions(*bar);
    bar->addSeparator();
    make_view_actions(*bar);
}

QAction* HelpViewer::add_action(QMenu& menu, char const* name, char const* caption, QList<QKeySequence> const& keys,
                                std::function<void()> act)
{
    QAction* const made = menu.addAction(caption);
    made->setObjectName(name);
    made->setShortcuts(keys);
    connect(made, &QAction::triggered, this, std::move(act));
    return made;
}

void HelpViewer::make_page_actions(QToolBar& bar)
{
    QMenu& menu = *menuBar()->addMenu("&Page");
    auto* const back = add_action(menu, "helpBack", "&Back", {QKeySequence{"Alt+Left"}, QKeySequence{Qt::Key_Back}},
                                  [this] { page_->backward(); });
    auto* const forward =
        add_action(menu, "helpForward", "&Forward", {QKeySequence{"Alt+Right"}, QKeySequence{Qt::Key_Forward}},
                   [this] { page_->forward(); });
    auto* const contents =
        add_action(menu, "helpHome", "&Contents", {QKeySequence{"Alt+Home"}}, [this] { show_topic(0); });
    menu.addSeparator();
    add_action(menu, "helpClose", "C&lose", {QKeySequence{"Ctrl+W"}}, [this] { close(); });

    add_to_bar(bar, back, "Back", QStyle::SP_ArrowBack);
    add_to_bar(bar, forward, "Forward", QStyle::SP_ArrowForward);
    add_to_bar(bar, contents, "Contents", QStyle::SP_FileDialogListView);
    back->setEnabled(false);
    forward->setEnabled(false);
    connect(page_, &QTextBrowser::backwardAvailable, back, &QAction::setEnabled);
    connect(page_, &QTextBrowser::forwardAvailable, forward, &QAction::setEnabled);
}

void HelpViewer::make_find_actions(QToolBar& bar)
{
    QMenu& menu = *menuBar()->addMenu("F&ind");
    auto* const find =
        add_action(menu, "helpFind", "&Find in Page...", {QKeySequence{"Ctrl+F"}}, [this] { find_bar_->open(); });
    add_action(menu, "helpSearchAll", "&Search Manual...", {QKeySequence{"Ctrl+Shift+F"}},
               [this] { contents_->open_search(); });
    menu.addSeparator();
    auto const searches_all = [this] { return contents_->has_hits() && !find_bar_->isVisible(); };
    add_action(menu, "helpFindNext", "Find &Next", {QKeySequence{"F3"}, QKeySequence{"Ctrl+G"}},
               [=, this] { searches_all() ? contents_->choose_hit(1) : find_bar_->find_next(); });
    add_action(menu, "helpFindPrevious", "Find &Previous", {QKeySequence{"Shift+F3"}, QKeySequence{"Ctrl+Shift+G"}},
               [=, this] { searches_all() ? contents_->choose_hit(-1) : find_bar_->find_previous(); });
    add_to_bar(bar, find, "Find in the page", QStyle::SP_FileDialogContentsView);
}

void HelpViewer::make_view_actions(QToolBar& bar)
{
    QMenu& menu = *menuBar()->addMenu("&View");
    auto* const larger = add_action(menu, "helpLarger", "&Larger Text",
                                    {QKeySequence{"Ctrl++"}, QKeySequence{"Ctrl+="}}, [this] { page_->zoom(1); });
    auto* const smaller =
        add_action(menu, "helpSmaller", "&Smaller Text", {QKeySequence{"Ctrl+-"}}, [this] { page_->zoom(-1); });
    add_action(menu, "helpNormal", "&Normal Size", {QKeySequence{"Ctrl+0"}}, [this] { page_->zoom_to_normal(); });
    add_to_bar(bar, smaller, "Smaller text");
    add_to_bar(bar, larger, "Larger text");
}

void HelpViewer::follow_page(QUrl const& address)
{
    QString const title = page_->documentTitle();
    setWindowTitle(title.isEmpty() ? "Warhost Help" : title + " - Warhost Help");
    contents_->follow_page(address);
}

} // namespace warhost
