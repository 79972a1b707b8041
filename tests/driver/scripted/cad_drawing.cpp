#include "scripted/cad_drawing.h"

#include <utility>

namespace velmora::driver {

CadDrawing& CadApplication::open(std::string drawing_name) {
    active = std::make_shared<CadDrawing>();
    active->name = std::move(drawing_name);
    drawings.push_back(active);
    return *active;
}

std::string_view object_name(CadShape shape) {
    switch (shape) {
    case CadShape::line:
        return "AcDbLine";
    case CadShape::point:
        return "AcDbPoint";
    case CadShape::circle:
        return "AcDbCircle";
    case CadShape::arc:
        return "AcDbArc";
    case CadShape::polyline:
        return "AcDbPolyline";
    case CadShape::spline:
        return "AcDbSpline";
    case CadShape::other:
        break;
    }
    return {};
}

} // namespace velmora::driver
