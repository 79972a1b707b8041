// The adjustment window's arrays and pictures, ready for a test.
#pragma once

#include "cutprep/adjustment.h"
#include "cutprep/preview_surface.h"
#include "document/session.h"
#include "fakes/recording_platform.h"
#include "platform/platform.h"
#include "support/outline.h"

#include <algorithm>
#include <array>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

namespace velmora::test {

/// Writes each operation down as a line: "line 100 1900 200 1900 255".
class RecordingPreview : public PreviewSurface {
  public:
    std::vector<std::string> operations;
    double width = 2200;
    double height = 2200;

    double ScaleWidth() const override { return width; }
    double ScaleHeight() const override { return height; }
    void Cls() override { note("cls"); }
    void Line(double x1, double y1, double x2, double y2, std::uint32_t colour) override {
        note("line", x1, y1, x2, y2, colour);
    }
    void Circle(double x, double y, double radius, std::uint32_t colour) override {
        note("circle", x, y, radius, colour);
    }

  private:
    template <class... Figures>
    void note(const char* operation, Figures... figures) {
        std::ostringstream line;
        line << operation;
        ((line << ' ' << figures), ...);
        operations.push_back(line.str());
    }
};

class RecordingPreviews : public Previews {
  public:
    RecordingPreview Pic_A, Pic_B, New_Pic_A, New_Pic_B;

    PreviewSurface& picture(PreviewPicture which) override {
        switch (which) {
        case PreviewPicture::Pic_A:
            return Pic_A;
        case PreviewPicture::Pic_B:
            return Pic_B;
        case PreviewPicture::New_Pic_A:
            return New_Pic_A;
        case PreviewPicture::New_Pic_B:
            break;
        }
        return New_Pic_B;
    }
};

inline std::string sync_total(const Points& points) {
    return std::to_string(
        std::ranges::count_if(points, [](const Pto& point) { return point.Sinc == 1; }));
}

/// The window as it stands behind two loads.
struct Workbench {
    RecordingPlatform machine;
    RecordingPreviews previews;

    Workbench() {
        set_previews(&previews);
        session.PtosA.redim(0);
        session.PtosB.redim(0);
        session.ajuste.txt_fileA = machine.path("raiz.dat");
        session.ajuste.Txt_FileB = machine.path("punta.dat");
        keep_in_place();
    }

    static void set_sides(const Points& A, const Points& B) {
        fill(session.PtosA, A);
        fill(session.PtosB, B);
        session.ajuste.TxtTotalCtrlPtos_A = sync_total(A);
        session.ajuste.TxtTotalCtrlPtos_B = sync_total(B);
    }

    /// The adjustment alone: nothing is drawn or projected.
    static void adjust() {
        session.PtosA2.redim(0);
        session.PtosB2.redim(0);
        adjust_sides(std::stoi(session.ajuste.TxtTotalCtrlPtos_A), [](std::int32_t) {});
    }

    /// Distances by which the projection leaves every point where it is.
    static void keep_in_place() { session.OptX = session.OptY = -(session.OptZ = 1); }
};

} // namespace velmora::test
