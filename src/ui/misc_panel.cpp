#include "files/modifier_list.h"
#include "files/whole_file.h"
#include "ui/main.h"

#include <filesystem>

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

} // namespace

void Main::ReadMiscMod()
{
    std::string const path = list_path(desktop_.program_directory());
    if (!CheckFile(path)) return;
    std::vector<ModifierEntry> entries;
    quiet_step([&] { entries = parse_modifier_list(read_file(path)); });
    int row = 0;
    for (auto const& entry : entries) {
        ++row;
        ComboBox& value = cmbMisc.create(row);
        value.Change = [this, row] { cmbMisc_Change(row); };
        value.Click = [this, row] { cmbMisc_Click(row); };
        value.place = cmbMisc(0).place;
        value.help_topic = entry.help_topic;
        for (int k = entry.low; k <= entry.high; ++k) value.add_item(SignedText(k));
        value.set_text(SignedText(entry.initial));

        CheckBox& box = chkMisc.create(row, caption_of(entry));
        box.Click = [this, row] { chkMisc_Click(row); };
        box.place = chkMisc(0).place;
        box.striped = row % 2 == 1;
        box.help_topic = entry.help_topic;
    }
    PositionMiscMod();
}

void Main::PositionMiscMod()
{
    auto const pixel = static_cast<float>(desktop_.twips_per_pixel_y());
    for (int row = 1; row <= cmbMisc.highest(); ++row) {
        Place& value = cmbMisc(row).place;
        value.Top = cmbMisc(row - 1).place.Top + value.Height - pixel;
        Place& box = chkMisc(row).place;
        box.Top = value.Top;
        box.Height = value.Height;
    }
}

} // namespace warhost
