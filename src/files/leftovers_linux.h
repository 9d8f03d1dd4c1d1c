// Clearing away what killed saves left.
#pragma once

#include "files/descriptor_linux.h"

namespace warhost {

/// Removes the temporary files of this user's killed saves from the folder: ordinary files that no save has locked and
/// that have no second name. Stops when the search takes long; never fails and never waits for a pipe.
void remove_leftovers(Descriptor const& folder);

} // namespace warhost
