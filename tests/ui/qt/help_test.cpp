// The manual as it ships, its viewer, and the About box. Needs a QApplication.
#include "ui/qt/dialogs/about_box.h"
#include "ui/qt/help/help_viewer.h"

#include "files/modifier_list.h"

#include <QApplication>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTest>
#include <QTextBlock>
#include <QTextBrowser>
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

TEST(HelpViewer, opens_topics_follows_links_and_tells_what_is_missing)
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
}

TEST(HelpViewer, finds_a_text_goes_on_at_the_top_and_closes_the_bar_with_escape)
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
    QTest::keyClick(&text, Qt::Key_Escape);
    EXPECT_FALSE(text.isVisible());
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
