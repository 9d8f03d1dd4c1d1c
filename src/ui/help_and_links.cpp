#include "ui/main.h"
#include "ui/menus.h"

namespace warhost {

void Main::mnuWeb_Click(int Index)
{
    for (auto const& link : web_links) {
        if (link.index == Index && !link.address.empty()) quiet_step([&] { OpenWebPage(std::string{link.address}); });
    }
}

bool Main::OpenWebPage(std::string const& address) { return desktop_.open_address(address); }

void Main::mnuHelpContents_Click()
{
    quiet_step([&] { desktop_.show_help(0); });
}

void Main::mnuAbout_Click()
{
    quiet_step([&] { desktop_.show_about(); });
}

} // namespace warhost
