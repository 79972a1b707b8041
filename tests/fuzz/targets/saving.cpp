// Saved and read back: equal points and marks, or a reason that has a name.
#include "document/session.h"
#include "formats/load.h"
#include "formats/outline_writer.h"
#include "formats/save.h"
#include "fuzz/stage.h"
#include "fuzz/target.h"
#include "fuzz/targets.h"
#include "runtime/numbers.h"

#include <algorithm>
#include <cstring>
#include <vector>

namespace velmora::fuzz {

namespace {

enum class Form { sync_dat, script, profile };

constexpr std::size_t kMostPoints = 200;
/// A machine with commas rewrites no shorter file, and then reads no fraction of it.
constexpr std::size_t kRewritten = 14;
constexpr double kLimit = 25000;

/// Coordinates as the form can keep them: within the limit of a load, and with the decimals that
/// the form writes.
double kept_coordinate(double value, Form form) {
    if (!(value > -kLimit && value < kLimit))
        return 0;
    return runtime::Round(value, form == Form::sync_dat ? 6 : 5) + 0.0;
}

/// 8 bytes a number of 32 bits each, some of them scaled, and a bit for the mark.
std::vector<Pto> points_of(std::string_view bytes, Form form) {
    std::vector<Pto> points;
    for (; bytes.size() >= 8 && points.size() < kMostPoints; bytes.remove_prefix(8)) {
        std::int32_t x = 0;
        std::int32_t y = 0;
        std::memcpy(&x, bytes.data(), sizeof x);
        std::memcpy(&y, bytes.data() + sizeof x, sizeof y);
        points.push_back({kept_coordinate(x / 65536.0, form), kept_coordinate(y / 1000.0, form),
                          static_cast<std::int16_t>(form == Form::sync_dat && (x & 1) != 0), 0});
    }
    return points;
}

bool equal_places(const Pto& a, const Pto& b) {
    return same_place(a, b);
}

/// A file holds a repeated point, and a sync record marks every point of its place: such an outline
/// comes back with other marks, on purpose. The last point equal to the first is the closing one.
bool has_places_of_its_own(const std::vector<Pto>& points) {
    std::vector<std::pair<double, double>> places;
    for (const Pto& point : points)
        places.emplace_back(point.X, point.Y);
    std::ranges::sort(places);
    return std::ranges::adjacent_find(places) == places.end();
}

/// A reader shifts an outline that holds no point (0, 0) or keeps one: so every outline here has
/// it.
void hold_the_origin(std::vector<Pto>& points, Form form) {
    const auto at_origin =
        std::ranges::find_if(points, [](const Pto& point) { return point.X == 0 && point.Y == 0; });
    if (at_origin == points.end())
        points.insert(points.begin(), {0, 0, 0, 0});
    else
        std::rotate(points.begin(), at_origin, points.end());
    if (form == Form::sync_dat)
        points.front().Sinc = 1;
}

bool save(const std::string& path) {
    session.Velmora.TxtDat_File = path;
    std::int16_t written = False;
    answer([&] { written = EscribeFichero(); });
    return written != False;
}

bool load(const std::string& path) {
    session.Velmora.TxtDat_File = path;
    std::int16_t result = False;
    answer([&] { CargaFichero(0, result); });
    return result != False;
}

} // namespace

void save_reopen(std::string_view bytes) {
    Choice choice(bytes);
    const auto form = static_cast<Form>(choice.below(3));
    const bool comma = choice.below(2) == 1;
    std::vector<Pto> points = points_of(choice.rest(), form);
    hold_the_origin(points, form);
    if (points.size() < 2 || !has_places_of_its_own(points))
        return;
    if (comma && points.size() < kRewritten)
        return;
    auto& machine = fresh_stage();
    session.SepDecimal = comma ? ',' : '.';
    session.GenDATSinc = flag(form == Form::sync_dat);
    session.GenSCR = flag(form == Form::script);
    session.GenDATPerfil = flag(form == Form::profile);
    Forma.Pto.redim(static_cast<std::int32_t>(points.size()) - 1);
    std::ranges::copy(points, Forma.Pto.all().begin());
    const std::string path = machine.path(form == Form::script ? "x.scr" : "x.dat");
    promise(save(path), "an outline that can be written is written");
    Forma.Pto.redim(0);
    promise(load(path), "what was written is taken in again");
    promise(std::ranges::equal(Forma.Pto.all(), points, equal_places), "the points come back");
    promise(form != Form::sync_dat ||
                std::ranges::equal(Forma.Pto.all(), points, {}, &Pto::Sinc, &Pto::Sinc),
            "the marks come back");
}

} // namespace velmora::fuzz
