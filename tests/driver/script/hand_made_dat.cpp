#include "script/hand_made_dat.h"

#include "script/fault.h"

namespace velmora::driver {

namespace {

struct PointWord {
    std::string_view x, y;
    bool sync = false;
};

PointWord point_of(std::string_view word) {
    constexpr std::string_view mark = ",S";
    PointWord point;
    point.sync = word.ends_with(mark);
    const std::string_view numbers = point.sync ? word.substr(0, word.size() - mark.size()) : word;
    const std::size_t comma = numbers.find(',');
    if (comma == std::string_view::npos || numbers.find(',', comma + 1) != std::string_view::npos)
        fault(std::string(word) + " is no point: X,Y or X,Y,S");
    point.x = numbers.substr(0, comma);
    point.y = numbers.substr(comma + 1);
    return point;
}

std::string field(std::string_view text) {
    constexpr std::size_t columns = 21;
    if (text.size() > columns)
        fault(std::string(text) + " is longer than a field of 21 columns");
    std::string padded(text);
    padded.resize(columns, ' ');
    return padded;
}

std::string record(std::string_view field1, std::string_view field2) {
    return field(field1) + field(field2) + "\r\n";
}

} // namespace

std::string hand_made_dat(std::string_view description, std::span<const std::string> points) {
    if (points.empty())
        fault("a shape has points");
    std::string outline, first, syncs;
    for (const std::string& word : points) {
        const PointWord point = point_of(word);
        const std::string line = record(point.x, point.y);
        outline += line;
        if (first.empty())
            first = line;
        if (point.sync)
            syncs += line;
    }
    return record("Fichero DAT(KMR)2002", description) + record("SLATEWORKS", "") + outline +
           first + record("Puntos Sincronismo", "") + record("", "") + syncs;
}

} // namespace velmora::driver
