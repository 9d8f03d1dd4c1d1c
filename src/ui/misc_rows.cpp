#include "files/modifier_list.h"
#include "files/whole_file.h"
#include "ui/main.h"

#include <filesystem>
#include <optional>
#include <string>

namespace warhost {

namespace {

std::string list_path(std::string const& directory)
{
    return directory + static_cast<char>(std::filesystem::path::preferred_separator) + "modif.txt";
}

std::string caption_of(ModifierEntry const& entry)
{
    std::string const range =
        entry.low == entry.high ? SignedText(entry.low) : SignedText(entry.low) + " to " + SignedText(entry.high);
    return std::string{without_outer(" ", entry.name + " (" + range + ")")};
}

/// Rows that are made with the list; the others are made when the panel is tall enough to show them.
constexpr int first_rows = 1000;
static_assert(first_rows >= record_choices - 1, "every row that counts is there from the start");

} // namespace

void Main::ReadMiscMod()
{
    bool found = false;
    quiet_step([&] {
        std::string const path = list_path(desktop_.program_directory());
        found = CheckFile(path);
        if (found) desktop_.wait_for([&] { misc_list_ = ModifierList{read_file(path)}; });
    });
    if (!found) return;
    while (chkMisc.highest() < first_rows && make_misc_row()) {}
    PositionMiscMod();
}

bool Main::make_misc_row()
{
    std::optional<ModifierEntry> entry;
    quiet_step([&] { entry = misc_list_.next(); });
    if (!entry) return false;
    int const row = cmbMisc.highest() + 1;
    bool const made = quiet_step([&] {
        ComboBox& value = cmbMisc.create(row);
        value.place = cmbMisc(0).place;
        value.help_topic = entry->help_topic;
        value.set_list(entry->low, entry->high);
        value.set_text(SignedText(entry->initial));
        value.Change = [this, row] { cmbMisc_Change(row); };
        value.Click = [this, row] { cmbMisc_Click(row); };

        CheckBox& box = chkMisc.create(row, caption_of(*entry));
        box.Click = [this, row] { chkMisc_Click(row); };
        box.place = chkMisc(0).place;
        box.striped = row % 2 == 1;
        box.help_topic = entry->help_topic;
    });
    if (made) return true;
    // Armies identify rows by position, so no later row may take this position.
    chkMisc.remove(row);
    cmbMisc.remove(row);
    misc_list_ = {};
    return false;
}

bool Main::add_misc_row()
{
    if (!make_misc_row()) return false;
    place_misc_row(cmbMisc.highest());
    return true;
}

void Main::place_misc_row(int row)
{
    auto const pixel = static_cast<float>(desktop_.twips_per_pixel_y());
    RowPlace& value = cmbMisc(row).place;
    value.Top = cmbMisc(row - 1).place.Top + value.Height - pixel;
    RowPlace& box = chkMisc(row).place;
    box.Top = value.Top;
    box.Height = value.Height;
}

void Main::PositionMiscMod()
{
    for (int row = 1; row <= cmbMisc.highest(); ++row) place_misc_row(row);
}

} // namespace warhost
