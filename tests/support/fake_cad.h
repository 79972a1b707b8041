// A CAD application of the tests, as far as a connection looks at it.
#pragma once

#include "cad/autocad.h"
#include "runtime/error.h"

namespace velmora::test {

class FakeDocument : public AcadDocument {
  public:
    std::string name = " Dibujo1.dwg ";
    int name_error = 0; ///< raised when its name is asked for

    std::string Name() override {
        if (name_error != 0)
            raise(name_error);
        return name;
    }
    void Activate() override {}
    std::int32_t Count() override { return 0; }
    std::unique_ptr<AcadEntity> Item(std::int32_t) override { return nullptr; }
    std::unique_ptr<AcadEntity> AddLightWeightPolyline(std::span<const double>) override {
        return nullptr;
    }
    std::vector<double> GetPoint(std::string_view) override { return {}; }
};

class FakeApplication : public AcadApplication {
  public:
    std::shared_ptr<FakeDocument> document;
    int name_error = 0; ///< raised when its name is asked for

    std::string Name() override {
        if (name_error != 0)
            raise(name_error);
        return "AutoCAD";
    }
    std::string Version() override { return "15.0"; }
    std::int32_t Documents_Count() override { return document ? 1 : 0; }
    void Documents_Add(std::string_view) override {}
    std::shared_ptr<AcadDocument> ActiveDocument() override { return document; }
    void ZoomExtents() override {}
    void set_WindowState(int) override {}
};

class FakeCad : public Autocad {
  public:
    std::shared_ptr<FakeApplication> application; ///< null: none runs

    std::shared_ptr<AcadApplication> GetObject() override {
        if (!application)
            raise(error::cannot_create_object);
        return application;
    }
    void AppActivate() override {}
};

} // namespace velmora::test
