// The window ajuste as plain data: what it shows and what the user typed. The logic reads and
// writes it; the window shows it when it gets time and writes back what was typed before it calls a
// handler.
#pragma once

#include <string>

namespace velmora {

/// The workbench of two sides. What is disabled here is so by design.
struct AjusteWindow {
    std::string txt_fileA, Txt_FileB; ///< paths of the loaded sides
    std::string TxtTotalPtos_A, TxtTotalPtos_B;
    std::string TxtTotalCtrlPtos_A, TxtTotalCtrlPtos_B;
    std::string Txt_File_A2, Txt_File_B2; ///< paths of the results
    std::string TxtTotalPtosNew_A, TxtTotalPtosNew_B;
    std::string TxtTotalCtrlPtosNew_A, TxtTotalCtrlPtosNew_B;
    std::string lbl_estado; ///< "3 / 200", the run at work of how many; after a save, its two files
    bool ChkPtosCtrl = false;
    bool cmd_opt_enabled = false;
    bool Cmd_Ajuste_enabled = false;
    bool Cmd_save_enabled = false;
    bool cmd_exit_enabled = true;
};

namespace state {
extern AjusteWindow& ajuste;
}

} // namespace velmora
