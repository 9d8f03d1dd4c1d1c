// What the window's controls say and show.
#include "window_fixture.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QTextBlock>
#include <QTextEdit>

#include <fstream>

namespace warhost {

namespace {

/// "name|text|tool tip|what else": the last is "read-only", or the control that a label's mnemonic leads to.
std::string description_of(QObject const& control)
{
    auto const property = [&](char const* name) { return control.property(name).toString(); };
    QString text = property("text") + property("title") + property("currentText");
    if (qobject_cast<QLineEdit const*>(&control) != nullptr && control.property("readOnly").toBool())
        text += "||read-only";
    else text += "|" + property("toolTip") + "|";
    auto const* const label = qobject_cast<QLabel const*>(&control);
    if (label != nullptr && label->buddy() != nullptr) text += "names " + label->buddy()->objectName();
    return (control.objectName() + "|" + text).toStdString();
}

TEST(Controls, are_there_once_with_their_texts_tool_tips_and_labels)
{
    Screen screen;
    screen.choose_tab(3);
    screen.form.lblRatio.set_caption("1:1"); // its decimals are the user's
    std::ifstream file{CONTROLS_FILE};
    std::string expected;
    int controls = 0;
    for (; std::getline(file, expected); ++controls) {
        auto const name = QString::fromStdString(expected.substr(0, expected.find('|')));
        auto const found = screen.window.findChildren<QObject*>(name);
        ASSERT_EQ(found.size(), 1) << expected;
        EXPECT_EQ(description_of(*found.front()), expected);
    }
    EXPECT_GT(controls, 200);
}

TEST(Controls, the_descriptions_show_both_accounts_with_headings_in_bold)
{
    Screen screen;
    screen.choose_tab(3);
    auto const& loser = screen.named<QTextEdit>("txtBattleResults");
    auto const& victor = screen.named<QTextEdit>("txtVictorDesc");
    auto const bold_in = [](QTextBlock const& block) {
        QString bold;
        for (auto at = block.begin(); !at.atEnd(); ++at)
            if (at.fragment().charFormat().fontWeight() >= QFont::DemiBold) bold += at.fragment().text();
        return bold.toStdString();
    };
    screen.form.txtResult(0).set_text("7");
    screen.form.chkMinus5.set_state(1);
    screen.form.txtVictorCasRoll.set_text("-3"); // a natural 1 with the bonus of 1
    EXPECT_EQ(loser.toPlainText(), "25% casualties; loser loses ground.");
    EXPECT_EQ(victor.document()->blockCount(), 2);
    QTextBlock const heading = victor.document()->firstBlock();
    EXPECT_EQ(heading.text(), "Consecutive Natural Ones!");
    EXPECT_EQ(bold_in(heading), "Consecutive Natural Ones!");
    EXPECT_EQ(bold_in(heading.next()), "");
    EXPECT_TRUE(heading.next().text().startsWith("If this result")) << heading.next().text().toStdString();
    screen.form.txtResult(0).set_text("20000"); // beyond the table
    EXPECT_EQ(loser.toPlainText(), "");
    EXPECT_TRUE(loser.isReadOnly());
}

TEST(Controls, a_value_box_steps_and_pages_through_its_list_and_stops_at_its_ends)
{
    Screen screen;
    auto& box = screen.named<QComboBox>("cmbLevel");
    auto const after = [&](Qt::Key key) {
        QTest::keyClick(&box, key);
        return screen.form.cmbLevel.text();
    };
    EXPECT_EQ(after(Qt::Key_Up), "1");
    EXPECT_EQ(after(Qt::Key_PageDown), "11");
    EXPECT_EQ(after(Qt::Key_Down), "12");
    EXPECT_EQ(after(Qt::Key_PageDown), "20");
    EXPECT_EQ(after(Qt::Key_PageUp), "10");
    screen.form.cmbLevel.set_text("2.5"); // not in the list
    EXPECT_EQ(after(Qt::Key_Up), "20");
    EXPECT_EQ(screen.form.ArmyA.Level, 20);
}

} // namespace

} // namespace warhost
