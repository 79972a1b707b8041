#include "cutprep/adjustment.h"

#include "plain_syncs.h"
#include "workbench.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <random>
#include <vector>

namespace velmora {
namespace {

using test::Points;
using test::points_of;
using test::SiguienteSinc;
using test::SincN;

/// The adjustment written down a second time, the plain way: searches from the start, no table but
/// a stable sort, no prepared index.
class PlainAdjustment {
  public:
    Points A2{Pto{}}, B2{Pto{}};

    explicit PlainAdjustment(std::int32_t runs) : runs_(runs) {
        for (run_ = 1; run_ <= runs_; ++run_)
            adjust_run();
    }

  private:
    struct Row {
        double position;
        const char* lado;
        std::int32_t orden;
    };
    struct Half {
        const char* lado;
        Points& result;
        std::int32_t inicio = -1, primero = -1;
        std::vector<PtoTramo> tramo;
    };

    void load(Half& half) {
        const Array<Pto>& points = side_of(half.lado).Ptos;
        half.inicio = SiguienteSinc(half.lado, half.inicio);
        if (half.primero == -1)
            half.primero = half.inicio;
        const std::int32_t fin = SiguienteSinc(half.lado, half.inicio);
        std::vector<std::int32_t> indices;
        for (std::int32_t i = half.inicio; i <= (fin == -1 ? points.upper() : fin); ++i)
            indices.push_back(i);
        for (std::int32_t i = 0; fin == -1 && i <= half.primero; ++i)
            indices.push_back(i);
        double total = 0, sum = 0;
        for (const std::int32_t i : indices)
            total += LargoCuerda(half.lado, i);
        half.tramo.clear();
        for (const std::int32_t i : indices) {
            half.tramo.push_back(
                {.PosPercent = sum * 100.0 / total, .X = points[i].X, .Y = points[i].Y});
            sum += LargoCuerda(half.lado, i);
        }
        half.tramo.front().PosPercent = 0;
        half.tramo.back().PosPercent = 100;
    }

    static double between(double a, double b, double percent) {
        if (a < b)
            return (b - a) / 100.0 * percent + a;
        return a > b ? a - (a - b) / 100.0 * percent : a;
    }

    Pto inserted(const Half& half, std::size_t orden) const {
        const Array<Pto>& points = side_of(half.lado).Ptos;
        const PtoTramo& here = half.tramo[orden];
        if (orden + 1 < half.tramo.size()) {
            const PtoTramo& next = half.tramo[orden + 1];
            return {between(here.X, next.X, next.PosPercent),
                    between(here.Y, next.Y, next.PosPercent)};
        }
        std::int32_t next = SincN(half.lado, run_) + 1;
        if (next > points.upper())
            next = 0;
        else if (run_ == runs_)
            next = points.upper();
        return {between(here.X, points[next].X, 100), between(here.Y, points[next].Y, 100)};
    }

    static void append_equal(Half& half) {
        if (half.result.size() == 1)
            half.result.clear();
        for (const PtoTramo& point : half.tramo)
            half.result.push_back({point.X, point.Y});
    }

    void merge(Half& own, const Half& other) {
        std::vector<Row> rows;
        for (std::size_t i = 0; i < own.tramo.size(); ++i)
            rows.push_back({own.tramo[i].PosPercent, own.lado, static_cast<std::int32_t>(i)});
        for (std::size_t i = 1; i < other.tramo.size(); ++i)
            rows.push_back({other.tramo[i].PosPercent, other.lado, static_cast<std::int32_t>(i)});
        std::ranges::stable_sort(rows, {}, &Row::position);
        own.result.back() = {own.tramo[0].X, own.tramo[0].Y, 1};
        std::size_t orden = 0;
        for (std::size_t i = 1; i < rows.size(); ++i) {
            if (rows[i].lado != own.lado) {
                own.result.push_back(inserted(own, orden));
                continue;
            }
            orden = static_cast<std::size_t>(rows[i].orden);
            if (orden + 1 < own.tramo.size())
                own.result.push_back({own.tramo[orden].X, own.tramo[orden].Y});
        }
    }

    void adjust_run() {
        load(A_);
        load(B_);
        if (A_.tramo.size() == B_.tramo.size()) {
            append_equal(A_);
            append_equal(B_);
            return;
        }
        merge(A_, B_);
        merge(B_, A_);
    }

    std::int32_t runs_;
    std::int32_t run_ = 0;
    Half A_{.lado = "A", .result = A2, .tramo = {}};
    Half B_{.lado = "B", .result = B2, .tramo = {}};
};

/// A closed outline of `size` points on a coarse grid, so that positions and coordinates meet,
/// with `syncs` sync points.
Points random_side(std::mt19937& random, std::size_t size, std::size_t syncs) {
    Points points(size);
    std::vector<std::size_t> order(size);
    for (std::size_t i = 0; i < size; ++i) {
        order[i] = i;
        // No two points in succession at the same place.
        points[i] = {static_cast<double>(random() % 7) + (i % 2 == 0 ? 0 : 0.5),
                     static_cast<double>(random() % 5) * 0.1};
    }
    std::ranges::shuffle(order, random);
    for (std::size_t i = 0; i < syncs; ++i)
        points[order[i]].Sinc = 1;
    return points;
}

TEST(AdjustmentOfRandomSides, gives_both_sides_the_points_of_the_plain_way) {
    test::Workbench bench;
    bench.machine.open_database();
    std::mt19937 random(6206);
    for (int round = 0; round < 60; ++round) {
        SCOPED_TRACE(round);
        const std::size_t syncs = 1 + random() % 5;
        bench.set_sides(random_side(random, syncs + random() % 40, syncs),
                        random_side(random, syncs + random() % 40, syncs));
        bench.adjust();
        const PlainAdjustment plain(static_cast<std::int32_t>(syncs));
        ASSERT_EQ(points_of(session.PtosA2), plain.A2);
        ASSERT_EQ(points_of(session.PtosB2), plain.B2);
        ASSERT_EQ(session.PtosA2.upper(), session.PtosB2.upper());
    }
}

} // namespace
} // namespace velmora
