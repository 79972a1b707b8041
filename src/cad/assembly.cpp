#include "cad/assembly.h"

#include "cad/entities.h"
#include "document/feedback.h"
#include "document/flag.h"
#include "document/forma.h"
#include "document/number_text.h"
#include "document/pointer_shape.h"
#include "document/shown.h"
#include "document/state/cad.h"
#include "document/state/document.h"
#include "document/state/loading.h"
#include "document/windows/velmora.h"
#include "runtime/prefetch.h"
#include "services/message_codes.h"
#include "services/messages.h"

#include <utility>
#include <vector>

namespace velmora {

namespace {

constexpr std::int32_t nothing = -1;

/// The elements by chain position. A list that is scanned from its start over and over, each
/// position from where the one before it was found, finds them in this order.
class ByPosition {
  public:
    explicit ByPosition(const Array<ObjCad>& objects)
        : first_(objects.size(), nothing), next_(objects.size(), nothing) {
        for (std::int32_t i = objects.upper(); i >= 0; --i) {
            const std::int32_t position = objects[i].Orden;
            if (position < 0 || position > objects.upper())
                continue;
            next_[index(i)] = std::exchange(first_[index(position)], i);
        }
    }

    /// The first element at `position` that a scan meets when it goes on after `from`.
    [[nodiscard]] std::int32_t find(std::int32_t position, std::int32_t from) const {
        if (index(position) >= first_.size())
            return nothing;
        const std::int32_t first = first_[index(position)];
        for (std::int32_t i = first; i != nothing; i = next_[index(i)]) {
            if (i > from)
                return i;
        }
        return first;
    }

    /// The elements are scattered in memory: one is fetched some positions ahead of its turn, its
    /// points later.
    void fetch_ahead(std::int32_t position, const Array<ObjCad>& objects) const {
        constexpr std::int32_t points_ahead = 8;
        if (const ObjCad* element = first_at(position + 2 * points_ahead, objects))
            runtime::prefetch(element);
        const ObjCad* nearer = first_at(position + points_ahead, objects);
        if (nearer != nullptr && nearer->Ptos.dimensioned())
            runtime::prefetch(&nearer->Ptos[0]);
    }

  private:
    [[nodiscard]] const ObjCad* first_at(std::int32_t position,
                                         const Array<ObjCad>& objects) const {
        if (index(position) >= first_.size() || first_[index(position)] == nothing)
            return nullptr;
        return &objects[first_[index(position)]];
    }
    static std::size_t index(std::int32_t i) { return static_cast<std::size_t>(i); }

    std::vector<std::int32_t> first_; ///< by position
    std::vector<std::int32_t> next_;  ///< by element, rising
};

void put_point(const Pto& point, std::int32_t& write_index) {
    Forma.Pto.redim_keep(write_index);
    Forma.Pto[write_index] = {.X = point.X, .Y = point.Y};
    ++write_index;
    state::document.UltimoPto = write_index;
}

void start_figures() {
    state::document.UltimoPto = 0;
    shown::TotalPtos().put(0);
    shown::PtosSuprimidos().put(0);
    DoEvents();
    set_status(GetMensaje(message::reorganising_2));
    state::Velmora.Pbar1 = {.Min = 0, .Max = state::cad.ObjsCad.upper() + 1.0, .Value = 0};
}

void copy_only_entity(const ObjCad& object) {
    Forma.Pto.redim(object.NPtos);
    for (std::int32_t j = 0; j <= object.NPtos; ++j)
        Forma.Pto[j] = {.X = object.Ptos[j].X, .Y = object.Ptos[j].Y};
    state::document.UltimoPto = object.NPtos + 1;
}

/// An entity's first point is the last one of the entity before it.
void copy_entity(const ObjCad& object, bool with_first_point, std::int32_t& write_index) {
    if (with_first_point)
        put_point(object.Ptos[0], write_index);
    for (std::int32_t j = 1; j <= object.NPtos; ++j)
        put_point(object.Ptos[j], write_index);
}

std::size_t points_of_all() {
    std::size_t points = 0;
    for (const ObjCad& object : state::cad.ObjsCad.all())
        points += object.Ptos.size();
    return points;
}

void copy_chain(std::int32_t& write_index) {
    IniciaUsados();
    Forma.Pto.reserve(points_of_all());
    std::int32_t waiting = ContarNoUsados();
    const ByPosition entities(state::cad.ObjsCad);
    std::int32_t at = nothing;
    for (std::int32_t position = 0; waiting > 0; ++position) {
        at = entities.find(position, at);
        // A scan that places nothing would go on for ever.
        if (at == nothing)
            raise(error::invalid_call);
        entities.fetch_ahead(position, state::cad.ObjsCad);
        copy_entity(state::cad.ObjsCad[at], position == 0, write_index);
        state::cad.ObjsCad[at].Usado = True;
        --waiting;
        state::Velmora.Pbar1.Value = position + 1.0;
        DoEvents();
    }
}

void finish_figures() {
    shown::TotalPtos().put(state::document.UltimoPto - 1);
    set_pointer(pointer::standard);
    shown::TotalSinc().put(0);
    state::cad.ObjsCad.redim(0);
    DoEvents();
}

void assemble(std::int32_t& write_index) {
    start_figures();
    if (state::cad.ObjsCad.upper() == 0)
        copy_only_entity(state::cad.ObjsCad[0]);
    else
        copy_chain(write_index);
    Forma.Pto.redim_keep(Forma.Pto.upper() - 1);
    finish_figures();
}

} // namespace

void OBJS2PTS() {
    std::int32_t write_index = 0;
    trap([&] { assemble(write_index); },
         [&](const RuntimeError& failure) {
             state::loading.files.abandon(1);
             show_trap("Error OBJS2PTS nº: ", failure, "  -  En punto: " + CStr(write_index));
         });
}

} // namespace velmora
