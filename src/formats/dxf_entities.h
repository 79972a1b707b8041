// The entities of a DXF file by their fixed line patterns, into state::cad.ObjsCad. Group codes are
// never looked at.
#pragma once

#include "document/forma.h"
#include "document/obj_cad.h"
#include "document/state/cad.h"
#include "formats/dxf_text.h"

#include <cstdint>
#include <string_view>

namespace velmora {

class DxfEntities {
  public:
    /// Reads one entity from the line after its marker. True when its last line ends the section.
    using Reader = bool (DxfEntities::*)();

    explicit DxfEntities(DxfText& text) : text_(text) {}

    /// The reader of a marker, which must be the whole line; nullptr for any other line.
    [[nodiscard]] static Reader reader_of(std::string_view line);
    /// The first marker makes the list one fresh element, also where its entity then fails.
    bool read(Reader entity);

  private:
    bool read_line();
    /// A point is the line from the last point of the element before it.
    bool read_point();
    bool read_circle();
    /// Never takes memory for vertices that the file doesn't have.
    bool read_polyline();

    void take(TipoCad tipo, Array<Pto> points);

    DxfText& text_;
    std::int32_t taken_ = 0;
};

} // namespace velmora
