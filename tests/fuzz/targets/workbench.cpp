// The readers of a side.
#include "cutprep/side_readers.h"
#include "document/session.h"
#include "fuzz/stage.h"
#include "fuzz/target.h"
#include "fuzz/targets.h"

#include <cmath>

namespace velmora::fuzz {

namespace {

void expect_finite(const Array<Pto>& points) {
    for (const Pto& point : points.all())
        promise(std::isfinite(point.X) && std::isfinite(point.Y), "coordinates are finite");
}

} // namespace

void workbench(std::string_view bytes) {
    Choice choice(bytes);
    auto& machine = fresh_stage();
    session.PtosA.redim(0);
    session.PtosB.redim(0);
    // The search for sync points runs to the last point of the document.
    Forma.Pto.redim(static_cast<std::int32_t>(choice.below(2) * 20));
    session.SepDecimal = choice.below(2) == 0 ? '.' : ',';
    const std::size_t reader = choice.below(3);
    machine.dialogs.answers = {static_cast<int>(choice.below(2)) + 1};
    const std::string path = machine.write("x.dat", choice.rest());
    const Side side = side_of(choice.below(2) == 0 ? "A" : "B");
    answer([&] {
        Flag ok = False;
        if (reader == 0)
            CargaSLWSINC2(path, side.Ptos, side.lado, ok);
        else if (reader == 1)
            CargaSLWMD_a(path, side.Ptos, side.lado, ok);
        else
            (void)read_side(side, path);
    });
    expect_finite(side.Ptos);
}

} // namespace velmora::fuzz
