// Stands where no CAD can be reached: none ever runs.
#pragma once

#include "cad/autocad.h"

namespace velmora {

class NoAutocad : public Autocad {
  public:
    /// Raises 429.
    [[nodiscard]] std::shared_ptr<AcadApplication> GetObject() override;
    /// Raises 5.
    void AppActivate() override;
};

} // namespace velmora
