// What stands in for a language database that can't be read.
#pragma once

namespace velmora {

/// Opens an empty database with the Spanish messages, under the code of every language, and the
/// work table of an adjustment. It has no texts of windows: these keep what they were designed
/// with.
void open_stand_in_database();

} // namespace velmora
