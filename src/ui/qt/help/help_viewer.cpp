#include "ui/qt/help/help_viewer.h"

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
#include <QTreeWidget>
#include <QUrl>
#include <QVBoxLayout>

#include <algorithm>
#include <optional>
#include <utility>

namespace warhost {

namespace {

// At the base font; a larger font makes the window larger, as far as the screen goes.
constexpr QSize base_size{960, 680};
constexpr int base_tree_width = 260;
constexpr int indentation = 14;
constexpr int row_padding = 11; // above and below a title together

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

HelpViewer::HelpViewer(QString const& folder, QWidget* parent)
    : QMainWindow(parent),
      folder_(folder),
      tree_(new QTreeWidget),
      page_(new HelpPage{folder}),
      find_bar_(new FindBar{*page_})
{
    setObjectName("helpViewer");
    setWindowTitle("Warhost Help");
    setAttribute(Qt::WA_QuitOnClose, false);
    arrange();
    make_actions();

    auto const show_item = [this](QTreeWidgetItem* item) {
        auto const found = std::find(items_.begin(), items_.end(), item);
        if (found != items_.end()) page_->show_entry(entries_[static_cast<std::size_t>(found - items_.begin())]);
    };
    connect(tree_, &QTreeWidget::itemClicked, this, show_item);
    connect(tree_, &QTreeWidget::itemActivated, this, show_item);
    connect(page_, &QTextBrowser::sourceChanged, this, &HelpViewer::follow_page);
}

void HelpViewer::arrange()
{
    tree_->setObjectName("helpTree");
    tree_->setAccessibleName("Contents of the manual");
    tree_->setHeaderHidden(true);
    tree_->setUniformRowHeights(true);
    tree_->setFrameShadow(QFrame::Plain);
    tree_->viewport()->setBackgroundRole(QPalette::Window);
    tree_->setIndentation(scale_of(this).from_base(indentation));

    auto* const side = new QWidget;
    auto* const column = new QVBoxLayout{side};
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(page_, 1);
    column->addWidget(find_bar_);

    auto* const splitter = new QSplitter;
    splitter->setObjectName("helpSplitter");
    splitter->setAutoFillBackground(true);
    splitter->addWidget(tree_);
    splitter->addWidget(side);
    splitter->setStretchFactor(1, 1);
    splitter->setChildrenCollapsible(false);
    setCentralWidget(splitter);
    follow_page_palette(*splitter);

    double const scale = growth(font());
    QSize const room = screen()->availableSize();
    resize((QSizeF{base_size} * scale).toSize().boundedTo(room));
    int const tree_width = static_cast<int>(base_tree_width * scale);
    splitter->setSizes({tree_width, std::max(1, width() - tree_width)});
}

void HelpViewer::open(int topic)
{
    if (entries_.empty()) {
        entries_ = read_help_contents(folder_);
        fill_tree();
    }
    show_topic(topic);
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
    else page_->show_entry(*found);
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
        add_action(menu, "helpFind", "&Find...", {QKeySequence{"Ctrl+F"}}, [this] { find_bar_->open(); });
    add_action(menu, "helpFindNext", "Find &Next", {QKeySequence{"F3"}, QKeySequence{"Ctrl+G"}},
               [this] { find_bar_->find_next(); });
    add_action(menu, "helpFindPrevious", "Find &Previous", {QKeySequence{"Shift+F3"}, QKeySequence{"Ctrl+Shift+G"}},
               [this] { find_bar_->find_previous(); });
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

void HelpViewer::fill_tree()
{
    tree_->clear();
    items_.clear();
    std::vector<QTreeWidgetItem*> above; // the latest item of each depth
    for (auto const& entry : entries_) {
        auto const depth = std::min(static_cast<std::size_t>(std::max(0, entry.depth)), above.size());
        above.resize(depth);
        auto* const item = above.empty() ? new QTreeWidgetItem{tree_} : new QTreeWidgetItem{above.back()};
        item->setText(0, entry.title);
        item->setToolTip(0, entry.title);
        item->setSizeHint(0, {0, tree_->fontMetrics().height() + row_padding});
        above.push_back(item);
        items_.push_back(item);
    }
}

/// Selects the entry of the page that is shown: its section's, else the page's own.
void HelpViewer::follow_page(QUrl const& address)
{
    QString const title = page_->documentTitle();
    setWindowTitle(title.isEmpty() ? "Warhost Help" : title + " - Warhost Help");

    auto const index_of = [&](QString const& anchor) {
        auto const found = std::find_if(entries_.begin(), entries_.end(), [&](HelpEntry const& entry) {
            return address.isLocalFile() && entry.page == address.fileName() && entry.anchor == anchor;
        });
        return static_cast<std::size_t>(found - entries_.begin());
    };
    auto index = index_of(address.fragment());
    if (index == entries_.size()) index = index_of({});
    if (index == entries_.size()) {
        tree_->setCurrentItem(nullptr);
        return;
    }
    auto* const item = items_[index];
    auto* page_item = item;
    while (page_item->parent() != nullptr) page_item = page_item->parent();
    if (tree_->currentItem() == nullptr || !page_item->isExpanded()) tree_->collapseAll();
    page_item->setExpanded(true);
    tree_->setCurrentItem(item);
    tree_->scrollToItem(item);
}

} // namespace warhost
