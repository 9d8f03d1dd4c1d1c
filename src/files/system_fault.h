// The system's error codes as failures.
#pragma once

#include "base/failure.h"

#include <string>
#include <system_error>

namespace warhost {

/// The failure of an operation on the file at path, by the system's error code.
Failure file_failure(std::error_code code, std::string const& path);

} // namespace warhost
