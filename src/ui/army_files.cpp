#include "files/army_format.h"
#include "files/whole_file.h"
#include "ui/main.h"

#include <algorithm>
#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace warhost {

namespace {

constexpr std::string_view file_extension = ".Army";
constexpr char const* file_filter = "Warhost Army Files (*.Army)|*.Army|All Files|*.*";

/// In bytes of UTF-8. Usual file systems take 255 bytes or 255 UTF-16 units, which are never more than the bytes.
constexpr std::size_t longest_file_name = 255;

std::string proposed_file_name(std::string name)
{
    constexpr std::string_view not_in_names = "\\/:*?\"<>|.";
    constexpr std::size_t room = longest_file_name - file_extension.size();
    auto const inside_character = [&](std::size_t place) { return (name[place] & 0xC0) == 0x80; };
    std::size_t end = std::min(name.size(), room);
    while (end > 0 && inside_character(end)) --end;
    name.resize(end);
    std::replace_if(
        name.begin(), name.end(), [&](char c) { return not_in_names.find(c) != std::string_view::npos; }, '_');
    return name.append(file_extension);
}

} // namespace

bool Main::refused_on_combat_tab()
{
    if (army_tab_selected()) return false;
    quiet_step([&] {
        desktop_.message_box({.text = "Please click on either the Side A or Side B tab before using this menu.",
                              .icon = Icon::exclamation});
    });
    return true;
}

void Main::cmdLoadArmy_Click()
{
    load_chosen([&] {
        return desktop_.file_dialog({.kind = FileDialogKind::open,
                                     .title = "Load Warhost Army File",
                                     .default_extension = std::string{file_extension},
                                     .filter = file_filter,
                                     .file_name = {},
                                     .file_must_exist = true,
                                     .folder_must_exist = true});
    });
}

void Main::load_dropped_army(std::string const& path)
{
    load_chosen([&] { return std::optional{path}; });
}

void Main::load_chosen(std::function<std::optional<std::string>()> const& choose)
{
    if (refused_on_combat_tab()) return;
    std::optional<std::string> path;
    step([&] {
        KeptTab const kept{*this};
        path = choose();
        if (!path) return;
        bool exists = false;
        desktop_.wait_for([&] { exists = FileExists(*path); });
        if (exists) return;
        path.reset();
        desktop_.message_box({.text = "File not found."});
    });
    if (path) {
        LoadArmy(*path);
        step([&] { CurArmy_Save(); });
        CurArmy_Update();
        CalcTotal();
    }
    ErrReport("loading an army file");
}

void Main::cmdSaveArmy_Click()
{
    if (refused_on_combat_tab()) return;
    std::optional<std::string> path;
    step([&] {
        KeptTab const kept{*this};
        path = desktop_.file_dialog({.kind = FileDialogKind::save,
                                     .title = "Save Warhost Army File",
                                     .default_extension = std::string{file_extension},
                                     .filter = file_filter,
                                     .file_name = proposed_file_name(CurArmy.Name),
                                     .folder_must_exist = true,
                                     .overwrite_prompt = true});
    });
    if (path) {
        SaveArmy(*path);
        step([&] { CurArmy_Save(); });
        CurArmy_Update();
    }
    ErrReport("Saving an army file");
}

void Main::LoadArmy(std::string const& path)
{
    step([&] {
        std::string bytes;
        {
            KeptTab const kept{*this};
            desktop_.wait_for([&] { bytes = read_file(path); });
        }
        CurArmy = decode_army(bytes);
    });
    KeptTab const kept{*this};
    ErrReport("Loading an army");
}

void Main::SaveArmy(std::string const& path)
{
    step([&] {
        std::string const bytes = encode_army(CurArmy);
        KeptTab const kept{*this};
        desktop_.wait_for([&] { replace_file(path, bytes); });
    });
    KeptTab const kept{*this};
    ErrReport("Saving an army");
}

} // namespace warhost
