#include "ui/qt/help/contents_pane.h"

#include "ui/qt/look/scale.h"
#include "ui/qt/widgets/binding.h"
#include "ui/qt/widgets/text.h"

#include <QDir>
#include <QFile>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QStackedWidget>
#include <QTextDocument>
#include <QTreeWidget>
#include <QUrl>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace warhost {

namespace {

// Pixels of the base size.
constexpr int indentation = 14;
constexpr int row_padding = 11; // the sum above and below a title
constexpr int field_margin = 6;

// The data of an item in the list of hits.
enum Role { entry_role = Qt::UserRole, begin_role, end_role };

QTreeWidget* list_of(char const* name, char const* spoken)
{
    auto* const list = new QTreeWidget;
    list->setObjectName(name);
    list->setAccessibleName(spoken);
    list->setHeaderHidden(true);
    list->setUniformRowHeights(true);
    list->setFrameShadow(QFrame::Plain);
    list->viewport()->setBackgroundRole(QPalette::Window);
    list->setIndentation(scale_of(list).from_base(indentation));
    return list;
}

QTreeWidgetItem* add_item(QTreeWidget& list, QTreeWidgetItem* above, QString const& text, QString const& tip)
{
    auto* const item = above == nullptr ? new QTreeWidgetItem{&list} : new QTreeWidgetItem{above};
    item->setText(0, text);
    item->setToolTip(0, to_tooltip(tip));
    item->setSizeHint(0, {0, list.fontMetrics().height() + row_padding});
    return item;
}

/// The text from a few words before the hit on, so that a narrow list shows the hit.
QString excerpt(QStringView line, qsizetype place)
{
    constexpr qsizetype most_before = 16;
    if (place <= most_before) return line.toString();
    auto const blank = line.mid(place - most_before, most_before).indexOf(' ');
    auto const start = blank < 0 ? place : place - most_before + blank + 1;
    return QChar{0x2026} + line.mid(start).toString();
}

} // namespace

ContentsPane::ContentsPane(QString folder, std::vector<HelpEntry> const& entries, QWidget* parent)
    : QWidget(parent),
      folder_(std::move(folder)),
      entries_(entries),
      field_(new QLineEdit),
      lists_(new QStackedWidget),
      contents_(list_of("helpTree", "Contents of the manual")),
      hit_list_(list_of("helpHits", "Matches by page")),
      no_hits_(new QLabel{"No page of the manual contains this text."})
{
    arrange();
    auto const show_item = [this](QTreeWidgetItem* item) {
        auto const found = std::find(items_.begin(), items_.end(), item);
        if (found != items_.end()) emit entry_chosen(entries_[static_cast<std::size_t>(found - items_.begin())]);
    };
    connect(contents_, &QTreeWidget::itemClicked, this, show_item);
    connect(contents_, &QTreeWidget::itemActivated, this, show_item);
    connect(hit_list_, &QTreeWidget::itemClicked, this, &ContentsPane::open_hit);
    connect(hit_list_, &QTreeWidget::itemActivated, this, &ContentsPane::open_hit);
    connect(field_, &QLineEdit::textChanged, this, &ContentsPane::search);
    connect(field_, &QLineEdit::returnPressed, this, [this] { choose_hit(1); });
}

void ContentsPane::arrange()
{
    int const margin = scale_of(this).from_base(field_margin);
    field_->setObjectName("helpSearch");
    field_->setAccessibleName("Text to find in the whole manual");
    field_->setPlaceholderText("Search the manual");
    field_->setClearButtonEnabled(true);
    field_->setMaxLength(longest_text);
    no_hits_->setObjectName("helpNoHits");
    no_hits_->setWordWrap(true);
    no_hits_->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    no_hits_->setMargin(margin);
    for (QWidget* const each :
         {static_cast<QWidget*>(contents_), static_cast<QWidget*>(hit_list_), static_cast<QWidget*>(no_hits_)})
        lists_->addWidget(each);

    auto* const head = new QHBoxLayout;
    head->setContentsMargins(margin, margin, margin, margin);
    head->addWidget(field_);
    auto* const column = new QVBoxLayout{this};
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addLayout(head);
    column->addWidget(lists_, 1);
}

void ContentsPane::fill()
{
    contents_->clear();
    items_.clear();
    texts_.clear();
    std::vector<QTreeWidgetItem*> above; // the latest item of each depth
    for (auto const& entry : entries_) {
        auto const depth = std::min(static_cast<std::size_t>(std::max(0, entry.depth)), above.size());
        above.resize(depth);
        auto* const item = add_item(*contents_, above.empty() ? nullptr : above.back(), entry.title, entry.title);
        above.push_back(item);
        items_.push_back(item);
    }
}

void ContentsPane::follow_page(QUrl const& address)
{
    auto const index_of = [&](QString const& anchor) {
        auto const found = std::find_if(entries_.begin(), entries_.end(), [&](HelpEntry const& entry) {
            return address.isLocalFile() && entry.page == address.fileName() && entry.anchor == anchor;
        });
        return static_cast<std::size_t>(found - entries_.begin());
    };
    auto index = index_of(address.fragment());
    if (index == entries_.size()) index = index_of({});
    if (index == entries_.size()) {
        contents_->setCurrentItem(nullptr);
        return;
    }
    auto* const item = items_[index];
    auto* page_item = item;
    while (page_item->parent() != nullptr) page_item = page_item->parent();
    if (contents_->currentItem() == nullptr || !page_item->isExpanded()) contents_->collapseAll();
    page_item->setExpanded(true);
    contents_->setCurrentItem(item);
    contents_->scrollToItem(item);
}

void ContentsPane::open_search()
{
    field_->setFocus(Qt::ShortcutFocusReason);
    field_->selectAll();
}

void ContentsPane::close_search() { field_->clear(); }

/// The pages as they are shown, so that positions agree character by character.
void ContentsPane::read_pages()
{
    for (auto const& entry : entries_) {
        QTextDocument document;
        QFile file{QDir{folder_}.absoluteFilePath(entry.page)};
        if (entry.anchor.isEmpty() && file.open(QIODevice::ReadOnly))
            document.setHtml(QString::fromUtf8(file.readAll()));
        texts_ << document.toPlainText();
    }
}

void ContentsPane::search()
{
    hits_.clear();
    hit_list_->clear();
    QString const searched = field_->text();
    if (searched.isEmpty()) return lists_->setCurrentWidget(contents_);
    if (texts_.isEmpty()) read_pages();
    for (std::size_t entry = 0; entry < entries_.size(); ++entry)
        list_hits(entry, texts_[static_cast<qsizetype>(entry)], searched);
    hit_list_->expandAll();
    lists_->setCurrentWidget(hits_.empty() ? static_cast<QWidget*>(no_hits_) : hit_list_);
}

void ContentsPane::list_hits(std::size_t entry, QString const& text, QString const& searched)
{
    QTreeWidgetItem* page = nullptr;
    qsizetype end = 0;
    for (qsizetype begin = 0; (begin = text.indexOf(searched, end, Qt::CaseInsensitive)) >= 0;) {
        end = begin + searched.size();
        auto const line_begin = QStringView{text}.first(begin).lastIndexOf('\n') + 1;
        auto const line_end = text.indexOf('\n', end);
        auto const line = QStringView{text}.mid(line_begin, line_end < 0 ? -1 : line_end - line_begin);
        auto const add = [&](QTreeWidgetItem* above, QString const& shown, QString const& tip) {
            auto* const item = add_item(*hit_list_, above, shown, tip);
            item->setData(0, entry_role, static_cast<qulonglong>(entry));
            item->setData(0, begin_role, begin);
            item->setData(0, end_role, end);
            return item;
        };
        if (page == nullptr) page = add(nullptr, {}, entries_[entry].title);
        hits_.push_back(add(page, excerpt(line, begin - line_begin), line.toString()));
    }
    if (page != nullptr) page->setText(0, QString{"%1 (%2)"}.arg(entries_[entry].title).arg(page->childCount()));
}

/// The item of a page opens its first hit.
void ContentsPane::open_hit(QTreeWidgetItem* item)
{
    emit hit_chosen(entries_[item->data(0, entry_role).toULongLong()], item->data(0, begin_role).toInt(),
                    item->data(0, end_role).toInt());
}

void ContentsPane::choose_hit(int step)
{
    if (hits_.empty()) return;
    auto* current = hit_list_->currentItem();
    if (current != nullptr && current->childCount() > 0) current = current->child(0);
    auto const count = static_cast<std::ptrdiff_t>(hits_.size());
    auto const place = std::find(hits_.begin(), hits_.end(), current) - hits_.begin();
    auto const start = place < count ? place : (step > 0 ? -1 : 0);
    auto* const chosen = hits_[static_cast<std::size_t>((start + step + count) % count)];
    hit_list_->setCurrentItem(chosen);
    open_hit(chosen);
}

void ContentsPane::keyPressEvent(QKeyEvent* event)
{
    if (event->key() != Qt::Key_Escape) return QWidget::keyPressEvent(event);
    close_search();
    emit search_closed();
}

} // namespace warhost
