#include "runtime/file_faults.h"

namespace velmora::runtime {

int fault_number(const std::error_code& fault, FileNeed need) {
    if (fault == std::errc::no_such_file_or_directory)
        return need == FileNeed::made ? error::path_not_found : error::file_not_found;
    if (fault == std::errc::not_a_directory)
        return error::path_not_found;
    // A bad descriptor: writing to what could be opened for reading alone.
    if (fault == std::errc::is_a_directory || fault == std::errc::read_only_file_system ||
        fault == std::errc::bad_file_descriptor)
        return error::path_access;
    if (fault == std::errc::permission_denied || fault == std::errc::operation_not_permitted ||
        fault == std::errc::text_file_busy)
        return error::permission_denied;
    if (fault == std::errc::no_space_on_device || fault == std::errc::file_too_large)
        return error::disk_full;
    if (fault == std::errc::filename_too_long || fault == std::errc::invalid_argument)
        return error::bad_file_number;
    return error::device_io;
}

} // namespace velmora::runtime
