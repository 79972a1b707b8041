// DXF texts for the tests, in the line order that the reader knows.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace velmora::test {

inline std::string rows(const std::vector<std::string_view>& lines) {
    std::string text;
    for (const std::string_view line : lines)
        text.append(line).append("\r\n");
    return text;
}

inline std::string dxf_line(std::string_view x1, std::string_view y1, std::string_view x2,
                            std::string_view y2) {
    return rows({"  0", "LINE", "100", "AcDbEntity", "100", "AcDbLine", " 10", x1, " 20", y1, " 30",
                 "0.0", " 11", x2, " 21", y2, " 31", "0.0"});
}

inline std::string dxf_point(std::string_view x, std::string_view y) {
    return rows({"  0", "POINT", "100", "AcDbPoint", " 10", x, " 20", y, " 30", "0.0"});
}

inline std::string dxf_circle_rows(std::string_view x, std::string_view y,
                                   std::string_view radius) {
    return rows(
        {"  0", "CIRCLE", "100", "AcDbCircle", " 10", x, " 20", y, " 30", "0.0", " 40", radius});
}

inline std::string dxf_arc_rows(std::string_view x, std::string_view y, std::string_view radius,
                                std::string_view start, std::string_view end) {
    return dxf_circle_rows(x, y, radius) + rows({"100", "AcDbArc", " 50", start, " 51", end});
}

inline std::string dxf_polyline(std::string_view count, std::string_view closed,
                                const std::vector<std::string_view>& coordinates) {
    std::string text = rows(
        {"  0", "LWPOLYLINE", "100", "AcDbPolyline", " 90", count, " 70", closed, " 43", "0.0"});
    for (std::size_t i = 0; i < coordinates.size(); ++i)
        text += rows({i % 2 == 0 ? " 10" : " 20", coordinates[i]});
    return text;
}

inline std::string dxf_sheet(std::string_view entities, std::string_view version = "AC1014") {
    return rows({"  0", "SECTION", "  2", "HEADER", "  9", "$ACADVER", "  1", version, "  0",
                 "ENDSEC", "  0", "SECTION", "  2", "ENTITIES"}) +
           std::string(entities) + rows({"  0", "ENDSEC", "  0", "EOF"});
}

/// A square of 10 units from (0, 0), its second line drawn backwards.
inline std::string dxf_square() {
    return dxf_sheet(
        dxf_line("0.0", "0.0", "10.0", "0.0") + dxf_line("10.0", "10.0", "10.0", "0.0") +
        dxf_line("10.0", "10.0", "0.0", "10.0") + dxf_line("0.0", "10.0", "0.0", "0.0"));
}

} // namespace velmora::test
