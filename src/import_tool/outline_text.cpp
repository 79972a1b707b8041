#include "import_tool/outline_text.h"

#include "document/forma.h"
#include "document/session.h"
#include "formats/sync_dat.h"
#include "runtime/numbers.h"
#include "runtime/text.h"

#include <cstdint>

namespace velmora::import_tool {

namespace {

constexpr int decimals = 5;
constexpr std::string_view line_end = "\r\n";

void put_into_forma(const imports::Chain& chain) {
    Forma.Pto.redim(static_cast<std::int32_t>(chain.points.size()) - 1);
    std::int32_t i = 0;
    for (const imports::Point& point : chain.points)
        Forma.Pto[i++] = {.X = runtime::Round(point.X, decimals),
                          .Y = runtime::Round(point.Y, decimals),
                          .Sinc = 0,
                          .Marca = 0};
    Forma.Pto[0].Sinc = 1;
}

std::string sync_text(std::string_view name) {
    std::string text;
    const auto write = [&](const FixedRecord& record) {
        text.append(record.bytes());
    };
    const auto nothing = [] {
    };
    sync_dat_outline(name, write, nothing);
    sync_dat_sync_points(write, nothing);
    return text;
}

std::string point_lines(char between) {
    std::string text;
    const auto put = [&](const Pto& point) {
        text.append(runtime::Format5(point.X, '.')).push_back(between);
        text.append(runtime::Format5(point.Y, '.')).append(line_end);
    };
    for (const Pto& point : Forma.Pto.all())
        put(point);
    put(Forma.Pto[0]);
    return text;
}

} // namespace

std::string outline_text(const imports::Chain& chain, Form form, std::string_view name) {
    session.SepDecimal = '.';
    put_into_forma(chain);
    const std::string end(line_end);
    switch (form) {
    case Form::plain:
        return runtime::to_1252(runtime::UCase(name)) + end + point_lines(' ');
    case Form::scr:
        return "pline" + end + point_lines(',') + end;
    case Form::sync:
        break;
    }
    return sync_text(name);
}

std::string_view ending_of(Form form) {
    return form == Form::scr ? ".scr" : ".dat";
}

} // namespace velmora::import_tool
