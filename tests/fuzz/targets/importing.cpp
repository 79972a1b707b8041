// Files of other programs.
#include "import/import_bytes.h"

#include "fuzz/target.h"
#include "fuzz/targets.h"

#include <array>
#include <cmath>

namespace velmora::fuzz {

namespace {

imports::Choices choices_of(Choice& choice) {
    imports::Choices choices;
    choices.order = static_cast<imports::RowOrder>(choice.below(5));
    if (choice.below(4) == 3)
        choices.kind = static_cast<imports::Kind>(1 + choice.below(4));
    return choices;
}

} // namespace

void import_file(std::string_view bytes) {
    static constexpr auto names =
        std::to_array<const char*>({"x.dxf", "x.svg", "x.nc", "x.dat", "x.csv", "x.cor", "x"});
    Choice choice(bytes);
    const char* const name = names[choice.below(names.size())];
    const imports::Choices choices = choices_of(choice);
    // Never raises: what escapes here ends the process.
    const imports::Imported imported = imports::import_bytes(choice.rest(), name, choices);
    for (const imports::Chain& chain : imported.chains) {
        promise(!chain.points.empty(), "a chain has points");
        for (const imports::Point& point : chain.points)
            promise(std::isfinite(point.X) && std::isfinite(point.Y), "coordinates are finite");
    }
    for (const imports::Ask& ask : imported.asks)
        promise(ask.options.empty() || ask.best < ask.options.size(),
                "what was taken is one of the options");
}

} // namespace velmora::fuzz
