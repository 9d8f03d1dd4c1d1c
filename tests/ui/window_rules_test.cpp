#include "ui/menus.h"
#include "ui/test_desktop.h"

namespace warhost {

struct WindowRules : testing::Test, Program {};

TEST_F(WindowRules, keeps_one_margin_around_the_tabs_and_two_around_the_frames)
{
    std::tuple<double, double, double, char const*> const cases[] = {
        {15, 12840, 9600, "12780x9495 12600x9000 12600x9120 6120x8520 "},
        {12, 12840, 9600, "12792x9507 12624x9024 12624x9144 6168x8568 "},
        {9.6, 12840, 9600, "12802x9517 12644x9044 12644x9164 6208x8608 "},
        {9.625, 10000.5, 8001.5, "9962x7919 9804x7446 9804x7566 3368x7010 "}, // 38.5: 38, 10000.5: 10000, 8001.5: 8002
        {15, 6000, 700, "5940x595 5760x100 5760x220 0x0 "},
        {15, 10, 10, "0x0 0x0 0x0 0x0 "}};
    for (auto const& [twips, width, height, expected] : cases) {
        desktop.twips = twips;
        for (bool const minimized : {false, true}) { // which changes nothing
            desktop.is_minimized = minimized;
            desktop.client = minimized ? ClientArea{1, 1} : ClientArea{width, height};
            form.Form_Resize();
        }
        std::string sizes;
        for (auto* frame : std::array<Frame*, 4>{&form.TabStrip, &form.FrameArmy, &form.FrameCombat, &form.FrameMisc})
            sizes += std::to_string(frame->box().Width) + "x" + std::to_string(frame->box().Height) + " ";
        EXPECT_EQ(sizes, expected) << twips << ": " << width << " x " << height;
    }
}

TEST_F(WindowRules, opens_what_a_menu_item_names_and_asks_before_it_closes)
{
    for (int Index : {1, 3, 5, 7, 9}) form.mnuWeb_Click(Index);
    form.mnuHelpContents_Click();
    form.mnuAbout_Click();
    form.mnuQuit_Click();
    EXPECT_TRUE(desktop.boxes.empty()); // no address opens: nothing is said; the close request asks, not the menu
    auto const address = [](std::size_t row) { return std::string{web_links.at(row).address}; };
    std::vector<std::string> const expected{address(0), address(1), address(3), address(4), "help 0", "about", "close"};
    EXPECT_EQ(desktop.requests, expected);
    EXPECT_TRUE(form.Form_QueryUnload());
    desktop.answer = Answer::no;
    EXPECT_FALSE(form.Form_QueryUnload());
    std::string const box = "Quit Warhost?: Are you sure you wish to quit? [Yes No, no icon, Yes]";
    EXPECT_EQ(desktop.boxes, std::vector(2, box));
}

TEST_F(WindowRules, reports_a_failure_once)
{
    std::string const rest =
        "\r\nPress Ignore to continue.\r\nIf you press Abort, the program will end and you will lose "
        "any unsaved data.\r\nIf this error occurs again, try reinstalling Gamemind.\r\n "
        "[Abort Retry Ignore, critical, Ignore]";
    form.ErrReport("nothing");
    EXPECT_TRUE(desktop.boxes.empty());
    form.pending_error = {57, "The disk is full"};
    for (char const* context : {"Saving an army", "already told"}) form.ErrReport(context);
    form.pending_error = {-2147024894, ""};
    desktop.answer = Answer::abort;
    EXPECT_THROW(form.ErrReport(""), ProgramEnded);
    std::string const first = "Error!: Error 57: 'The disk is full'.\r\nRaised while Saving an army\r\n";
    EXPECT_EQ(desktop.boxes, (std::vector{first + rest, "Error!: Error -2147024894: ''.\r\n" + rest}));
}

TEST(MissingList, is_reported_once_and_the_program_works_without_it)
{
    Program program{std::nullopt};
    std::string const box =
        "File Not Found: File '" + program.folder.path("modif.txt") +
        "' not found. Make sure the file hasn't been moved or deleted. Please reinstall the program "
        "if this occurs again. [OK, exclamation, OK]";
    EXPECT_EQ(program.desktop.boxes, std::vector{box});
    EXPECT_FALSE(program.form.CheckFile(program.folder.path("modif.txt")));
    program.form.opt(6).set_selected(true);
    EXPECT_EQ(program.form.txtTotal.text(), "2");
}

} // namespace warhost
