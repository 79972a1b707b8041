#include "server/drawing_objects.h"

#include "runtime/error.h"

namespace velmora::test {

namespace {

using com::Variant;

template <class Value>
auto reading(Value value) {
    return [value](const Arguments&) {
        return value();
    };
}

Variant array_of_variants(const std::vector<double>& numbers) {
    VARIANT made{};
    made.vt = VT_ARRAY | VT_VARIANT;
    made.parray = SafeArrayCreateVector(VT_VARIANT, 0, static_cast<ULONG>(numbers.size()));
    for (LONG i = 0; i < static_cast<LONG>(numbers.size()); ++i) {
        Variant number = Variant::real(numbers[static_cast<std::size_t>(i)]);
        SafeArrayPutElement(made.parray, &i, const_cast<VARIANT*>(&number.value()));
    }
    Variant array = Variant::copy(made);
    VariantClear(&made);
    return array;
}

Variant array(const Manners& manners, const std::vector<double>& numbers) {
    return manners.variant_arrays ? array_of_variants(numbers) : Variant::array(numbers);
}

com::ComPtr<IDispatch> entity_object(Manners& manners, const std::shared_ptr<AcadEntity>& entity) {
    const auto numbers = [&manners, entity](auto read) {
        return [&manners, entity, read](const Arguments&) {
            return array(manners, read(*entity));
        };
    };
    return serve(
        manners,
        {
            {L"ObjectName", reading([entity] { return Variant::text(entity->ObjectName()); })},
            {L"Color",
             {},
             [entity](const Variant& value) {
                 entity->set_Color(value.as_whole());
             }},
            {L"StartPoint", numbers([](AcadEntity& from) { return from.StartPoint(); })},
            {L"EndPoint", numbers([](AcadEntity& from) { return from.EndPoint(); })},
            {L"Coordinates", numbers([](AcadEntity& from) { return from.Coordinates(); })},
            {L"Closed", reading([entity] { return Variant::flag(entity->Closed()); }),
             [entity](const Variant& value) {
                 entity->set_Closed(value.as_flag());
             }},
            {L"Center", numbers([](AcadEntity& from) { return from.Center(); })},
            {L"Radius", reading([entity] { return Variant::real(entity->Radius()); })},
            {L"StartAngle", reading([entity] { return Variant::real(entity->StartAngle()); })},
            {L"EndAngle", reading([entity] { return Variant::real(entity->EndAngle()); })},
            {L"NumberOfControlPoints",
             reading([entity] { return Variant::whole(entity->NumberOfControlPoints()); })},
            {L"GetControlPoint",
             [&manners, entity](const Arguments& index) {
                 return array(manners, entity->GetControlPoint(index.at(0).as_whole()));
             }},
        });
}

com::ComPtr<IDispatch> model_space_object(Manners& manners,
                                          const std::shared_ptr<AcadDocument>& document) {
    return serve(
        manners,
        {
            {L"Count", reading([document] { return Variant::whole(document->Count()); })},
            {L"Item",
             [&manners, document](const Arguments& index) {
                 return Variant::object(
                     entity_object(manners, document->Item(index.at(0).as_whole())));
             }},
            {L"AddLightWeightPolyline",
             [&manners, document](const Arguments& coordinates) {
                 return Variant::object(entity_object(
                     manners, document->AddLightWeightPolyline(coordinates.at(0).as_array())));
             }},
        });
}

com::ComPtr<IDispatch> utility_object(Manners& manners,
                                      const std::shared_ptr<AcadDocument>& document) {
    return serve(manners, {{L"GetPoint", [&manners, document](const Arguments& arguments) {
                                if (arguments.size() != 2 || !arguments[0].is_missing())
                                    raise(E_INVALIDARG, "GetPoint wants a prompt and no base");
                                manners.prompt = arguments[1].as_text();
                                return array(manners, document->GetPoint(manners.prompt));
                            }}});
}

com::ComPtr<IDispatch> document_object(Manners& manners,
                                       const std::shared_ptr<AcadDocument>& document) {
    return serve(manners,
                 {
                     {L"Name", reading([document] { return Variant::text(document->Name()); })},
                     {L"Activate", reading([document] {
                          document->Activate();
                          return Variant();
                      })},
                     {L"ModelSpace", reading([&manners, document] {
                          return Variant::object(model_space_object(manners, document));
                      })},
                     {L"Utility", reading([&manners, document] {
                          return Variant::object(utility_object(manners, document));
                      })},
                 });
}

com::ComPtr<IDispatch> documents_object(Manners& manners, const FindApplication& find) {
    return serve(
        manners,
        {
            {L"Count", reading([find] { return Variant::whole(find()->Documents_Count()); })},
            {L"Add",
             [&manners, find](const Arguments& path) {
                 find()->Documents_Add(path.at(0).as_text());
                 return Variant::object(document_object(manners, find()->ActiveDocument()));
             }},
        });
}

} // namespace

std::vector<Member> application_members(Manners& manners, const FindApplication& find) {
    return {
        {L"Name", reading([find] { return Variant::text(find()->Name()); })},
        {L"Version", reading([find] { return Variant::text(find()->Version()); })},
        {L"Documents",
         reading([&manners, find] { return Variant::object(documents_object(manners, find)); })},
        {L"ActiveDocument", reading([&manners, find] {
             return Variant::object(document_object(manners, find()->ActiveDocument()));
         })},
        {L"ZoomExtents", reading([find] {
             find()->ZoomExtents();
             return Variant();
         })},
        {L"WindowState",
         {},
         [find](const Variant& state) {
             find()->set_WindowState(state.as_whole());
         }},
    };
}

} // namespace velmora::test
