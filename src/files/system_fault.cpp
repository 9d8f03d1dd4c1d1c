#include "files/system_fault.h"

#include <array>
#include <string>
#include <system_error>

namespace warhost {

namespace {

struct SystemFault {
    std::errc code;
    Fault fault;
};

constexpr std::array system_faults{
    SystemFault{std::errc::no_such_file_or_directory, Fault::file_not_found},
    SystemFault{std::errc::not_a_directory, Fault::folder_not_found},
    SystemFault{std::errc::permission_denied, Fault::permission_denied},
    SystemFault{std::errc::operation_not_permitted, Fault::permission_denied},
    SystemFault{std::errc::is_a_directory, Fault::is_a_folder},
    SystemFault{std::errc::filename_too_long, Fault::bad_name},
    SystemFault{std::errc::invalid_argument, Fault::bad_name},
    SystemFault{std::errc::read_only_file_system, Fault::read_only},
    SystemFault{std::errc::no_space_on_device, Fault::disk_full},
    SystemFault{std::errc::file_too_large, Fault::too_large},
    SystemFault{std::errc::too_many_files_open, Fault::too_many_open},
    SystemFault{std::errc::too_many_files_open_in_system, Fault::too_many_open},
    SystemFault{std::errc::too_many_symbolic_link_levels, Fault::link_loop},
    SystemFault{std::errc::text_file_busy, Fault::busy},
    SystemFault{std::errc::device_or_resource_busy, Fault::busy},
    SystemFault{std::errc::resource_unavailable_try_again, Fault::busy},
    SystemFault{std::errc::io_error, Fault::device_error},
    SystemFault{std::errc::not_enough_memory, Fault::out_of_memory},
    SystemFault{std::errc::timed_out, Fault::not_available},
    SystemFault{std::errc::no_such_device, Fault::not_available},
    SystemFault{std::errc::no_such_device_or_address, Fault::not_available},
    SystemFault{std::errc::no_link, Fault::connection_lost},
    SystemFault{std::errc::not_connected, Fault::connection_lost},
    SystemFault{std::errc::connection_aborted, Fault::connection_lost},
    SystemFault{std::errc::connection_reset, Fault::connection_lost},
    SystemFault{std::errc::host_unreachable, Fault::connection_lost},
    SystemFault{std::errc::network_unreachable, Fault::connection_lost},
};

} // namespace

Failure file_failure(std::error_code code, std::string const& path)
{
    for (auto const& row : system_faults) {
        if (code == row.code) return failure_of(row.fault, path);
    }
    return failure_of(Fault::file_error, path + " (" + code.message() + ")");
}

} // namespace warhost
