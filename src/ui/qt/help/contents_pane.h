// The left side of the manual's window: the contents, or the hits of a search through all pages.
#pragma once

#include "ui/qt/help/help_contents.h"

#include <QStringList>
#include <QWidget>

#include <vector>

class QLabel;
class QLineEdit;
class QStackedWidget;
class QTreeWidget;
class QTreeWidgetItem;
class QUrl;

namespace warhost {

/// The hits replace the contents while the search field has text. Escape clears the field.
class ContentsPane : public QWidget {
    Q_OBJECT

public:
    /// folder: of the pages. entries: must outlive the pane.
    ContentsPane(QString folder, std::vector<HelpEntry> const& entries, QWidget* parent = nullptr);

    /// Lists the entries anew, after they have changed.
    void fill();
    /// Selects the entry of the section that is shown, or of the page if no section is.
    void follow_page(QUrl const& address);

    void open_search();
    /// Shows the contents again.
    void close_search();
    bool has_hits() const { return !hits_.empty(); }
    /// Selects the hit `step` places after the current one; the first follows the last.
    void choose_hit(int step);

signals:
    void entry_chosen(HelpEntry const& entry);
    /// begin, end: the positions of the hit in the document of the page.
    void hit_chosen(HelpEntry const& page, int begin, int end);
    void search_closed();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void arrange();
    void read_pages();
    void search();
    void list_hits(std::size_t entry, QString const& text, QString const& searched);
    void open_hit(QTreeWidgetItem* item);

    QString folder_;
    std::vector<HelpEntry> const& entries_;
    std::vector<QTreeWidgetItem*> items_; // one per entry
    QStringList texts_;                   // one per entry: its page, empty for a section; none before the first search
    std::vector<QTreeWidgetItem*> hits_;
    QLineEdit* field_;
    QStackedWidget* lists_;
    QTreeWidget* contents_;
    QTreeWidget* hit_list_;
    QLabel* no_hits_;
};

} // namespace warhost
