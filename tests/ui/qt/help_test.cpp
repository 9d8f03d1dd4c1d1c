// The manual as it ships, its viewer, and the About box. Needs a QApplication.
#include "battle/odds.h"
#include "files/modifier_list.h"
#include "ui/qt/dialogs/about_box.h"
#include "ui/qt/help/help_key.h"
#include "ui/qt/help/help_viewer.h"
#include "ui/qt/widgets/value_box.h"
#include "window_fixture.h"

#include <QApplication>
#include <QDesktopServices>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTest>
#include <QTextBlock>
#include <QTextBrowser>
#include <QThread>
#include <QTimer>
#include <QTreeWidget>

#include <gtest/gtest.h>

#include <algorithm>

namespace warhost {

namespace {

QString const data_folder = WARHOST_DATA;
QString const manual = data_folder + "/help";

QByteArray bytes_of(QString const& path)
{
    QFile file{path};
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray{};
}

QString shown_by(HelpViewer& viewer) { return viewer.findChild<QTextBrowser*>("helpPage")->toPlainText(); }

QList<QWidget*> about_boxes()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    auto boxes = QApplication::topLevelWidgets();
    boxes.removeIf([](QWidget* widget) { return widget->objectName() != "frmAbout"; });
    return boxes;
}

} // namespace

TEST(Manual, every_entry_and_link_has_its_page_and_anchor_and_every_row_its_topic)
{
    auto const entries = read_help_contents(manual);
    ASSERT_FALSE(entries.empty());
    for (auto const& entry : entries) {
        SCOPED_TRACE(entry.title.toStdString());
        auto const page = bytes_of(manual + "/" + entry.page);
        EXPECT_FALSE(page.isEmpty());
        EXPECT_TRUE(entry.anchor.isEmpty() || page.contains("name=\"" + entry.anchor.toUtf8() + "\""));
        for (auto const& link : QString{page}.split("href=\"").mid(1)) {
            auto const target = link.section('"', 0, 0);
            auto const anchor = target.section('#', 1);
            auto const its_page = target.startsWith('#') ? page : bytes_of(manual + "/" + target.section('#', 0, 0));
            EXPECT_TRUE(its_page.contains(anchor.isEmpty() ? "<html" : "name=\"" + anchor.toUtf8() + "\""))
                << target.toStdString();
        }
    }
    ModifierList list{bytes_of(data_folder + "/modif.txt").toStdString()};
    int rows = 0;
    for (; auto const row = list.next(); ++rows) {
        auto const topics = std::count_if(entries.begin(), entries.end(),
                                          [&](auto const& entry) { return entry.topic == row->help_topic; });
        EXPECT_EQ(topics, 1) << row->name;
    }
    EXPECT_GT(rows, 0);
}

TEST(HelpViewer, opens_topics_follows_links_and_reports_what_is_missing)
{
    HelpViewer viewer{manual};
    auto& page = *viewer.findChild<QTextBrowser*>("helpPage");
    auto const entry = [&] { return viewer.findChild<QTreeWidget*>("helpTree")->currentItem()->text(0).toStdString(); };
    viewer.open(0);
    EXPECT_EQ(page.source().fileName(), "contents.html");
    viewer.open(104);
    EXPECT_EQ(page.source().fragment(), "pass");
    EXPECT_EQ(entry(), "Holds a pass or bridge");
    page.backward();
    EXPECT_EQ(entry(), "Welcome to Warhost");

    viewer.open(999);
    EXPECT_TRUE(shown_by(viewer).contains("There is no help topic 999")) << shown_by(viewer).toStdString();
    page.setSource(QUrl::fromLocalFile(manual + "/lost.html"));
    EXPECT_TRUE(shown_by(viewer).contains("lost.html")) << shown_by(viewer).toStdString();

    HelpViewer nowhere{"/no/such/folder"};
    nowhere.open(104);
    EXPECT_TRUE(shown_by(nowhere).contains(QDir::toNativeSeparators("The manual was not found: /no/such/folder")))
        << shown_by(nowhere).toStdString();
}

TEST(HelpViewer, keeps_its_place_and_needs_no_scrolling_to_the_side_at_any_size)
{
    HelpViewer viewer{manual};
    auto& page = *viewer.findChild<QTextBrowser*>("helpPage");
    viewer.open(104);
    auto const check = [&](char const* state) {
        QCoreApplication::processEvents();
        EXPECT_EQ(page.cursorForPosition({40, 4}).block().text().toStdString(), "Holds a pass or bridge") << state;
        EXPECT_EQ(page.horizontalScrollBar()->maximum(), 0) << state;
    };
    check("opened");
    for (int step = 0; step < 4; ++step) QTest::keyClick(&viewer, Qt::Key_Plus, Qt::ControlModifier);
    check("zoomed");
    viewer.resize(600, 500);
    check("narrow");
    viewer.open(6);
    QCoreApplication::processEvents();
    for (int step = 0; step < 5; ++step) QTest::keyClick(&viewer, Qt::Key_Plus, Qt::ControlModifier);
    QCoreApplication::processEvents();
    EXPECT_EQ(page.verticalScrollBar()->value(), 0);

    int const enlarged = page.fontMetrics().height();
    QTest::keyClick(&viewer, Qt::Key_0, Qt::ControlModifier);
    int const normal = page.fontMetrics().height();
    QTest::keyClick(&viewer, Qt::Key_Minus, Qt::ControlModifier);
    EXPECT_GT(enlarged, normal);
    EXPECT_LT(page.fontMetrics().height(), normal);
}

TEST(HelpViewer, finds_text_continues_at_the_top_and_closes_the_bar_on_escape)
{
    HelpViewer viewer{manual};
    viewer.open(11);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&viewer));
    auto& page = *viewer.findChild<QTextBrowser*>("helpPage");
    auto& text = *viewer.findChild<QLineEdit*>("findText");
    QTest::keyClick(&viewer, Qt::Key_F, Qt::ControlModifier);
    ASSERT_TRUE(text.isVisible());
    QTest::keyClicks(&text, "CTRL+L");
    int const place = page.textCursor().selectionStart();
    EXPECT_EQ(page.textCursor().selectedText(), "Ctrl+L");
    QTest::keyClick(&text, Qt::Key_Return); // the only one of the page
    EXPECT_EQ(page.textCursor().selectionStart(), place);
    EXPECT_FALSE(viewer.findChild<QLabel*>("findMessage")->text().isEmpty());
    text.selectAll();
    QTest::keyClicks(&text, "Shift+");
    int const first = page.textCursor().selectionStart();
    QTest::keyClick(&viewer, Qt::Key_F3);
    EXPECT_GT(page.textCursor().selectionStart(), first);
    QTest::keyClick(&viewer, Qt::Key_F3, Qt::ShiftModifier);
    EXPECT_EQ(page.textCursor().selectionStart(), first);
    QTest::keyClick(&text, Qt::Key_Escape);
    EXPECT_FALSE(text.isVisible());
}

TEST(HelpViewer, lists_the_hits_of_all_pages_and_opens_each_with_its_text_marked)
{
    HelpViewer viewer{manual};
    viewer.open(0);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&viewer));
    auto& page = *viewer.findChild<QTextBrowser*>("helpPage");
    auto& field = *viewer.findChild<QLineEdit*>("helpSearch");
    auto& hits = *viewer.findChild<QTreeWidget*>("helpHits");
    QTest::keyClick(&viewer, Qt::Key_F, Qt::ControlModifier | Qt::ShiftModifier);
    QTest::keyClicks(QApplication::focusWidget(), "WINDOWS");
    ASSERT_TRUE(hits.isVisible());
    ASSERT_GT(hits.topLevelItemCount(), 2);
    for (int each = 0; each < hits.topLevelItemCount(); ++each) {
        auto const& of_page = *hits.topLevelItem(each);
        int last = -1;
        for (int hit = 0; hit < of_page.childCount(); ++hit) {
            EXPECT_TRUE(of_page.child(hit)->text(0).contains("windows", Qt::CaseInsensitive));
            each + hit == 0 ? QTest::keyClick(&field, Qt::Key_Return) : QTest::keyClick(&viewer, Qt::Key_F3);
            EXPECT_EQ(hits.currentItem(), of_page.child(hit));
            EXPECT_TRUE(of_page.text(0).startsWith(page.documentTitle())) << of_page.text(0).toStdString();
            EXPECT_EQ(page.textCursor().selectedText().toLower(), "windows");
            EXPECT_TRUE(page.viewport()->rect().contains(page.cursorRect()));
            EXPECT_GT(page.textCursor().position(), std::exchange(last, page.textCursor().position()));
        }
        EXPECT_TRUE(of_page.text(0).endsWith(QString{" (%1)"}.arg(of_page.childCount())));
    }
    QTest::keyClick(&viewer, Qt::Key_F3);
    QTest::keyClick(&viewer, Qt::Key_F3, Qt::ShiftModifier); // from the first to the last
    auto const* const last_page = hits.topLevelItem(hits.topLevelItemCount() - 1);
    EXPECT_EQ(hits.currentItem(), last_page->child(last_page->childCount() - 1));
    emit hits.itemActivated(hits.topLevelItem(0), 0);
    EXPECT_TRUE(hits.topLevelItem(0)->text(0).startsWith(page.documentTitle()));

    QTest::keyClicks(&field, " of nobody");
    EXPECT_TRUE(viewer.findChild<QLabel*>("helpNoHits")->isVisible());
    QTest::keyClick(&field, Qt::Key_Escape);
    EXPECT_TRUE(viewer.findChild<QTreeWidget*>("helpTree")->isVisible());
    EXPECT_TRUE(page.hasFocus());
}

TEST(HelpViewer, opens_beside_the_main_window_or_where_it_covers_least_of_it)
{
    QRect const room{0, 30, 1900, 1000};
    QSize const size{900, 700};
    std::tuple<QRect, QPoint> const rows[] = {
        {{50, 100, 900, 700}, {950, 100}},   // at its right
        {{1000, 100, 900, 700}, {100, 100}}, // at its left
        {{50, 600, 900, 400}, {950, 330}},   // higher, to be whole
        {{500, 30, 900, 700}, {1000, 330}},  // no room
        {{400, 330, 900, 700}, {1000, 30}},
    };
    for (auto const& [other, place] : rows) EXPECT_EQ(place_beside(other, size, room), place) << other.left();
}

/// A browser, as far as the desktop is concerned.
struct Browser : QTextBrowser {
    QVariant loadResource(int /*type*/, QUrl const& /*name*/) override { return QString{"shown"}; }
};

TEST(HelpViewer, opens_links_out_of_the_manual_in_the_browser)
{
    HelpViewer viewer{manual};
    viewer.open(0);
    Browser browser;
    QDesktopServices::setUrlHandler("https", &browser, "setSource");
    auto& page = *viewer.findChild<QTextBrowser*>("helpPage");
    page.setHtml("<a href=\"https://example.org/a\">out</a>");
    QTest::keyClick(&page, Qt::Key_Tab);
    QTest::keyClick(&page, Qt::Key_Return);
    QDesktopServices::unsetUrlHandler("https");
    EXPECT_EQ(browser.source(), QUrl{"https://example.org/a"});
    EXPECT_EQ(page.toPlainText(), "out");
}

TEST(HelpKey, opens_the_topic_of_the_row_or_the_page_of_the_screen_or_the_dialog)
{
    Screen screen;
    HelpViewer viewer{manual, &screen.window};
    HelpKey const help_key{[&](int topic) { viewer.open(topic); }, [&](char const* address) { viewer.open(address); }};
    auto const shown_from = [&](QWidget& at) {
        viewer.open(13); // another page
        QTest::keyClick(&at, Qt::Key_F1);
        return viewer.findChild<QTextBrowser*>("helpPage")->source().toString().section('/', -1).toStdString();
    };
    auto& tabs = screen.named<QTabBar>("TabStrip");
    EXPECT_EQ(shown_from(tabs), "army_screen.html");
    EXPECT_EQ(shown_from(screen.named<QWidget>("opt(0)")), "army_screen.html");
    EXPECT_EQ(shown_from(screen.named<QWidget>("FrameMisc")), "misc_modifiers.html");
    auto& value = screen.named<ValueBox>("cmbMisc(1)");
    EXPECT_EQ(shown_from(screen.named<QWidget>("chkMisc(1)")), "misc_modifiers.html#high_ground");
    value.setFocus();
    value.showPopup();
    EXPECT_EQ(shown_from(*QApplication::activePopupWidget()), "misc_modifiers.html#high_ground");
    screen.choose_tab(3);
    EXPECT_EQ(shown_from(tabs), "combat_screen.html");
    EXPECT_EQ(shown_from(viewer), "keyboard.html#manual");

    auto const message = [&](char const* title) {
        return [&, title] { screen.desktop.QtDesktop::message_box({"", title}); };
    };
    auto const file_dialog = [&](char const* title) {
        return [&, title] { screen.desktop.QtDesktop::file_dialog({FileDialogKind::save, title, "", "", ""}); };
    };
    auto const wait = [&] { screen.desktop.wait_for([] { QThread::msleep(600); }); };
    auto const ask = [&] { screen.desktop.QtDesktop::input_box({"", "Simulate N Battles", ""}); };
    Tally fought;
    fought.count(tie, 0, 100);
    auto const report = [&] { screen.desktop.QtDesktop::show_report({"", "Warhost Simulation"}, fought, Odds{0, 0}); };
    std::pair<std::function<void()>, char const*> const dialogs[] = {
        {message("Warhost"), "combat_screen.html"},
        {message("Quit Warhost?"), "contents.html#menus"},
        {message("Error!"), "army_files.html#errors"},
        {message("File Not Found"), "troubleshooting.html#window"},
        {file_dialog("Load Warhost Army File"), "army_files.html#loading"},
        {file_dialog("Save Warhost Army File"), "army_files.html#saving"},
        {wait, "army_files.html"},
        {ask, "simulation.html"},
        {report, "simulation.html#report"},
    };
    for (auto const& [open, address] : dialogs) {
        QTimer::singleShot(0, [&, expected = address] {
            auto& box = *QApplication::activeModalWidget();
            auto* const name = box.findChild<QLineEdit*>("fileNameEdit"); // which would swallow the key
            EXPECT_EQ(shown_from(name != nullptr ? *name : box), expected);
            auto& tree = *viewer.findChild<QTreeWidget*>("helpTree");
            auto const first = tree.visualItemRect(tree.topLevelItem(0)).center();
            QTest::mouseClick(viewer.windowHandle(), Qt::LeftButton, {}, tree.viewport()->mapTo(&viewer, first));
            EXPECT_EQ(shown_by(viewer).section('\n', 0, 0), "Welcome to Warhost") << "the manual stays usable";
            box.close();
        });
        open();
    }
}

TEST(AboutBox, opens_once_shows_version_and_licence_and_closes_on_enter_and_escape)
{
    for (auto const key : {Qt::Key_Return, Qt::Key_Escape}) {
        AboutBox::show_box(data_folder);
        AboutBox::show_box(data_folder);
        ASSERT_EQ(about_boxes().size(), 1);
        auto& box = *about_boxes().front();
        EXPECT_EQ(box.windowTitle(), "About Warhost");
        EXPECT_EQ(box.findChild<QLabel*>("lblVersion")->text(), "Version " WARHOST_VERSION);
        EXPECT_FALSE(box.findChild<QLabel*>("picIcon")->pixmap().isNull());
        auto* const licence = box.findChild<QPlainTextEdit*>("TextOGL");
        EXPECT_TRUE(licence->toPlainText().contains("15. COPYRIGHT NOTICE"));
        QTest::keyClick(licence, key);
        EXPECT_TRUE(about_boxes().isEmpty());
    }
}

} // namespace warhost
