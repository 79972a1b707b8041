// Writing the results of the adjustment.
#pragma once

#include "document/forma.h"

#include <string>

namespace velmora {

/// The points of a side and the file that they go to.
struct Result {
    const Array<Pto>& points;
    const std::string& path;
};

/// Writes each side's points to its file as records, with the decimal point whatever the machine's
/// separator. Consecutive points of equal text are written once. With `all_sync` every point counts
/// as a sync point, repeats too. Files of these names go to the recycle bin, both before either of
/// the new ones takes its name; a first file is whole and in its place also when the second one
/// fails. Raises the faults of the files.
void write_results(const Result& first, const Result& second, bool all_sync);

} // namespace velmora
