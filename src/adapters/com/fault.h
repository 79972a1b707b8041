// The run-time's error for what COM answers.
#pragma once

#include "adapters/com/windows_headers.h"
#include "runtime/error.h"

namespace velmora::com {

/// What an automation call left when it failed; owns its texts.
class Exception {
  public:
    Exception() = default;
    ~Exception();
    Exception(const Exception&) = delete;
    Exception& operator=(const Exception&) = delete;

    [[nodiscard]] EXCEPINFO* receive() { return &info_; }
    /// Fetches what the object keeps back until it is asked for.
    void complete();
    [[nodiscard]] const EXCEPINFO& info() const { return info_; }

  private:
    EXCEPINFO info_{};
};

/// The error of a failed call. The application's own number goes through as it is, a number of the
/// run-time that travels as 800Axxxx as itself. COM's own faults have the run-time's numbers: 462
/// where the application is gone, 438 for an unknown member, 13, 9, 6, 5, 7, 70; any other keeps
/// its own.
[[nodiscard]] RuntimeError fault_of(HRESULT result);
[[nodiscard]] RuntimeError fault_of(HRESULT result, Exception& exception);

/// Raises the error of a failed call.
void check(HRESULT result);

} // namespace velmora::com
