// The CAD of Windows: the running application that is registered as "AutoCAD.Application", by its
// automation interface, late bound. It and what it gives out belong to the thread that made it.
#include "adapters/com/foreground.h"
#include "adapters/com/late_bound.h"
#include "adapters/running_cad.h"
#include "runtime/error.h"

#include <utility>

namespace velmora {

namespace {

using com::Apartment;
using com::ComPtr;
using com::LateBound;
using com::Variant;

class ComEntity : public AcadEntity {
  public:
    explicit ComEntity(LateBound entity) : entity_(std::move(entity)) {}

    std::string ObjectName() override { return entity_.get(L"ObjectName").as_text(); }
    void set_Color(int index) override { entity_.put(L"Color", Variant::whole(index)); }
    std::vector<double> StartPoint() override { return entity_.get(L"StartPoint").as_array(); }
    std::vector<double> EndPoint() override { return entity_.get(L"EndPoint").as_array(); }
    std::vector<double> Coordinates() override { return entity_.get(L"Coordinates").as_array(); }
    bool Closed() override { return entity_.get(L"Closed").as_flag(); }
    void set_Closed(bool closed) override { entity_.put(L"Closed", Variant::flag(closed)); }
    std::vector<double> Center() override { return entity_.get(L"Center").as_array(); }
    double Radius() override { return entity_.get(L"Radius").as_real(); }
    double StartAngle() override { return entity_.get(L"StartAngle").as_real(); }
    double EndAngle() override { return entity_.get(L"EndAngle").as_real(); }
    std::int32_t NumberOfControlPoints() override {
        return entity_.get(L"NumberOfControlPoints").as_whole();
    }
    std::vector<double> GetControlPoint(std::int32_t index) override {
        return entity_.get(L"GetControlPoint", Variant::whole(index)).as_array();
    }

  private:
    LateBound entity_;
};

/// The model space and the utility are asked for anew at each use, as the drawing may replace them.
class ComDocument : public AcadDocument {
  public:
    explicit ComDocument(LateBound document) : document_(std::move(document)) {}

    std::string Name() override { return document_.get(L"Name").as_text(); }
    void Activate() override { document_.call(L"Activate"); }
    std::int32_t Count() override { return model_space().get(L"Count").as_whole(); }
    std::unique_ptr<AcadEntity> Item(std::int32_t index) override {
        return std::make_unique<ComEntity>(
            model_space().get_object(L"Item", Variant::whole(index)));
    }
    std::unique_ptr<AcadEntity>
    AddLightWeightPolyline(std::span<const double> coordinates) override {
        return std::make_unique<ComEntity>(
            model_space().get_object(L"AddLightWeightPolyline", Variant::array(coordinates)));
    }
    std::vector<double> GetPoint(std::string_view prompt) override {
        LateBound utility = document_.get_object(L"Utility");
        return utility.get(L"GetPoint", Variant::missing(), Variant::text(prompt)).as_array();
    }

  private:
    LateBound model_space() { return document_.get_object(L"ModelSpace"); }

    LateBound document_;
};

class ComApplication : public AcadApplication {
  public:
    explicit ComApplication(LateBound application) : application_(std::move(application)) {}

    std::string Name() override { return application_.get(L"Name").as_text(); }
    std::string Version() override { return application_.get(L"Version").as_text(); }
    std::int32_t Documents_Count() override { return documents().get(L"Count").as_whole(); }
    void Documents_Add(std::string_view template_path) override {
        documents().call(L"Add", Variant::text(template_path));
    }
    std::shared_ptr<AcadDocument> ActiveDocument() override {
        return std::make_shared<ComDocument>(application_.get_object(L"ActiveDocument"));
    }
    void ZoomExtents() override { application_.call(L"ZoomExtents"); }
    void set_WindowState(int state) override {
        application_.put(L"WindowState", Variant::whole(state));
    }

  private:
    LateBound documents() { return application_.get_object(L"Documents"); }

    LateBound application_;
};

/// The running object of a class, null where the class or the object is not there.
ComPtr<IDispatch> running_object(const wchar_t* class_name) {
    CLSID id{};
    IUnknown* found = nullptr;
    if (FAILED(CLSIDFromProgID(class_name, &id)) || FAILED(GetActiveObject(id, nullptr, &found)))
        return nullptr;
    const ComPtr<IUnknown> object(found);
    void* automation = nullptr;
    if (FAILED(object->QueryInterface(IID_IDispatch, &automation)))
        return nullptr;
    return ComPtr<IDispatch>(static_cast<IDispatch*>(automation));
}

class ComAutocad : public Autocad {
  public:
    std::shared_ptr<AcadApplication> GetObject() override {
        ComPtr<IDispatch> found = running_object(L"AutoCAD.Application");
        if (found == nullptr)
            raise(error::cannot_create_object);
        LateBound application(apartment_, std::move(found));
        // One that crashed stays among the active objects for a while, and anybody can take a
        // class.
        if (!application.may_offer(L"Documents"))
            raise(error::cannot_create_object);
        return std::make_shared<ComApplication>(std::move(application));
    }
    void AppActivate() override { com::activate_window(L"Autocad"); }

  private:
    std::shared_ptr<const Apartment> apartment_ = std::make_shared<const Apartment>();
};

} // namespace

std::unique_ptr<Autocad> make_running_cad() {
    return std::make_unique<ComAutocad>();
}

} // namespace velmora
