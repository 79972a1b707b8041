// One service of the platform in place of another, the rest as they are.
#pragma once

#include "platform/platform.h"

#include <type_traits>

namespace velmora::test {

/// The one of both that a test put there for this kind of service, else the present one.
template <class Service, class Own>
Service& own_or_present(Service& present, Own& own) {
    if constexpr (std::is_base_of_v<Service, Own>)
        return own;
    else
        return present;
}

/// Makes `own` the platform's service of each kind that it is.
template <class Own>
void put_in_place(Own& own) {
    const Platform now = platform();
    set_platform({own_or_present(now.dialogs, own), own_or_present(now.windows, own),
                  own_or_present(now.shell, own), own_or_present(now.settings, own),
                  own_or_present(now.database, own), own_or_present(now.clock, own),
                  own_or_present(now.machine, own), own_or_present(now.pic, own),
                  own_or_present(now.cad, own), now.previews, now.printer, now.text_outlines});
}

} // namespace velmora::test
