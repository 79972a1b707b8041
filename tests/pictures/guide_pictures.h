// The pictures of the guide: the windows of its wing, in each language.
#pragma once

#include <QString>
#include <string_view>

namespace velmora::pictures {

/// Writes the pictures of one language into FOLDER/en/img, as script/pictures calls the folder
/// docs/help. False when one could not be taken.
[[nodiscard]] bool take_guide_pictures(const QString& folder, std::string_view language);

} // namespace velmora::pictures
