// From the toolkit's keys to the codes that the canvas knows.
#pragma once

#include <Qt>

namespace velmora {

/// The code of a key of the keyboard, 0 for a key that has none: it is a key all the same. The
/// toolkit names a key by the character that it types, and many a sign's character is another key's
/// code ("." that of Delete); a sign has none therefore. Letters and digits are their capitals.
[[nodiscard]] int key_code(int key, Qt::KeyboardModifiers modifiers);

} // namespace velmora
