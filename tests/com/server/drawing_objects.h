// The object model of a CAD's automation over the abstract operations that the logic uses.
#pragma once

#include "cad/autocad.h"
#include "server/served.h"

#include <functional>
#include <memory>
#include <vector>

namespace velmora::test {

using FindApplication = std::function<std::shared_ptr<AcadApplication>()>;

/// The members of the application; `find` is asked at each use, since the registered object is
/// there before the script says what runs.
[[nodiscard]] std::vector<Member> application_members(Manners& manners,
                                                      const FindApplication& find);

} // namespace velmora::test
