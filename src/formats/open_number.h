// A file number that does not stay open.
#pragma once

#include "document/state/loading.h"

namespace velmora {

/// Closes a number on every way out, so that a fault leaves none behind. Made once the number was
/// opened: one that was open before is not its own.
class OpenNumber {
  public:
    explicit OpenNumber(int number) : number_(number) {}
    ~OpenNumber() { state::loading.files.abandon(number_); }
    OpenNumber(const OpenNumber&) = delete;
    OpenNumber& operator=(const OpenNumber&) = delete;

  private:
    int number_;
};

} // namespace velmora
