// One large picture of all pictures of a folder: a row a window's page, a column a language, theme
// and scale.
#pragma once

#include <QString>

namespace velmora::pictures {

/// Writes `contact-sheet.png` beside the pictures. False when there is none, or it cannot be
/// written.
[[nodiscard]] bool make_contact_sheet(const QString& folder);

} // namespace velmora::pictures
