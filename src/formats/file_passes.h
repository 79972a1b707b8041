// The passes that rewrite an outline's file, and what all file routines share: the recycle bin, the
// pieces of a path.
#pragma once

#include <string>
#include <string_view>

namespace velmora {

/// Sends the file to the recycle bin, without a question. True when it is gone.
bool BorraFichero(std::string_view path);

/// The path left of the last separator with four characters or more after it: a name has at least
/// three letters and a point. Empty when there is none.
[[nodiscard]] std::string QuitaNombre(std::string_view path);
/// What follows the last "\" or "/".
[[nodiscard]] std::string SoloNombre(std::string_view path);
/// What follows the last "\"; the rule for descriptions.
[[nodiscard]] std::string after_last_backslash(std::string_view text);

/// Rewrites the file with the machine's separator when lines 4 to 13 hold none. Gives the path of
/// what is to be read: the file's own, or that of the passed copy in the program's folder where the
/// file can't be rewritten and stays as it was. A rewritten file keeps its permissions; of a
/// symbolic link the target is rewritten.
std::string SetDecimalSep(std::string_view path);
/// Rewrites the file with blanks for tabs when one of lines 4 to 13 has a tab, likewise.
std::string TabToSpace(std::string_view path);
/// Rewrites the file with "." for "," when one of lines 4 to 13 has a comma; the last two bytes
/// are lost, on purpose.
void SetDotDecimals(std::string_view path);

} // namespace velmora
