#include "document/cancelling.h"

#include "document/feedback.h"
#include "document/pointer_shape.h"
#include "document/refresh.h"
#include "document/state/cad.h"
#include "document/state/loading.h"
#include "document/windows/velmora.h"
#include "platform/cancelled.h"

namespace velmora {

namespace {

/// The flag of work under way, and the numbers that it leaves open.
class Work {
  public:
    Work() {
        state::loading.reading = true;
        state::loading.cancel_asked = false;
    }
    ~Work() { state::loading.reading = state::loading.cancel_asked = false; }
    Work(const Work&) = delete;
    Work& operator=(const Work&) = delete;

    void close_files() const {
        if (!first_was_open_)
            state::loading.files.abandon(1);
        if (!second_was_open_)
            state::loading.files.abandon(2);
    }

  private:
    bool first_was_open_ = state::loading.files.is_open(1);
    bool second_was_open_ = state::loading.files.is_open(2);
};

std::array<std::int32_t*, 6> counts() {
    CadState& cad = state::cad;
    return {&cad.TotalObjs, &cad.NLines, &cad.NSplines,
            &cad.NCircles,  &cad.NArcs,  &cad.NLWPolylines};
}

} // namespace

bool run_or_cancel(const std::function<void()>& work) {
    const Work under_way;
    try {
        work();
    } catch (const Cancelled&) {
        under_way.close_files();
        return false;
    }
    return true;
}

ShapeBefore::ShapeBefore()
    : points_(Forma.Pto), document_(state::document), wininfo_(state::wininfo),
      description_(state::Velmora.TxtDescDat), file_(state::Velmora.TxtDat_File), counts_{} {
    for (std::size_t i = 0; i < counts_.size(); ++i)
        counts_[i] = *counts()[i];
}

void ShapeBefore::put_back() const {
    Forma.Pto = points_;
    state::document = document_;
    state::wininfo = wininfo_;
    state::Velmora.TxtDescDat = description_;
    state::Velmora.TxtDat_File = file_;
    for (std::size_t i = 0; i < counts_.size(); ++i)
        *counts()[i] = counts_[i];
    state::Velmora.Pbar1.Value = state::Velmora.pbar2.Value = 0;
    set_pointer(pointer::standard);
    if (has_shape())
        Dibuja();
}

} // namespace velmora
