// Waiting for the disk.
#pragma once

#include <QString>

namespace velmora {

/// Returns when what was written to the file, or the names in the folder, are on the disk. Raises
/// 57 and 61 where the disk fails; a file system that knows no such wait, and what can't be opened,
/// say nothing.
void settle_on_disk(const QString& path);

} // namespace velmora
