// Where to save what a window writes: the dialog, and the question whether to write over a file.
#pragma once

#include "platform/dialogs.h"

#include <string>

namespace velmora {

/// The name to offer beside a file: its own with another extension, ".png". Empty for no file.
[[nodiscard]] std::string beside(const std::string& file, const std::string& extension);

/// Asks until the place is free or may be written over; the extension of the request goes behind a
/// name that has none. Empty where the user gave up.
[[nodiscard]] std::string ask_where_to_save(const FileRequest& request);

} // namespace velmora
