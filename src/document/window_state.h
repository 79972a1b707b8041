// What the windows show and what the user typed, as plain data: one struct per window. The logic
// reads and writes these; a window shows its struct when it gets time and writes back what was
// typed before it calls a handler.
#pragma once

#include "platform/dialogs.h"

#include <array>
#include <cstdint>
#include <map>
#include <string>
#include <string_view>
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

struct VelmoraWindow {
    std::string Caption;
    std::string TxtDat_File;
    std::string TxtDescDat;
    std::vector<CoordRow> Lst_Coords;
    std::uint64_t Lst_Coords_fill = 0; ///< grows with every change of Lst_Coords
    std::string StatusBar1;            ///< first panel
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
    bool minimized = false;
    std::map<std::string, MenuState, std::less<>> menus; ///< entries that differ from the default
    std::array<RecentEntry, 11> mnuRecentFile;           ///< 1 to 10; 0 is not in use
    bool mnuRecentFileSep_visible = false;
};

struct IntroWindow {
    std::string lblVer;
    std::string lblsubver;
};

struct WinInfo {
    std::string TxtAcadFile, TxtOpensw, txtAcadVer;
    std::string TxtNArcs = "0", TxtNCircles = "0", TxtNLWPolylines = "0", TxtProcesed = "0",
                TxtNlines = "0", TxtNSplines = "0";
    std::string TxtTotalCtrlPtos = "0", Txt_longitud = "0", Txt_Altura = "0", TxtOrigX = "0",
                TxtOrigY = "0", TxtTotalPtos = "0", TxtPtosSupr = "0";
    bool chk_wininfo = false;        ///< pinned
    std::uint32_t ShpAcadOpen = 255; ///< fill colour: 65280 connected, 255 not
    std::uint32_t ShpAcadDocLoaded = 255;
    bool rolled_up = false;
};

struct WinOptions {
    std::string TxtPutArc, TxtPutCircle, TxtPrecision, Txt_zoom;
    bool ChkPtos = true, ChkPtosCtrl = true, ChkCoords = true;
    bool ChkDATSinc = true, ChkSCR = false, Chk_DATPerfil = false;
    bool chk_optimize = true, chk_Redim_Capture = true;
    bool chk_winoptions = false; ///< pinned
    bool rolled_up = false;
};

struct ScaleXyWindow {
    bool Opt_fixed = true; ///< else Opt_percent
    bool frm_fixed_enabled = true;
    bool frm_percent_enabled = false;
    std::string txt_fixed_x, txt_fixed_y, txt_percent_x, txt_percent_y;
    bool cmd_ok_enabled = false;
};

struct DelNptoWindow {
    std::int32_t MaxDel = 0; ///< points that may go
    std::string Txt_Numpoints2del, Txt_JumpPoints;
    std::string Lbl_Maxpoints;
};

struct MultPtosWindow {
    std::string Combo1; ///< the factor
    std::string Lbl_NPoints, lbl_New_NPoints;
    bool cmd_ok_enabled = false;
};

struct NewDatWindow {
    bool SSOpt_predef = true; ///< else SSOpt_create
    bool frm_shapes_enabled = true;
    bool Frm_Create_enabled = false;
    bool cmd_ok_enabled = false;
    std::array<bool, 3> Picture1{}; ///< the tile that looks chosen
    std::string Txt_Shape;
    std::array<bool, 8> Option{}; ///< Option1 to Option8
    std::int16_t shape = 0;       ///< the tile that was clicked: 0 square, 1 triangle, 2 circle
    std::int32_t circle_points = 0;
};

struct CompensaWindow {
    std::string Txt_merma;
    bool cmd_ok_enabled = false;
};

struct SetupWindow {
    std::string Txt_Def_Dec_Val, Txt_Def_Arc_Val, Txt_Def_Circle_Val, Txt_Def_zoom_Val;
    std::string Cmb_Lang; ///< the name that is chosen
    bool APP_Sound = false;
    std::string Idioma; ///< the language when the window was activated, one character
    // Back colours of the labels
    std::uint32_t lblcolor_fondo = 0, lblcolor_ejes = 0, lblcolor_lineas = 0, lblcolor_lineaini = 0,
                  lblcolor_lineados = 0, lblcolor_ptos = 0, lblcolor_ptosinc = 0,
                  lblcolor_ptosel = 0, lblcolor_coords = 0;
    std::uint64_t Test_Pic_draws = 0; ///< grows when the preview is to be drawn again
};

struct AcercaWindow {
    std::string lblVer;
    std::string SSPanel1;
};

/// Text to shape. What is held between the preview and the load outlives the window.
struct SeltextoWindow {
    struct PathPoint {
        std::int32_t X = 0; ///< pixels of Pictext
        std::int32_t Y = 0;
        bool operator==(const PathPoint&) const = default;
    };
    /// A segment in Pictext, both ends included; one from a place to itself is a dot.
    struct Segment {
        PathPoint from, to;
        bool operator==(const Segment&) const = default;
    };

    std::string char_; ///< the box `char`
    FontChoice Pictext_Font{.name = "", .size = 72};
    std::vector<Segment> Pictext;
    std::uint64_t Pictext_draws = 0; ///< grows with every change of Pictext

    std::array<PathPoint, 1001> points{};
    std::array<std::uint8_t, 1001> types{};
    std::int16_t last_index = 0; ///< of the last valid entry; -2 for a text that is too long
};

/// The workbench of two sides. What is disabled here is so by design.
struct AjusteWindow {
    std::string txt_fileA, Txt_FileB; ///< paths of the loaded sides
    std::string TxtTotalPtos_A, TxtTotalPtos_B;
    std::string TxtTotalCtrlPtos_A, TxtTotalCtrlPtos_B;
    std::string Txt_File_A2, Txt_File_B2; ///< paths of the results
    std::string TxtTotalPtosNew_A, TxtTotalPtosNew_B;
    std::string TxtTotalCtrlPtosNew_A, TxtTotalCtrlPtosNew_B;
    std::string lbl_estado; ///< "3 / 200", the run at work of how many; else empty
    bool ChkPtosCtrl = false;
    bool cmd_opt_enabled = false;
    bool Cmd_Ajuste_enabled = false;
    bool Cmd_save_enabled = false;
    bool cmd_exit_enabled = true;
};

struct AjusteOptWindow {
    std::string txt_X, txt_Y, txt_Z;
    bool cmb_ok_enabled = false;
};

} // namespace velmora
