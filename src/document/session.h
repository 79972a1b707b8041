// The session block: every value that the windows and routines share, under its own name.
#pragma once

#include "document/forma.h"
#include "document/obj_cad.h"
#include "document/window_state.h"
#include "runtime/files.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace velmora {

/// Flags are 16 bits: -1 true, 0 false.
using Flag = std::int16_t;
inline constexpr Flag True = -1;
inline constexpr Flag False = 0;
inline constexpr Flag flag(bool value) {
    return value ? True : False;
}

struct Session {
    // Program
    std::string Ver = "1.0";
    std::int16_t SubVer = 1011;
    std::int16_t Sound = 1;
    std::string Idioma = "E";
    char SepDecimal = '.';
    std::string program_folder; ///< where the program's own writable files stand
    bool language_database_open = false;
    std::string language_database_fault; ///< why it could not be opened; empty otherwise
    std::vector<std::string> kept_aside; ///< the user's files that gave way to newer ones, by path
    std::int16_t ExitConfirmed = 0;
    Flag FirstActivate = True;
    std::int16_t Respuesta = 0; ///< last message box answer: 1 OK, 2 Cancel, 6 Yes, 7 No

    // Document
    std::string FileName;
    std::string LastDir;
    std::string DefExt = ".dat";
    Flag LoadOk = 0;
    std::int32_t PtoSel = 0; ///< -1 none
    std::int32_t PtoSelAnt = -1;
    std::int32_t TotalPtos = 0;
    std::int32_t TotalSinc = 0;
    std::int32_t UltimoPto = 0;
    std::int32_t PtosSuprimidos = 0;
    double OrigX = 0, OrigY = 0;
    double Longitud = 0, Altura = 0;

    // Loading
    double EscalaCarga = 1;
    double MaxCoordCarga = 0;
    double LimiteCoord = 25000;
    double PI = 3.14159265358979; ///< these 15 digits, not the nearest f64 to pi
    runtime::FileTable files;

    // View
    double ZoomFactor = 30000; ///< pixels per unit
    double MinXForma = 0, MinYForma = 0;
    double CanvasX0 = 0, CanvasY0 = 0; ///< pixel position of the world's origin
    Flag ShowPtos = True, ShowPtosCtrl = True, ShowCoords = True;
    Flag NoRedraw = False;
    Flag DragPto = False;
    Flag CtrlDown = False;
    std::int32_t HoverPto = -1;
    double BandaX = 0, BandaY = 0;

    // Modes and options
    Flag MoveShapeMode = False;
    double DestX = 0, DestY = 0;
    Flag PtosToInsertMode = False;
    Flag GenDATSinc = True, GenSCR = False, GenDATPerfil = False;
    Flag OptimizeOnGen = True;
    Flag RedimCapture = True;
    std::int32_t Precision = 6;
    std::int32_t PutArc = 25;
    std::int32_t PutCircle = 50;

    // Settings
    std::uint32_t cl_fondo = 0x80000000, cl_ejes = 0xFFFFFF, cl_lineas = 0, cl_linea1 = 255,
                  cl_linea2 = 0xFF0000, cl_punto = 0, cl_puntosinc = 0, cl_puntosel = 0,
                  cl_coords = 0;
    std::int32_t Def_Dec = 6, Def_Arc = 25, Def_ACircle = 50;
    double Def_Zoom = 30000;

    // CAD
    Flag AcadOpen = False, AcadDocLoaded = False, SelOrigenActivo = False;
    double CadOrigX = 0, CadOrigY = 0;
    std::vector<double> AcadPunto;               ///< the point as the CAD returned it
    Array<ObjCad> ObjsCad = empty_entity_list(); ///< lives for one capture or one DXF load
    std::int32_t TotalObjs = 0, NLines = 0, NSplines = 0, NLWPolylines = 0, NArcs = 0, NCircles = 0;

    // Two-sided adjustment; selectors "A", "B", "A2", "B2"
    Array<Pto> PtosA, PtosB, PtosA2, PtosB2, TrabajoA, TrabajoB;
    double OptX = 0, OptY = 0, OptZ = 0;

    // Windows
    VelmoraWindow Velmora;
    IntroWindow intro;
    WinInfo wininfo;
    WinOptions winoptions;
    ScaleXyWindow Scale_xy;
    DelNptoWindow del_Npto;
    MultPtosWindow Mult_Ptos;
    NewDatWindow New_Dat;
    CompensaWindow Compensa;
    SetupWindow setup;
    AcercaWindow acerca;
    SeltextoWindow seltexto;
    AjusteWindow ajuste;
    AjusteOptWindow ajuste_opt;
};

extern Session session;

/// A point is selected. An index beyond the array, as a recent file or Close can leave it, counts
/// as no selection.
[[nodiscard]] inline bool hay_seleccion() {
    return session.PtoSel >= 0 && session.PtoSel <= Forma.Pto.upper();
}

/// A file of the program's folder, "\velmora.chm" or "velmora.chm".
[[nodiscard]] std::string program_file(std::string_view name);

/// "Velmora " + Ver, the title of composed boxes.
[[nodiscard]] std::string box_title();

/// Forma and session as at program start, for tests and the scenario driver. Open files are
/// abandoned.
void reset_session();

} // namespace velmora
