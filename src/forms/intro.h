// The start window intro: what the program reads and opens before its main window is there.
#pragma once

namespace velmora {

/// Load: version, settings, session flags, language database, literals. Without a database the
/// design texts stay; one that can't be read is replaced by the design texts and the Spanish
/// messages. Raises what LeeSettings does.
void intro_Load();

} // namespace velmora
