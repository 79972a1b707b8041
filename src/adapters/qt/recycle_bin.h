// The desktop's recycle bin.
#pragma once

#include <QString>

namespace velmora {

/// Moves the file into the user's recycle bin. False where there is none for its path (another
/// filesystem, no home, a bin that cannot be written): the file then stands.
bool move_to_bin(const QString& path);
/// Moves the file into the user's recycle bin; where there is none for its path deletes it. True
/// when the file is gone.
bool recycle_file(const QString& path);

} // namespace velmora
