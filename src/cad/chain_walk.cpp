#include "cad/chain_walk.h"

#include "cad/chain_finder.h"
#include "document/feedback.h"
#include "document/state/cad.h"
#include "document/windows/velmora.h"
#include "services/message_codes.h"
#include "services/messages.h"

#include <numeric>
#include <utility>
#include <vector>

namespace velmora {

namespace {

/// Goes over the unused elements by index, again and again, until none is left: each either finds
/// a continuation of the chain, which need not be itself and goes to `place`, or is given up.
template <class Place, class GiveUp>
void walk(ChainFinder& finder, std::int32_t current, const Place& place, const GiveUp& give_up) {
    std::vector<std::int32_t> round(state::cad.ObjsCad.size());
    std::iota(round.begin(), round.end(), 0);
    while (finder.unused() > 0) {
        std::vector<std::int32_t> left;
        for (const std::int32_t i : round) {
            if (finder.is_used(i))
                continue;
            const std::int32_t found = finder.next_after(current);
            finder.take(found > -1 ? found : i);
            if (found > -1) {
                current = found;
                place(found);
            } else {
                give_up(i);
            }
            if (!finder.is_used(i))
                left.push_back(i);
        }
        round = std::move(left);
    }
}

/// An empty list: its one element was never filled.
bool holds_no_entity(const Array<ObjCad>& objects) {
    return objects.upper() == 0 && !objects[0].Ptos.dimensioned();
}

std::optional<std::int32_t> origin_not_on_shape() {
    MuestraMensaje(message::origin_not_on_shape);
    return std::nullopt;
}

void show_progress(double placed) {
    state::Velmora.Pbar1.Value = placed;
    DoEvents();
}

} // namespace

void walk_dxf() {
    Array<ObjCad>& objects = state::cad.ObjsCad;
    if (objects.upper() == 0)
        return;
    state::Velmora.Pbar1 = {.Min = 0, .Max = static_cast<double>(objects.upper()), .Value = 0};
    ChainFinder finder(objects);
    finder.take(0);
    objects[0].Orden = 0;
    std::int32_t position = 0;
    const auto place = [&](std::int32_t found) {
        objects[found].Orden = ++position;
        show_progress(position);
    };
    walk(finder, 0, place, [](std::int32_t) {});
}

std::optional<std::int32_t>
walk_capture(std::int32_t model_space_count,
             const std::function<void(std::int32_t)>& colour_incoherent) {
    set_status(GetMensaje(message::reorganising_1));
    Array<ObjCad>& objects = state::cad.ObjsCad;
    if (holds_no_entity(objects))
        return origin_not_on_shape();
    ChainFinder finder(objects);
    const std::int32_t start =
        finder.BuscaSiguiente(state::cad.CadOrigX, state::cad.CadOrigY, true);
    if (start == -1)
        return origin_not_on_shape();
    // The only entity of a drawing is left to the walk, which places it at 0.
    const bool several = model_space_count > 1;
    std::int32_t position = 0;
    std::int32_t placed = 0;
    if (several) {
        finder.take(start);
        objects[start].Orden = position;
        ++placed;
    }
    std::int32_t incoherent = 0;
    const auto place = [&](std::int32_t found) {
        if (several)
            ++position;
        objects[found].Orden = position;
        show_progress(++placed);
    };
    const auto give_up = [&](std::int32_t index) {
        colour_incoherent(index);
        ++incoherent;
    };
    walk(finder, start, place, give_up);
    return incoherent;
}

} // namespace velmora
