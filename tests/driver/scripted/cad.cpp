#include "scripted/cad.h"

#include "runtime/error.h"
#include "runtime/paths.h"
#include "script/numbers.h"

#include <algorithm>
#include <utility>

namespace velmora::driver {

namespace {

constexpr auto kMembers = std::to_array<std::string_view>({
    "GetObject",
    "AppActivate",
    "AcadApplication.Name",
    "AcadApplication.Version",
    "AcadApplication.ActiveDocument",
    "AcadApplication.ZoomExtents",
    "AcadApplication.WindowState",
    "Documents.Count",
    "Documents.Add",
    "AcadDocument.Name",
    "AcadDocument.Activate",
    "ModelSpace.Count",
    "ModelSpace.Item",
    "ModelSpace.AddLightWeightPolyline",
    "Utility.GetPoint",
    "AcadEntity.ObjectName",
    "AcadEntity.Color",
    "AcadLine.StartPoint",
    "AcadLine.EndPoint",
    "AcadEntity.Coordinates",
    "AcadLWPolyline.Closed",
    "AcadEntity.Center",
    "AcadEntity.Radius",
    "AcadArc.StartAngle",
    "AcadArc.EndAngle",
    "AcadSpline.NumberOfControlPoints",
    "AcadSpline.GetControlPoint",
});

/// "Documents.Add" taken apart; a name alone has no object.
struct Member {
    std::string_view object;
    std::string_view name;
};

Member split(std::string_view text) {
    const auto point = text.find('.');
    if (point == std::string_view::npos)
        return {{}, text};
    return {text.substr(0, point), text.substr(point + 1)};
}

bool is_entity_class(std::string_view name) {
    constexpr auto classes =
        std::to_array<std::string_view>({"AcadEntity", "AcadLine", "AcadPoint", "AcadLWPolyline",
                                         "AcadArc", "AcadCircle", "AcadSpline"});
    return std::ranges::find(classes, name) != classes.end();
}

/// The object, or 462 when it is gone.
template <class T>
std::shared_ptr<T> alive(const std::weak_ptr<T>& object) {
    auto held = object.lock();
    if (!held)
        raise(error::server_unavailable);
    return held;
}

class ScriptedEntity : public AcadEntity {
  public:
    ScriptedEntity(CadState& state, const std::shared_ptr<CadEntity>& entity)
        : state_(state), entity_(entity) {}

    std::string ObjectName() override { return use("AcadEntity.ObjectName")->ObjectName; }
    void set_Color(int index) override { use("AcadEntity.Color")->color = index; }
    std::vector<double> StartPoint() override {
        return place(*of("AcadLine.StartPoint", {CadShape::line}), 0);
    }
    std::vector<double> EndPoint() override {
        return place(*of("AcadLine.EndPoint", {CadShape::line}), 1);
    }
    std::vector<double> Coordinates() override {
        const auto entity = of("AcadEntity.Coordinates", {CadShape::point, CadShape::polyline});
        return entity->shape == CadShape::point ? place(*entity, 0) : entity->numbers;
    }
    bool Closed() override { return of("AcadLWPolyline.Closed", {CadShape::polyline})->closed; }
    void set_Closed(bool closed) override {
        of("AcadLWPolyline.Closed", {CadShape::polyline})->closed = closed;
    }
    std::vector<double> Center() override {
        return place(*of("AcadEntity.Center", {CadShape::circle, CadShape::arc}), 0);
    }
    double Radius() override {
        return of("AcadEntity.Radius", {CadShape::circle, CadShape::arc})->numbers.at(2);
    }
    double StartAngle() override {
        return of("AcadArc.StartAngle", {CadShape::arc})->numbers.at(3);
    }
    double EndAngle() override { return of("AcadArc.EndAngle", {CadShape::arc})->numbers.at(4); }
    std::int32_t NumberOfControlPoints() override {
        const auto entity = of("AcadSpline.NumberOfControlPoints", {CadShape::spline});
        return static_cast<std::int32_t>(entity->numbers.size() / 2);
    }
    std::vector<double> GetControlPoint(std::int32_t index) override {
        const auto entity = of("AcadSpline.GetControlPoint", {CadShape::spline});
        if (index < 0 || static_cast<std::size_t>(index) >= entity->numbers.size() / 2)
            raise(error::invalid_call);
        return place(*entity, static_cast<std::size_t>(index));
    }

  private:
    std::shared_ptr<CadEntity> use(std::string_view member) {
        auto entity = alive(entity_);
        state_.use(member);
        return entity;
    }
    /// The entity, or 438 when its shape has no such member.
    std::shared_ptr<CadEntity> of(std::string_view member, std::initializer_list<CadShape> shapes) {
        auto entity = use(member);
        if (std::ranges::find(shapes, entity->shape) == shapes.end())
            raise(error::no_such_member);
        return entity;
    }
    /// The entity's pair of numbers at a position, as a point of three coordinates.
    static std::vector<double> place(const CadEntity& entity, std::size_t position) {
        return {entity.numbers.at(2 * position), entity.numbers.at(2 * position + 1), 0};
    }

    CadState& state_;
    std::weak_ptr<CadEntity> entity_;
};

class ScriptedDocument : public AcadDocument {
  public:
    ScriptedDocument(CadState& state, const std::shared_ptr<CadDrawing>& drawing)
        : state_(state), drawing_(drawing) {}

    std::string Name() override { return use("AcadDocument.Name")->name; }
    void Activate() override {
        const auto drawing = call("AcadDocument.Activate", "Activate");
        state_.application->active = drawing;
    }
    std::int32_t Count() override {
        return static_cast<std::int32_t>(use("ModelSpace.Count")->model_space.size());
    }
    std::unique_ptr<AcadEntity> Item(std::int32_t index) override {
        const auto drawing = use("ModelSpace.Item");
        if (index < 0 || static_cast<std::size_t>(index) >= drawing->model_space.size())
            raise(error::invalid_call);
        return std::make_unique<ScriptedEntity>(
            state_, drawing->model_space[static_cast<std::size_t>(index)]);
    }
    std::unique_ptr<AcadEntity>
    AddLightWeightPolyline(std::span<const double> coordinates) override {
        const auto drawing = call("ModelSpace.AddLightWeightPolyline", "AddLightWeightPolyline");
        auto entity = std::make_shared<CadEntity>();
        entity->shape = CadShape::polyline;
        entity->ObjectName = object_name(CadShape::polyline);
        entity->numbers.assign(coordinates.begin(), coordinates.end());
        drawing->model_space.push_back(entity);
        return std::make_unique<ScriptedEntity>(state_, entity);
    }
    std::vector<double> GetPoint(std::string_view) override {
        const auto drawing = call("Utility.GetPoint", "GetPoint");
        if (state_.picks.empty())
            state_.no_pick();
        const auto pick = state_.picks.front();
        state_.picks.pop_front();
        if (const auto* number = std::get_if<std::int32_t>(&pick))
            raise(*number);
        const auto& point = std::get<PickedPoint>(pick);
        return {point[0], point[1], 0};
    }

  private:
    std::shared_ptr<CadDrawing> use(std::string_view member) {
        auto drawing = alive(drawing_);
        state_.use(member);
        return drawing;
    }
    /// A use that is written down, also where it fails.
    std::shared_ptr<CadDrawing> call(std::string_view member, std::string_view line) {
        auto drawing = alive(drawing_);
        state_.log.emplace_back(line);
        state_.use(member);
        return drawing;
    }

    CadState& state_;
    std::weak_ptr<CadDrawing> drawing_;
};

class ScriptedApplication : public AcadApplication {
  public:
    ScriptedApplication(CadState& state, const std::shared_ptr<CadApplication>& application)
        : state_(state), application_(application) {}

    std::string Name() override { return use("AcadApplication.Name")->name; }
    std::string Version() override { return use("AcadApplication.Version")->version; }
    std::int32_t Documents_Count() override {
        return static_cast<std::int32_t>(use("Documents.Count")->drawings.size());
    }
    void Documents_Add(std::string_view template_path) override {
        const auto application =
            call("Documents.Add", "Documents.Add " + std::string(template_path));
        if (!runtime::file_exists(template_path))
            raise(error::file_not_found);
        application->open("Drawing" + number_text(++application->added) + ".dwg");
    }
    std::shared_ptr<AcadDocument> ActiveDocument() override {
        const auto application = use("AcadApplication.ActiveDocument");
        if (!application->active)
            raise(error::server_unavailable);
        return std::make_shared<ScriptedDocument>(state_, application->active);
    }
    void ZoomExtents() override { call("AcadApplication.ZoomExtents", "ZoomExtents"); }
    void set_WindowState(int state) override {
        call("AcadApplication.WindowState", "WindowState " + number_text(state))->window_state =
            state;
    }

  private:
    std::shared_ptr<CadApplication> use(std::string_view member) {
        auto application = alive(application_);
        state_.use(member);
        return application;
    }
    std::shared_ptr<CadApplication> call(std::string_view member, std::string line) {
        auto application = alive(application_);
        state_.log.push_back(std::move(line));
        state_.use(member);
        return application;
    }

    CadState& state_;
    std::weak_ptr<CadApplication> application_;
};

} // namespace

bool names_member(std::string_view word, std::string_view member) {
    const Member own = split(member);
    if (word == member || word == own.name || (!own.object.empty() && word == own.object))
        return true;
    const Member asked = split(word);
    if (asked.object.empty() || own.object.empty())
        return false;
    if (asked.name == own.object)
        return asked.object == "AcadApplication" || asked.object == "AcadDocument";
    if (asked.name != own.name)
        return false;
    return asked.object == "Acad" + std::string(own.object) ||
           (is_entity_class(asked.object) && is_entity_class(own.object));
}

bool is_cad_member(std::string_view word) {
    return std::ranges::any_of(kMembers,
                               [&](std::string_view member) { return names_member(word, member); });
}

void CadState::use(std::string_view member) {
    const auto found = std::ranges::find_if(
        failures, [&](const CadFailure& failure) { return names_member(failure.member, member); });
    if (found == failures.end())
        return;
    const std::int32_t number = found->number;
    failures.erase(found);
    raise(number);
}

void CadState::stop() {
    running = false;
    application = std::make_shared<CadApplication>();
}

std::shared_ptr<AcadApplication> ScriptedCad::GetObject() {
    state_.use("GetObject");
    if (!state_.running)
        raise(error::cannot_create_object);
    return std::make_shared<ScriptedApplication>(state_, state_.application);
}

void ScriptedCad::AppActivate() {
    if (!state_.running)
        raise(error::invalid_call);
    state_.log.emplace_back("AppActivate Autocad");
    state_.use("AppActivate");
}

} // namespace velmora::driver
