#include "cutting/gcode_writer.h"

#include "runtime/numbers.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string_view>

namespace velmora::cutting {

namespace {

constexpr std::size_t kept_beyond = 100;
constexpr int feed_figures = 6;

using Places = std::array<double, machine_axes>; ///< as written, in the machine's unit

std::string number_text(double value) {
    return runtime::NumACadena(value, '.');
}

/// Whole figures of a feed: cut to a few decimals, a slow line's would be far off.
std::string feed_text(double feed) {
    const int before_point = static_cast<int>(std::floor(std::log10(feed))) + 1;
    return number_text(runtime::Round(feed, std::clamp(feed_figures - before_point, 0, 22)));
}

class GcodeWriter {
  public:
    GcodeWriter(const Wire& wire, const Machine& machine, double speed)
        : wire_(wire), machine_(machine), speed_(speed) {}

    Gcode write() {
        program_.fault = fault();
        if (program_.fault != GcodeFault::none)
            return std::move(program_);
        begin();
        for (std::size_t i = 1; i < wire_.size(); ++i)
            cut_to(i);
        end();
        if (program_.moves == 0)
            return {.fault = GcodeFault::all_one_place};
        return std::move(program_);
    }

  private:
    [[nodiscard]] GcodeFault fault() const {
        if (wire_.fault != WireFault::none || wire_.size() < 2)
            return GcodeFault::no_wire;
        if (!are_axes(machine_.axes) || machine_.decimals < 1 || machine_.decimals > 6 ||
            (machine_.unit_mm != 1 && machine_.unit_mm != 25.4))
            return GcodeFault::bad_machine;
        if (!(speed_ > 0) || !std::isfinite(speed_))
            return GcodeFault::bad_speed;
        return GcodeFault::none;
    }

    void begin() {
        add(machine_.unit_mm == 1 ? "G21" : "G20");
        add("G90");
        add_lines(machine_.before);
        last_ = places(0);
        add("G0" + words(last_));
        look_at_travel(0);
        add_lines(machine_.start);
        if (machine_.feed == Feed::inverse)
            add("G93");
    }

    /// G93 would ask for a feed in what follows.
    void end() {
        if (machine_.feed == Feed::inverse)
            add("G94");
        add_lines(machine_.after);
    }

    void add(std::string_view line) {
        program_.text += line;
        program_.text += machine_.lines_end_in_crlf ? "\r\n" : "\n";
        ++program_.lines;
    }

    void add_lines(const std::vector<std::string>& lines) {
        for (const std::string& line : lines)
            add(line);
    }

    [[nodiscard]] Places places(std::size_t i) const {
        const Point& A = wire_.points[index(Plane::tower_A)][i];
        const Point& B = wire_.points[index(Plane::tower_B)][i];
        return {written(A.X), written(A.Y), written(B.X), written(B.Y)};
    }

    [[nodiscard]] double written(double mm) const {
        return runtime::Round(mm / machine_.unit_mm, machine_.decimals);
    }

    [[nodiscard]] std::string words(const Places& to) const {
        std::string text;
        for (std::size_t axis = 0; axis < machine_axes; ++axis)
            text += std::string(" ") + machine_.axes[axis] + number_text(to[axis]);
        return text;
    }

    void cut_to(std::size_t i) {
        const Places to = places(i);
        if (to == last_)
            return;
        const double way = wire_.along[i] - cut_;
        const double minutes = time_of(way, to);
        add("G1" + words(to) + " F" + feed_text(feed_of(to, minutes)));
        look_at_travel(i);
        program_.minutes += minutes;
        ++program_.moves;
        cut_ = wire_.along[i];
        last_ = to;
    }

    [[nodiscard]] Places moves(const Places& to) const {
        Places by{};
        for (std::size_t axis = 0; axis < machine_axes; ++axis)
            by[axis] = to[axis] - last_[axis];
        return by;
    }

    /// A line that moves takes time, also where the faces rest as far as their numbers tell.
    [[nodiscard]] double time_of(double way, const Places& to) const {
        const Places by = moves(to);
        double fastest_axis = 0;
        for (const double move : by)
            fastest_axis = std::max(fastest_axis, std::abs(move) * machine_.unit_mm);
        const double minutes =
            std::max(way / speed_, machine_.fastest > 0 ? fastest_axis / machine_.fastest : 0);
        return minutes > 0 ? minutes : fastest_axis / speed_;
    }

    [[nodiscard]] double feed_of(const Places& to, double minutes) const {
        const Places by = moves(to);
        const double first = std::hypot(by[0], by[1]);
        const double second = std::hypot(by[2], by[3]);
        switch (machine_.feed) {
        case Feed::first:
            return (first > 0 ? first : second) / minutes;
        case Feed::both:
            return std::hypot(first, second) / minutes;
        case Feed::longer:
            return std::max(first, second) / minutes;
        case Feed::inverse:
            break;
        }
        return 1 / minutes;
    }

    /// Of the line just added.
    void look_at_travel(std::size_t place) {
        const Places at = places(place);
        for (std::size_t axis = 0; axis < machine_axes; ++axis)
            if (machine_.travel[axis])
                look_at_axis(place, axis, at[axis] * machine_.unit_mm, *machine_.travel[axis]);
    }

    void look_at_axis(std::size_t place, std::size_t axis, double value, const Travel& travel) {
        if (value >= travel.low && value <= travel.high)
            return;
        if (++program_.beyond_count <= kept_beyond)
            program_.beyond.push_back({program_.lines, place, machine_.axes[axis], value,
                                       value < travel.low ? travel.low : travel.high});
    }

    const Wire& wire_;
    const Machine& machine_;
    double speed_;
    Gcode program_;
    Places last_{};  ///< where the last line leads
    double cut_ = 0; ///< the way up to there
};

} // namespace

Gcode gcode_of(const Wire& wire, const Machine& machine, double speed) {
    return GcodeWriter(wire, machine, speed).write();
}

} // namespace velmora::cutting
