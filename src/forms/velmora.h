// The main window from its load and first activation to the way out of the program.
#pragma once

#include <cstdint>

namespace velmora {

/// Load of the main window: session values, separator, caption, literals, recent files.
void Velmora_Load();
/// First activation: connects to the CAD, shows the side windows, says what became of the program's
/// own files. Later ones do nothing.
void Velmora_Activate();
/// The main window's close box was used: the side windows go and the program ends, without a
/// question.
void Velmora_QueryUnload();

/// Asks whether to leave, and leaves; `cancel` becomes -1 when not. Silent while ExitConfirmed is
/// set. Raises what MuestraMensaje does.
void SalVelmora(std::int16_t& cancel);

/// Opens TxtDat_File with the platform's program for it; message 84 when it is not there. An empty
/// name does nothing.
void AbreEdicion();

} // namespace velmora
