// PrintPic on a printer of the toolkit, at 1440 twips, an inch, to the unit.
#pragma once

#include "canvas/print.h"
#include "document/session.h"
#include "fakes/recording_platform.h"
#include "platform/platform.h"
#include "printing/printed_sheet.h"
#include "support/outline.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <memory>

namespace velmora::test {

/// A pixel of the picture is five twips.
inline constexpr double kNear = 4;

MATCHER_P(StrokesAt, places, "") {
    return testing::ExplainMatchResult(
        testing::Pointwise(testing::DoubleNear(kNear), std::vector<double>(places)), arg,
        result_listener);
}

class PrintingTest : public testing::Test {
  protected:
    PrintingTest() { session.ZoomFactor = 1440; }

    /// Prints the points on this printer from now on.
    void use(std::unique_ptr<Printer> printer) {
        printer_ = std::move(printer);
        Platform services = platform();
        services.printer = printer_.get();
        set_platform(services);
    }
    static void print(const Points& points, std::int16_t with_circles) {
        set_shape(points);
        session.ShowPtosCtrl = with_circles;
        PrintPic();
    }

    RecordingPlatform machine{with_database};

  private:
    std::unique_ptr<Printer> printer_;
};

using Strokes = std::initializer_list<double>;

/// Taller than wide: upright, its origin at (500, 16840 - 500), so its corners at (1940, 14900),
/// (4820, 14900) and (4820, 6260).
inline const Points kTall = {{1, 1, 1}, {3, 1}, {3, 7}};
/// Wider than tall: turned, its origin at (500, 11900 - 500), so its corners at (1940, 9960),
/// (10580, 9960) and (10580, 7080).
inline const Points kWide = {{1, 1, 1}, {7, 1}, {7, 3}};

/// Finds axes, outline and the circles of kTall on an A4 sheet.
void expect_tall(const PrintedSheet& sheet);
/// The same for kWide.
void expect_wide(const PrintedSheet& sheet);
/// All red ink is within a circle around one of the places.
void expect_circles_at(const PrintedSheet& sheet, const std::vector<QPointF>& places);

} // namespace velmora::test
