// The main window as plain data: what it shows and what the user typed. The logic reads and writes
// it; the window shows it when it gets time and writes back what was typed before it calls a
// handler.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace velmora {

/// A menu entry's state. The caption is the window's own (its literals); only what commands change
/// stands here.
struct MenuState {
    bool enabled = true;
    bool visible = true;
};

struct RecentEntry {
    std::string caption; ///< "&1 wing.dat"
    std::string path;    ///< the entry's tag
    bool visible = false;
};

/// A progress bar in the control's own terms.
struct ProgressBar {
    double Min = 0;
    double Max = 1;
    double Value = 0;
};

/// The rows of Lst_Coords. A full list is a copy of the coordinates, its texts are made when they
/// are looked at; `edits` says which fill it is, so that a view knows when to start over.
struct CoordRow {
    std::int32_t index = 0;
    double X = 0;
    double Y = 0;
};

/// A place on pic in pixels, or in the world in its units.
struct Spot {
    double x = 0;
    double y = 0;

    bool operator==(const Spot&) const = default;
};

/// The part of pic that is seen, in its pixels, as the window was when the user last did something.
struct VisibleBox {
    double left = 0;
    double top = 1400;
    double width = 800;
    double height = 600;

    [[nodiscard]] Spot middle() const { return {left + width / 2, top + height / 2}; }
    bool operator==(const VisibleBox&) const = default;
};

struct VelmoraWindow {
    std::string Caption;
    std::string TxtDat_File;
    std::string TxtDescDat;
    std::vector<CoordRow> Lst_Coords;
    std::uint64_t Lst_Coords_fill = 0; ///< grows with every change of Lst_Coords
    std::string StatusBar1;            ///< first panel
    std::string lbl_notice;            ///< a word on what was loaded; the next action takes it away
    int MousePointer = 0;              ///< of the screen: 0 default, 2 cross, 11 hourglass
    ProgressBar Pbar1;
    ProgressBar pbar2;
    int pic_MousePointer = 0; ///< of the canvas: 0 default, 10 up arrow
    std::uint32_t pic_BackColor = 0;
    bool lbl_xyfloat_visible = false;
    std::string lbl_xyfloat;
    std::uint32_t lbl_xyfloat_ForeColor = 0;
    double lbl_xyfloat_Left = 0; ///< pixels of pic
    double lbl_xyfloat_Top = 0;
    double SSScroll_x = 0;            ///< 0 left to 1 right, as a share of the bar's maximum
    double SSScroll_y = 1;            ///< 0 top to 1 bottom
    std::uint64_t SSScroll_moves = 0; ///< grows with every move by the program
    /// What a move brings to the middle of the visible part, in place of the shares
    std::optional<Spot> SSScroll_middle;
    VisibleBox SSScroll_visible; ///< written by the window alone
    bool minimized = false;
    std::map<std::string, MenuState, std::less<>> menus; ///< entries that differ from the default
    std::array<RecentEntry, 11> mnuRecentFile;           ///< 1 to 10; 0 is not in use
    bool mnuRecentFileSep_visible = false;
};

namespace state {
extern VelmoraWindow& Velmora;
}

} // namespace velmora
