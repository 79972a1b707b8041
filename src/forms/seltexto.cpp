#include "forms/seltexto.h"

#include "document/forma.h"
#include "document/refresh.h"
#include "document/windows/seltexto.h"
#include "generators/text_path.h"
#include "platform/dialogs.h"
#include "platform/platform.h"
#include "platform/program_windows.h"
#include "runtime/error.h"
#include "runtime/text.h"
#include "services/window_literals.h"
#include "shapeops/scaling.h"
#include "shapeops/transforms.h"

#include <span>

namespace velmora {

namespace {

constexpr std::string_view kWindow = "seltexto";
constexpr OutlinePoint kTopLeft{20, 20};
constexpr std::size_t kRoom = 1000; ///< entries; the lists have one more
constexpr double kSmallestSize = 1;
constexpr double kLargestSize = 2160; ///< points

using PathPoint = SeltextoWindow::PathPoint;

void clear_picture() {
    state::seltexto.Pictext.clear();
    ++state::seltexto.Pictext_draws;
}

std::vector<Figure> printed_figures() {
    if (platform().text_outlines == nullptr)
        raise(error::object_not_set);
    return platform().text_outlines->figures(state::seltexto.char_, state::seltexto.Pictext_Font,
                                             kTopLeft);
}

/// Draws the entries 0 to last_index. A figure that closes leaves the place at its first entry.
void draw_path() {
    SeltextoWindow& window = state::seltexto;
    PathPoint at, first;
    const auto line_to = [&](PathPoint to) {
        window.Pictext.push_back({at, to});
        at = to;
    };
    for (std::size_t i = 0; static_cast<std::ptrdiff_t>(i) <= window.last_index; ++i) {
        const PathPoint point = window.points.at(i);
        if (window.types.at(i) == path_type::move)
            at = first = point;
        line_to(point);
        if (window.types.at(i) == path_type::line_and_close)
            line_to(first);
    }
}

/// A text without a figure, of blanks alone, leaves what there is before the first text: one entry
/// at (0, 0).
void preview() {
    SeltextoWindow& window = state::seltexto;
    window.last_index = 0;
    clear_picture();
    const std::int32_t result = GetPath(printed_figures(), std::span(window.points).first(kRoom),
                                        std::span(window.types).first(kRoom));
    if (result == 0) {
        window.points[0] = {};
        return;
    }
    window.last_index = static_cast<std::int16_t>(result - 1);
    draw_path();
}

void preview_unless_empty() {
    if (!state::seltexto.char_.empty())
        preview();
}

/// A size that no picture takes leaves the one that it has.
void take_font(const FontChoice& chosen) {
    FontChoice& font = state::seltexto.Pictext_Font;
    font.name = runtime::Trim(chosen.name);
    font.bold = chosen.bold;
    font.italic = chosen.italic;
    if (chosen.size >= kSmallestSize && chosen.size <= kLargestSize)
        font.size = chosen.size;
}

void choose_font() {
    const auto chosen = platform().dialogs.choose_font(state::seltexto.Pictext_Font);
    if (!chosen || runtime::Trim(chosen->name).empty())
        return;
    take_font(*chosen);
    preview_unless_empty();
}

void take_outline() {
    const SeltextoWindow& window = state::seltexto;
    Forma.Pto.redim(window.last_index);
    for (std::int32_t i = 0; i <= window.last_index; ++i) {
        const PathPoint& point = window.points.at(static_cast<std::size_t>(i));
        Forma.Pto[i].X = point.X;
        Forma.Pto[i].Y = point.Y;
    }
}

} // namespace

void seltexto_Load() {
    SeltextoWindow& window = state::seltexto;
    const SeltextoWindow fresh;
    window.char_ = fresh.char_;
    window.Pictext_Font = fresh.Pictext_Font;
    clear_picture();
    load_literals(kWindow);
}

void seltexto_char_Change() {
    preview_unless_empty();
}

void seltexto_cmd_font_Click() {
    trap(choose_font, [](const RuntimeError&) {});
}

void seltexto_cmd_load_Click() {
    take_outline();
    ScaleToUnit();
    MirrorVerDat();
    Positivarfrma();
    Apply_Precision();
    Carga_List_Coords("UPDATE");
    Define_Layout();
    Dibuja();
    platform().windows.unload(kWindow);
}

void seltexto_cmd_exit_Click() {
    platform().windows.unload(kWindow);
}

} // namespace velmora
