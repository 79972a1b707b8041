// The logic of the window ver_corte: shows the two sides of a cut together, the wire on its way,
// what is worth a look, and writes the cut for other machines. It changes nothing of the sides.
#pragma once

#include "cutting/cut_report.h"
#include "forms/cut_at_hand.h"
#include "forms/cut_template.h"

#include <cstddef>

namespace velmora {

void ver_corte_Load();
/// What was typed is kept for the next time, and the cut is let go.
void ver_corte_Unload();

/// Before the adjustment, after it, from files.
void ver_corte_source_Change();
/// Asks for the files of the two sides, or for one program of both.
void ver_corte_files_Click();
/// What the pictures show of it was chosen anew.
void ver_corte_picture_Change();

/// A threshold was typed: the list is made anew.
void ver_corte_threshold_Change();
/// Travel or speed were typed.
void ver_corte_travel_Change();

/// A row of the list, from 0: all pictures go there, and the wire.
void ver_corte_look_Click(std::size_t row);
/// What is looked at; nothing where nothing is.
[[nodiscard]] const cutting::Entry* entry_looked_at();

/// The wire goes to a share of its way, 0 to 1; to a point; so many points on or back.
void ver_corte_go_to_share(double share);
void ver_corte_go_to_point(std::size_t point);
void ver_corte_step(int points);
/// The button was pressed in or let out. It starts from the beginning where the wire is at the end.
void ver_corte_play_Click();
/// So much time passed while it plays; at the end it stops.
void ver_corte_tick(double seconds);

/// Another machine was chosen; its program is written.
void ver_corte_machine_Change();
void ver_corte_gcode_Click();
/// The template in true size; the toolkit makes the PDF.
void ver_corte_pdf_Click(const MakePdf& make_pdf);
void ver_corte_svg_Click();

void ver_corte_cmd_exit_Click();

} // namespace velmora
