// The outlines of the piece on paper in true size: as a PDF of sheets to be joined, or as one SVG.
#pragma once

#include "cutting/template_sheets.h"
#include "forms/cut_words.h"

#include <functional>
#include <string>

namespace velmora {

/// What the toolkit makes of sheets: the bytes of a PDF.
using MakePdf = std::function<std::string(const cutting::SheetLayout&)>;

/// Asks for the place and writes it; what stands in the way is told.
void save_template_pdf(const CutWords& words, const MakePdf& make_pdf);
void save_template_svg(const CutWords& words);

} // namespace velmora
