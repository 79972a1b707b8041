// What the readers of all formats share: counted reading of file 1, the error route with its
// question, the closing point.
#pragma once

#include "document/forma.h"
#include "formats/box_text.h"
#include "runtime/error.h"

#include <cstdint>
#include <string_view>
#include <utility>

namespace velmora {

/// How a reader names itself in its error box.
struct ReaderName {
    std::string_view routine;                       ///< "CargaNOSLW"
    std::string_view line_label = "  - En Linea: "; ///< some readers space it in their own way
};

/// How far a read has come.
struct ReadCounts {
    std::int32_t lines = 0;  ///< lines or records read so far, headers included
    std::int32_t points = 0; ///< points taken whole; one whose text fails is not among them
};

/// The next line of file 1, counted once it was read; valid until the next read. Raises as
/// FileTable::line_input does.
std::string_view read_line(ReadCounts& counts);
/// The next record of file 1, likewise.
std::string_view read_record(ReadCounts& counts);

/// Cuts the last point off where it repeats the first exactly: the closing point is implied.
/// Raises 9 without a point, and when the only point is compared with itself.
void drop_closing_point(Array<Pto>& points, std::int32_t& count);

/// The error box of a reader: name, number, description, lines read so far.
void show_reader_error(const ReaderName& name, const RuntimeError& failure, std::int32_t lines);

/// The error route of a reader: closes file 1, shows the box, asks "Cancel Load?". Yes empties the
/// document and gives 0; No keeps the points read whole so far, none leaving one zeroed record, and
/// gives -1.
[[nodiscard]] std::int16_t ask_cancel_load(const ReaderName& name, const RuntimeError& failure,
                                           const ReadCounts& counts);
/// The error route of a reader that doesn't ask: closes file 1, shows the box, empties the
/// document, gives 0.
[[nodiscard]] std::int16_t refuse_load(const ReaderName& name, const RuntimeError& failure,
                                       const ReadCounts& counts);

/// Runs a reader's body, which returns -1 or 0 and keeps `counts` up to date, under the route that
/// asks.
template <class Body>
[[nodiscard]] std::int16_t read_asking(const ReaderName& name, const ReadCounts& counts,
                                       Body&& body) {
    std::int16_t result = 0;
    trap([&] { result = std::forward<Body>(body)(); },
         [&](const RuntimeError& failure) { result = ask_cancel_load(name, failure, counts); });
    return result;
}

/// The same under the route that doesn't ask.
template <class Body>
[[nodiscard]] std::int16_t read_refusing(const ReaderName& name, const ReadCounts& counts,
                                         Body&& body) {
    std::int16_t result = 0;
    trap([&] { result = std::forward<Body>(body)(); },
         [&](const RuntimeError& failure) { result = refuse_load(name, failure, counts); });
    return result;
}

} // namespace velmora
