#include "scripted/answers.h"

namespace velmora::driver {

int default_answer(int buttons_and_icon) {
    const int set = buttons_and_icon & 7;
    return set == buttons::yes_no || set == buttons::yes_no_cancel ? answer::yes : answer::ok;
}

} // namespace velmora::driver
