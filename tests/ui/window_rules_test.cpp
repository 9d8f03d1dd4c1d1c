#include "ui/menus.h"
#include "ui/test_desktop.h"

namespace warhost {
namespace {

std::string sizes(Main& form)
{
    std::string text;
    for (Frame* frame :
         std::initializer_list<Frame*>{&form.TabStrip, &form.FrameArmy, &form.FrameCombat, &form.FrameMisc}) {
        text += std::to_string(frame->box().Width) + "x" + std::to_string(frame->box().Height) + " ";
    }
    return text;
}

TEST(LayoutRule, keeps_one_margin_around_the_tabs_and_two_around_the_frames)
{
    // clang-format off
    struct { double twips, width, height; char const* expected; } const cases[] = {
        {15, 12840, 9600, "12780x9495 12600x9000 12600x9120 6120x8520 "},
        {12, 12840, 9600, "12792x9507 12624x9024 12624x9144 6168x8568 "},
        {9.6, 12840, 9600, "12802x9517 12644x9044 12644x9164 6208x8608 "},
        {9.625, 10000.5, 8001.5, "9962x7919 9804x7446 9804x7566 3368x7010 "}, // 38.5 is 38, 10000.5 even, 8001.5 is 8002
        {15, 6000, 700, "5940x595 5760x100 5760x220 0x0 "}, {15, 10, 10, "0x0 0x0 0x0 0x0 "},
    };
    // clang-format on
    Program program;
    for (auto const& [twips, width, height, expected] : cases) {
        program.desktop.twips = twips;
        program.desktop.client = {width, height};
        program.form.Form_Resize();
        EXPECT_EQ(sizes(program.form), expected) << twips << ": " << width << " x " << height;
        program.desktop.is_minimized = true;
        program.desktop.client = {1, 1};
        program.form.Form_Resize();
        EXPECT_EQ(sizes(program.form), expected) << "minimized";
        program.desktop.is_minimized = false;
    }
    Frame::Box const misc = program.form.FrameMisc.box();
    EXPECT_EQ(misc.Left, 6360);
    EXPECT_EQ(misc.Top, 360);
}

TEST(Quit, asks_first)
{
    Program program;
    program.desktop.answers = {Answer::yes, Answer::no};
    EXPECT_TRUE(program.form.Form_QueryUnload());
    EXPECT_FALSE(program.form.Form_QueryUnload());
    EXPECT_EQ(program.desktop.boxes.at(1), "Quit Warhost?: Are you sure you wish to quit? [Yes No, no icon, Yes]");
    program.form.mnuQuit_Click();
    EXPECT_EQ(program.desktop.requests, std::vector<std::string>{"close"}); // the close request asks, not the menu
    EXPECT_EQ(program.desktop.boxes.size(), 2U);
}

TEST(Menus, open_what_they_say)
{
    Program program;
    for (int Index : {1, 3, 5, 7, 9}) program.form.mnuWeb_Click(Index); // none opens: nothing is said
    program.form.mnuHelpContents_Click();
    program.form.mnuAbout_Click();
    std::vector<std::string> expected;
    for (auto const& link : web_links) {
        if (link.index != 5) expected.emplace_back(link.address);
    }
    ASSERT_EQ(expected.size(), 4U);
    expected.insert(expected.end(), {"help 0", "about"});
    EXPECT_EQ(program.desktop.requests, expected);
    EXPECT_TRUE(program.desktop.boxes.empty());
}

TEST(ErrorReport, says_what_failed_once)
{
    std::string const rest =
        "\r\nPress Ignore to continue.\r\nIf you press Abort, the program will end and you will lose any unsaved data.\r\n"
        "If this error occurs again, try reinstalling Gamemind.\r\n [Abort Retry Ignore, critical, Ignore]";
    // clang-format off
    struct { Failure failure; char const *context, *start; } const cases[] = {
        {{57, "The disk is full"}, "Saving an army", "Error!: Error 57: 'The disk is full'.\r\nRaised while Saving an army\r\n"},
        {{-2147024894, ""}, "", "Error!: Error -2147024894: ''.\r\n"},
    };
    // clang-format on
    Program program;
    Main& form = program.form;
    TestDesktop& desktop = program.desktop;
    form.ErrReport("nothing");
    EXPECT_TRUE(desktop.boxes.empty());
    for (auto const& [failure, context, start] : cases) {
        for (Answer const answer : {Answer::retry, Answer::ignore, Answer::abort}) {
            form.pending_error = failure;
            desktop.boxes.clear();
            desktop.answers = {answer};
            if (answer == Answer::abort) {
                EXPECT_THROW(form.ErrReport(context), ProgramEnded);
            } else {
                form.ErrReport(context);
                form.ErrReport(context); // cleared
            }
            EXPECT_EQ(desktop.boxes, std::vector<std::string>{start + rest});
        }
    }
    for (auto const& row : fault_texts) EXPECT_TRUE(row.fault != Fault{} && !row.text.empty());
}

TEST(MissingList, is_told_once_and_the_program_works_without)
{
    Program program{std::nullopt};
    EXPECT_EQ(
        program.desktop.boxes,
        std::vector<std::string>{
            "File Not Found: File '" + program.folder.path("modif.txt") +
            "' not found. Make sure the file hasn't been moved or deleted. Please reinstall the program if this occurs again. [OK, exclamation, OK]"});
    EXPECT_EQ(program.form.chkMisc.highest() + program.form.cmbMisc.highest(), 0);
    program.form.opt(6).set_selected(true);
    EXPECT_EQ(program.form.txtTotal.text(), "2");
    EXPECT_EQ(program.form.ArmyA.MiscValue[0], 0);
}

} // namespace
} // namespace warhost
