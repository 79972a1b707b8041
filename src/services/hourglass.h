// The hourglass for as long as a look-up takes.
#pragma once

#include "document/feedback.h"
#include "document/pointer_shape.h"
#include "document/windows/velmora.h"

namespace velmora {

/// Sets the hourglass and puts back the pointer that was there, on every way out: a look-up that
/// fails may be passed over by its caller, and the pointer must not stay.
class Hourglass {
  public:
    Hourglass() : before_(state::Velmora.MousePointer) { set_pointer(pointer::hourglass); }
    Hourglass(const Hourglass&) = delete;
    Hourglass& operator=(const Hourglass&) = delete;
    ~Hourglass() { set_pointer(before_); }

  private:
    int before_;
};

} // namespace velmora
