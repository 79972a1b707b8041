// The records of a sync DAT, in their order, for whoever writes them.
#pragma once

#include "document/forma.h"
#include "document/number_text.h"
#include "formats/box_text.h"
#include "formats/fixed_record.h"
#include "runtime/text.h"

#include <string>
#include <string_view>

namespace velmora {

/// Head, outline, the closing copy of point 0, and the head of the sync section. `write` takes each
/// record, `after_point` is called after each point. `description` is UTF-8.
template <class Write, class AfterPoint>
void sync_dat_outline(std::string_view description, Write&& write, AfterPoint&& after_point,
                      const Array<Pto>& points = Forma.Pto) {
    const auto write_point = [&](const Pto& point) {
        write(FixedRecord(CStr(point.X), CStr(point.Y)));
        after_point();
    };
    const std::string one_line = without_control_characters(description);
    write(FixedRecord("Fichero DAT(KMR)2002", runtime::to_1252(runtime::Trim(one_line))));
    write(FixedRecord("SLATEWORKS", ""));
    const std::int32_t upper = points.upper();
    for (std::int32_t i = 0; i <= upper; ++i)
        write_point(points[i]);
    write_point(points[0]);
    write(FixedRecord(sync_section_title, ""));
    write(FixedRecord("", ""));
}

/// The points with Sinc 1, in array order.
template <class Write, class AfterPoint>
void sync_dat_sync_points(Write&& write, AfterPoint&& after_point,
                          const Array<Pto>& points = Forma.Pto) {
    const std::int32_t upper = points.upper();
    for (std::int32_t i = 0; i <= upper; ++i) {
        if (points[i].Sinc != 1)
            continue;
        write(FixedRecord(CStr(points[i].X), CStr(points[i].Y)));
        after_point();
    }
}

} // namespace velmora
