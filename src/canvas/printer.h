// The printer's drawing operations that PrintPic needs. Places are twips from the upper left corner
// of the sheet, as 32-bit floats. Colours are red + 256 green + 65536 blue.
#pragma once

#include <cstdint>

namespace velmora {

enum class Orientation { portrait = 1, landscape = 2 };

/// The default printer, one sheet at a time. What is drawn is kept until EndDoc hands the sheet
/// over, so a machine without a printer fails there, and a sheet that is never ended costs no
/// paper.
class Printer {
  public:
    virtual ~Printer() = default;

    /// Turns the sheet. An empty sheet begins with it; one left unended is thrown away.
    virtual void set_Orientation(Orientation orientation) = 0;
    /// Size of the sheet as it is turned now; A4 where there is no printer.
    [[nodiscard]] virtual double Width() const = 0;
    [[nodiscard]] virtual double Height() const = 0;

    virtual void set_CurrentX(float x) = 0;
    virtual void set_CurrentY(float y) = 0;
    [[nodiscard]] virtual float CurrentX() const = 0;
    [[nodiscard]] virtual float CurrentY() const = 0;

    /// A black segment. The current place moves to its end.
    virtual void Line(float x1, float y1, float x2, float y2) = 0;
    /// The rim of a circle. The current place moves to its centre.
    virtual void Circle(float x, float y, float radius, std::uint32_t colour) = 0;

    /// The sheet is complete: it goes to the printer. Raises 482 where there is none or it refuses.
    /// What is drawn after it goes on another sheet, and an empty one is none: a print can be
    /// asked for while another lets the windows run.
    virtual void EndDoc() = 0;
};

} // namespace velmora
