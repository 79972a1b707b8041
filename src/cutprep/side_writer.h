// Writing a result of the adjustment.
#pragma once

#include "cutprep/side.h"

namespace velmora {

/// A file of the result's name goes to the recycle bin.
void remove_earlier_result(const Side& side);

/// Writes Ptos2 to Txt_File2 as records, with the decimal point whatever the machine's separator.
/// Consecutive points of equal text are written once. With `all_sync` every point counts as a sync
/// point, repeats too. Raises the faults of the file.
void write_result(const Side& side, bool all_sync);

} // namespace velmora
