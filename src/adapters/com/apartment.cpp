#include "adapters/com/apartment.h"

#include "adapters/com/windows_headers.h"

namespace velmora::com {

// A thread that another kind of apartment was opened for is used as it is, and not closed here.
Apartment::Apartment() : opened_(SUCCEEDED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED))) {}

Apartment::~Apartment() {
    if (opened_)
        CoUninitialize();
}

} // namespace velmora::com
