// The one control of the window that belongs to neither screen.
#pragma once

#include "army/armies.h"
#include "ui/fields.h"

namespace warhost {

/// Positions of the tabs.
enum Tab : int { tab_side_a = side_a, tab_side_b = side_b, tab_combat = 3 };

struct WindowControls {
    Tabs TabStrip{"TabStrip", "", {0, 45, 12840, 9255}};
};

} // namespace warhost
