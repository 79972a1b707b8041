// Which types of files the desktop has a program for.
#pragma once

#include <QStringList>

namespace velmora {

/// An installed program says, or the user has said, that it opens one of these MIME types. The
/// desktop's own starter can't be asked: it says yes to everything and shows a box of its own.
[[nodiscard]] bool desktop_opens(const QStringList& types);

} // namespace velmora
