// The window ver_corte as plain data: what it shows and what the user typed. The logic reads and
// writes it; the window shows it when it gets time and writes back what was typed before it calls a
// handler.
#pragma once

#include "document/windows/choice_list.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace velmora {

struct CutAtHand; ///< the sides, their wire and what to look at: forms/cut_at_hand.h

struct VerCorteWindow {
    std::shared_ptr<const CutAtHand> cut; ///< never changed, only replaced
    std::uint64_t pictures = 0;           ///< grows whenever the cut is another one
    std::uint64_t lists = 0;              ///< grows whenever Lst_Look is another one
    std::uint64_t looks = 0;              ///< grows whenever a place is to be looked at
    ChoiceList Cmb_Source, Cmb_Plane, Cmb_Joins, Cmb_Pace, Cmb_Machine;
    std::string Txt_Files;   ///< of the sides that are looked at
    std::string lbl_note;    ///< what can't be shown, and why; empty where all is
    std::string lbl_place;   ///< where the wire is
    std::string lbl_look;    ///< how much there is to look at
    std::string lbl_fit;     ///< whether the travel is enough
    std::string lbl_time;    ///< of the cut
    std::string lbl_wrong;   ///< with the file of the machine that is chosen
    std::string lbl_written; ///< what was written last
    std::vector<std::string> Lst_Look;
    std::optional<std::size_t> looked_at;              ///< a row of Lst_Look
    std::vector<std::vector<std::string>> Tbl_Numbers; ///< heads, then a row a plane
    std::string Txt_Still, Txt_While, Txt_Factor, Txt_Close;
    std::string Txt_Travel_X, Txt_Travel_Y, Txt_Speed;
    double along = 0; ///< way of the wire, millimetres
    bool playing = false;
    bool has_wire = false; ///< it can be set on its way
    bool Cmd_Gcode_enabled = false;
    bool Cmd_Template_enabled = false;
    bool Chk_Points = false;
    bool Chk_Numbers = false;
    std::string file_A, file_B; ///< chosen here
};

namespace state {
extern VerCorteWindow& ver_corte;
}

} // namespace velmora
