// An entity of a CAD on the bus.
#pragma once

#include "adapters/dbus/entity_record.h"
#include "cad/autocad.h"

namespace velmora {

/// An entity as it was when its block was read; writes go to the CAD. Raises 438 for a member that
/// its class doesn't have, 9 for a number that the CAD left out.
class DbusEntity : public AcadEntity {
  public:
    DbusEntity(std::shared_ptr<const CadLink> link, QString document, EntityRecord record);

    [[nodiscard]] std::string ObjectName() override;
    void set_Color(int index) override;
    [[nodiscard]] std::vector<double> StartPoint() override;
    [[nodiscard]] std::vector<double> EndPoint() override;
    [[nodiscard]] std::vector<double> Coordinates() override;
    [[nodiscard]] bool Closed() override;
    void set_Closed(bool closed) override;
    [[nodiscard]] std::vector<double> Center() override;
    [[nodiscard]] double Radius() override;
    [[nodiscard]] double StartAngle() override;
    [[nodiscard]] double EndAngle() override;
    [[nodiscard]] std::int32_t NumberOfControlPoints() override;
    [[nodiscard]] std::vector<double> GetControlPoint(std::int32_t index) override;

  private:
    void require(std::initializer_list<std::string_view> classes) const;
    [[nodiscard]] std::vector<double> pair_at(std::size_t first) const;
    [[nodiscard]] double number_at(std::size_t place) const;

    std::shared_ptr<const CadLink> link_;
    QString document_;
    EntityRecord record_;
};

} // namespace velmora
