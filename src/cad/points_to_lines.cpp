#include "cad/points_to_lines.h"

#include "cad/entities.h"
#include "document/feedback.h"
#include "document/flag.h"
#include "document/forma.h"
#include "document/state/cad.h"
#include "services/message_codes.h"
#include "services/messages.h"

#include <algorithm>
#include <bit>
#include <functional>
#include <unordered_map>

namespace velmora {

namespace {

/// How many ends of elements other than points lie exactly at a place.
class EndCount {
  public:
    void add(const ObjCad& object) { change(object, 1); }
    void remove(const ObjCad& object) { change(object, -1); }
    [[nodiscard]] bool any_at(const Pto& point) const {
        const auto found = counts_.find(key_of(point));
        return found != counts_.end() && found->second > 0;
    }

  private:
    struct Key {
        double X;
        double Y;
        bool operator==(const Key&) const = default;
    };
    struct Hash {
        std::size_t operator()(const Key& key) const {
            const std::hash<double> of_one;
            return of_one(key.X) * 31 + of_one(key.Y);
        }
    };

    static Key key_of(const Pto& point) { return {point.X, point.Y}; }

    void change(const ObjCad& object, std::int32_t by) {
        if (object.Tipo == TipoCad::AcDbPoint)
            return;
        counts_[key_of(object.Ptos[0])] += by;
        counts_[key_of(last_point(object))] += by;
    }

    std::unordered_map<Key, std::int32_t, Hash> counts_;
};

bool same_but_id(const ObjCad& a, const ObjCad& b) {
    return a.Tipo == b.Tipo && a.NPtos == b.NPtos && a.Usado == b.Usado && a.Orden == b.Orden &&
           std::ranges::equal(a.Ptos.all(), b.Ptos.all());
}

/// Notices that a list comes back to an earlier state: it is compared with one kept state, which is
/// taken anew after 1, 2, 4, 8, ... rounds.
class LoopWatch {
  public:
    void look_at(const Array<ObjCad>& list) {
        if (std::ranges::equal(list.all(), kept_.all(), same_but_id))
            raise(error::overflow);
        if (std::has_single_bit(++rounds_))
            kept_ = list;
    }

  private:
    Array<ObjCad> kept_;
    std::uint32_t rounds_ = 0;
};

class Conversion {
  public:
    explicit Conversion(Array<ObjCad>& list) : list_(list) {
        for (const ObjCad& object : list.all())
            ends_.add(object);
    }

    void run_round() {
        convert_first_that_meets_a_line();
        const std::int32_t i = convert_leading_points();
        if (i < list_.upper())
            remove(i);
        else
            shrink();
    }

  private:
    [[nodiscard]] bool is_point(std::int32_t i) const {
        return list_[i].Tipo == TipoCad::AcDbPoint;
    }

    void make_line(std::int32_t i) {
        list_[i].Tipo = TipoCad::AcDbLine;
        ends_.add(list_[i]);
    }

    void make_line_to_next(std::int32_t i) {
        list_[i].Ptos[1] = list_[i + 1].Ptos[0];
        make_line(i);
    }

    void convert_first_that_meets_a_line() {
        for (std::int32_t i = 0; i < list_.upper(); ++i) {
            if (is_point(i) && ends_.any_at(list_[i].Ptos[0])) {
                make_line_to_next(i);
                return;
            }
        }
    }

    /// Returns the index where the leading run of points stopped.
    std::int32_t convert_leading_points() {
        std::int32_t i = 0;
        for (; i < list_.upper() && is_point(i); ++i)
            make_line_to_next(i);
        if (i == list_.upper() && is_point(i))
            make_line(i);
        return i;
    }

    /// The bounds stay, so the last element is there twice.
    void remove(std::int32_t i) {
        ends_.remove(list_[i]);
        const auto all = list_.all();
        const ObjCad last = all.back();
        std::move(all.begin() + i + 1, all.end(), all.begin() + i);
        for (ObjCad& shifted : all.subspan(static_cast<std::size_t>(i)))
            --shifted.Id;
        all.back() = last;
        ends_.add(last);
    }

    void shrink() {
        ends_.remove(list_[list_.upper()]);
        list_.redim_keep(list_.upper() - 1);
    }

    Array<ObjCad>& list_;
    EndCount ends_;
};

} // namespace

void PuntosALineas() {
    set_status(GetMensaje(message::points_to_lines));
    if (HayPuntos() == True)
        return;
    Conversion conversion(state::cad.ObjsCad);
    LoopWatch watch;
    while (HayPuntos() == False) {
        watch.look_at(state::cad.ObjsCad);
        conversion.run_round();
    }
}

} // namespace velmora
