// The tabs and menus as the window shows them.
#pragma once

#include <array>
#include <string_view>

namespace warhost {

struct TabCaption {
    std::string_view caption;
    std::string_view tooltip; // empty: none
};

/// By position, 1 to 3.
inline constexpr std::array tab_captions{
    TabCaption{"Army: Side A", "Create an army and set it's modifiers"},
    TabCaption{"Army: Side B", ""},
    TabCaption{"Run Combat", ""},
};

/// A row whose caption is "-" is a separator line; an address opens in the browser.
struct WebLink {
    int index;
    std::string_view caption;
    std::string_view address;
};

inline constexpr std::array web_links{
    WebLink{1, "&Rules Publisher", "https://rules-publisher.example/"},
    WebLink{3, "&Battle System", "https://rules-publisher.example/battle-system"},
    WebLink{5, "-", ""},
    WebLink{7, "&Gamemind", "https://gamemind.example/"},
    WebLink{9, "Gamemind &Downloads", "https://gamemind.example/downloads"},
};

/// An item of the File or Help menu, by its name; the shortcut is empty where there is none.
struct MenuItem {
    std::string_view name;
    std::string_view caption;
    std::string_view shortcut;
};

inline constexpr std::array file_menu{
    MenuItem{"mnuLoad", "&Load", "Ctrl+L"},
    MenuItem{"mnuSave", "&Save", "Ctrl+S"},
    MenuItem{"mnuQuit", "&Quit", ""},
};

inline constexpr std::array help_menu{
    MenuItem{"mnuHelpContents", "&Help Contents", ""},
    MenuItem{"mnuAbout", "&About", ""},
};

} // namespace warhost
