// The window importar as plain data: what it shows and what the user typed. The logic reads and
// writes it; the window shows it when it gets time and writes back what was typed before it calls a
// handler.
#pragma once

#include "document/windows/choice_list.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace velmora {

struct ImportarPoint {
    double X = 0;
    double Y = 0;
    bool operator==(const ImportarPoint&) const = default;
};

/// What was found in the file: an outline or an open line. The closing point is not stored.
struct ImportarChain {
    std::vector<ImportarPoint> points;
    bool closed = false;
    std::string text;      ///< its row in Lst_Chains
    std::size_t taken = 0; ///< its place among those taken, from 1; 0 where it is left
};

struct ImportarBox {
    std::string text; ///< empty: by itself
    bool enabled = false;
};

struct ImportarWindow {
    std::string source; ///< path of the file
    std::string bytes;  ///< what stands in it
    std::string title;  ///< its own name for what is in it; may be empty
    std::string Txt_File;
    std::string Txt_Report; ///< what was understood, a line each
    std::string lbl_note;   ///< what is asked, or stands in the way
    std::vector<ImportarChain> Lst_Chains;
    std::vector<ImportarPoint>
        outline; ///< of the chains taken, in the order of the cut, not scaled
    bool outline_closed = false;
    double factor = 1;          ///< by which the outline is scaled when it is taken
    std::uint64_t pictures = 0; ///< grows whenever chains or outline change
    ChoiceList Cmb_Kind, Cmb_Rows, Cmb_Element, Cmb_Unit, Cmb_Axes;
    ChoiceList Cmb_Start, Cmb_Direction;
    ImportarBox Txt_Tolerance, Txt_Gap, Txt_Scale, Txt_Chord;
    bool Chk_Doubles = true;
    bool Chk_Hidden = false;
    bool Chk_Approach = true;
    bool Chk_Hidden_enabled = false;
    bool Chk_Approach_enabled = false;
    bool cmd_ok_enabled = false;
    bool taken = false;    ///< OK put the outline into Forma
    std::string target;    ///< the name that the outline got with it; nothing is written there yet
    std::string kind_text; ///< the kind that was read, in words
    std::string question;  ///< what could not be told from the file; empty: nothing
    bool question_needed = false; ///< without an answer there is no OK
    std::string fault;            ///< why there is nothing to show; empty where there is something
};

namespace state {
extern ImportarWindow& importar;
}

} // namespace velmora
