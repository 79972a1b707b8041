// The thread's use of COM: from the first object to the last one.
#pragma once

namespace velmora::com {

class Apartment {
  public:
    /// Shares what the thread has already, where the windows have opened it.
    Apartment();
    ~Apartment();
    Apartment(const Apartment&) = delete;
    Apartment& operator=(const Apartment&) = delete;

  private:
    bool opened_;
};

} // namespace velmora::com
