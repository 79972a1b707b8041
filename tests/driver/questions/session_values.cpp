#include "questions/session_values.h"

#include "document/session.h"
#include "script/numbers.h"
#include "script/places.h"

#include <algorithm>
#include <array>
#include <type_traits>
#include <variant>

namespace velmora::driver {

namespace {

using Member = std::variant<std::int16_t Session::*, std::int32_t Session::*,
                            std::uint32_t Session::*, double Session::*, char Session::*,
                            std::string Session::*, std::vector<double> Session::*>;

struct NamedValue {
    std::string_view name;
    Member member;
};

constexpr auto kValues = std::to_array<NamedValue>({
    {"FileName", &Session::FileName},
    {"LastDir", &Session::LastDir},
    {"LoadOk", &Session::LoadOk},
    {"PtoSel", &Session::PtoSel},
    {"PtoSelAnt", &Session::PtoSelAnt},
    {"TotalPtos", &Session::TotalPtos},
    {"TotalSinc", &Session::TotalSinc},
    {"UltimoPto", &Session::UltimoPto},
    {"PtosSuprimidos", &Session::PtosSuprimidos},
    {"OrigX", &Session::OrigX},
    {"OrigY", &Session::OrigY},
    {"MinXForma", &Session::MinXForma},
    {"MinYForma", &Session::MinYForma},
    {"Longitud", &Session::Longitud},
    {"Altura", &Session::Altura},
    {"ZoomFactor", &Session::ZoomFactor},
    {"Precision", &Session::Precision},
    {"PutArc", &Session::PutArc},
    {"PutCircle", &Session::PutCircle},
    {"ShowPtos", &Session::ShowPtos},
    {"ShowPtosCtrl", &Session::ShowPtosCtrl},
    {"ShowCoords", &Session::ShowCoords},
    {"GenDATSinc", &Session::GenDATSinc},
    {"GenSCR", &Session::GenSCR},
    {"GenDATPerfil", &Session::GenDATPerfil},
    {"OptimizeOnGen", &Session::OptimizeOnGen},
    {"RedimCapture", &Session::RedimCapture},
    {"SepDecimal", &Session::SepDecimal},
    {"DefExt", &Session::DefExt},
    {"Respuesta", &Session::Respuesta},
    {"EscalaCarga", &Session::EscalaCarga},
    {"MaxCoordCarga", &Session::MaxCoordCarga},
    {"LimiteCoord", &Session::LimiteCoord},
    {"PI", &Session::PI},
    {"Ver", &Session::Ver},
    {"SubVer", &Session::SubVer},
    {"Sound", &Session::Sound},
    {"ExitConfirmed", &Session::ExitConfirmed},
    {"FirstActivate", &Session::FirstActivate},
    {"MoveShapeMode", &Session::MoveShapeMode},
    {"PtosToInsertMode", &Session::PtosToInsertMode},
    // Settings
    {"Idioma", &Session::Idioma},
    {"cl_fondo", &Session::cl_fondo},
    {"cl_ejes", &Session::cl_ejes},
    {"cl_lineas", &Session::cl_lineas},
    {"cl_linea1", &Session::cl_linea1},
    {"cl_linea2", &Session::cl_linea2},
    {"cl_punto", &Session::cl_punto},
    {"cl_puntosinc", &Session::cl_puntosinc},
    {"cl_puntosel", &Session::cl_puntosel},
    {"cl_coords", &Session::cl_coords},
    {"Def_Dec", &Session::Def_Dec},
    {"Def_Arc", &Session::Def_Arc},
    {"Def_ACircle", &Session::Def_ACircle},
    {"Def_Zoom", &Session::Def_Zoom},
    // CAD
    {"AcadOpen", &Session::AcadOpen},
    {"AcadDocLoaded", &Session::AcadDocLoaded},
    {"SelOrigenActivo", &Session::SelOrigenActivo},
    {"AcadPunto", &Session::AcadPunto},
    {"CadOrigX", &Session::CadOrigX},
    {"CadOrigY", &Session::CadOrigY},
    {"TotalObjs", &Session::TotalObjs},
    {"NLines", &Session::NLines},
    {"NSplines", &Session::NSplines},
    {"NLWPolylines", &Session::NLWPolylines},
    {"NArcs", &Session::NArcs},
    {"NCircles", &Session::NCircles},
    // View
    {"CanvasX0", &Session::CanvasX0},
    {"CanvasY0", &Session::CanvasY0},
    {"NoRedraw", &Session::NoRedraw},
    {"DragPto", &Session::DragPto},
    {"HoverPto", &Session::HoverPto},
    {"CtrlDown", &Session::CtrlDown},
    {"DestX", &Session::DestX},
    {"DestY", &Session::DestY},
    {"BandaX", &Session::BandaX},
    {"BandaY", &Session::BandaY},
    // Two-sided adjustment
    {"OptX", &Session::OptX},
    {"OptY", &Session::OptY},
    {"OptZ", &Session::OptZ},
});

std::string text_of(std::int16_t value) {
    return number_text(static_cast<std::int32_t>(value));
}
std::string text_of(std::int32_t value) {
    return number_text(value);
}
std::string text_of(std::uint32_t colour) {
    return number_text(static_cast<std::int32_t>(colour));
}
std::string text_of(double value) {
    return number_text(value);
}
std::string text_of(const std::vector<double>& numbers) {
    std::string text;
    for (const double number : numbers)
        text.append(text.empty() ? "" : " ").append(number_text(number));
    return text.empty() ? "none" : text;
}

} // namespace

std::optional<std::string> session_value(const Session& session, std::string_view name,
                                         const Places& places) {
    const auto found = std::ranges::find(kValues, name, &NamedValue::name);
    if (found == kValues.end())
        return std::nullopt;
    return std::visit(
        [&]<class Value>(Value Session::*member) {
            if constexpr (std::is_same_v<Value, std::string>)
                return places.word(session.*member);
            else if constexpr (std::is_same_v<Value, char>)
                return places.word(std::string(1, session.*member));
            else
                return text_of(session.*member);
        },
        found->member);
}

} // namespace velmora::driver
