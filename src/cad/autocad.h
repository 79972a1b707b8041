// The operations of a running CAD that the logic needs. Each call can fail with a RuntimeError that
// carries the application's own number; 462 when the application or document is gone.
#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace velmora {

namespace error {
/// A CAD that runs but rejects calls: it has a question of its own open, or is at work.
inline constexpr int cad_busy = static_cast<int>(0x80010001U);
/// A CAD that won't have its drawing captured; the description tells its user why.
inline constexpr int drawing_refused = static_cast<int>(0x80040200U);
} // namespace error

/// One entity of a model space. Coordinates are drawing units, angles radians.
class AcadEntity {
  public:
    virtual ~AcadEntity() = default;
    [[nodiscard]] virtual std::string ObjectName() = 0;
    virtual void set_Color(int index) = 0;
    // AcadLine, AcadPoint, AcadLWPolyline, AcadArc, AcadCircle, AcadSpline: arrays with X, Y first.
    [[nodiscard]] virtual std::vector<double> StartPoint() = 0;
    [[nodiscard]] virtual std::vector<double> EndPoint() = 0;
    [[nodiscard]] virtual std::vector<double> Coordinates() = 0;
    [[nodiscard]] virtual bool Closed() = 0;
    virtual void set_Closed(bool closed) = 0;
    [[nodiscard]] virtual std::vector<double> Center() = 0;
    [[nodiscard]] virtual double Radius() = 0;
    [[nodiscard]] virtual double StartAngle() = 0;
    [[nodiscard]] virtual double EndAngle() = 0;
    [[nodiscard]] virtual std::int32_t NumberOfControlPoints() = 0;
    [[nodiscard]] virtual std::vector<double> GetControlPoint(std::int32_t index) = 0;
};

class AcadDocument {
  public:
    virtual ~AcadDocument() = default;
    [[nodiscard]] virtual std::string Name() = 0;
    virtual void Activate() = 0;
    // ModelSpace
    [[nodiscard]] virtual std::int32_t Count() = 0;
    [[nodiscard]] virtual std::unique_ptr<AcadEntity> Item(std::int32_t index) = 0;
    virtual std::unique_ptr<AcadEntity>
    AddLightWeightPolyline(std::span<const double> coordinates) = 0;
    // Utility
    virtual std::vector<double> GetPoint(std::string_view prompt) = 0;
    /// What the user should know of the drawing as it was read. Not every CAD has something to say.
    [[nodiscard]] virtual std::string Remarks() { return {}; }
};

class AcadApplication {
  public:
    virtual ~AcadApplication() = default;
    [[nodiscard]] virtual std::string Name() = 0;
    [[nodiscard]] virtual std::string Version() = 0;
    // Documents
    [[nodiscard]] virtual std::int32_t Documents_Count() = 0;
    virtual void Documents_Add(std::string_view template_path) = 0;
    [[nodiscard]] virtual std::shared_ptr<AcadDocument> ActiveDocument() = 0;
    virtual void ZoomExtents() = 0;
    virtual void set_WindowState(int state) = 0;
};

/// The way to a running application.
class Autocad {
  public:
    virtual ~Autocad() = default;
    /// GetObject(, "AutoCAD.Application"). Raises 429 when none runs; one that is busy runs.
    [[nodiscard]] virtual std::shared_ptr<AcadApplication> GetObject() = 0;
    /// AppActivate "Autocad". Raises 5 without an application.
    virtual void AppActivate() = 0;
};

} // namespace velmora
