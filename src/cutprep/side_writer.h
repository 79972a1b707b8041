// Writing the results of the adjustment.
#pragma once

#include "cutprep/side.h"

namespace velmora {

/// Writes each side's Ptos2 to its Txt_File2 as records, with the decimal point whatever the
/// machine's separator. Consecutive points of equal text are written once. With `all_sync` every
/// point counts as a sync point, repeats too. Files of these names go to the recycle bin, both
/// before either of the new ones takes its name; a first file is whole and in its place also when
/// the second one fails. Raises the faults of the files.
void write_results(const Side& first, const Side& second, bool all_sync);

} // namespace velmora
