// The objects of a CAD on the bus: the application and its documents.
#pragma once

#include "adapters/dbus/entity_record.h"
#include "cad/autocad.h"

namespace velmora {

class DbusDocument : public AcadDocument {
  public:
    DbusDocument(std::shared_ptr<const CadLink> link, QString document);

    [[nodiscard]] std::string Name() override;
    void Activate() override;
    [[nodiscard]] std::int32_t Count() override;
    [[nodiscard]] std::unique_ptr<AcadEntity> Item(std::int32_t index) override;
    std::unique_ptr<AcadEntity>
    AddLightWeightPolyline(std::span<const double> coordinates) override;
    std::vector<double> GetPoint(std::string_view prompt) override;
    [[nodiscard]] std::string Remarks() override;

  private:
    std::shared_ptr<const CadLink> link_;
    QString document_;
    EntityBlocks entities_;
};

class DbusApplication : public AcadApplication {
  public:
    explicit DbusApplication(std::shared_ptr<const CadLink> link);

    [[nodiscard]] std::string Name() override;
    [[nodiscard]] std::string Version() override;
    [[nodiscard]] std::int32_t Documents_Count() override;
    void Documents_Add(std::string_view template_path) override;
    [[nodiscard]] std::shared_ptr<AcadDocument> ActiveDocument() override;
    void ZoomExtents() override;
    void set_WindowState(int state) override;

  private:
    std::shared_ptr<const CadLink> link_;
};

} // namespace velmora
