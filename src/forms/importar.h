// The logic of the window importar: reads a file of other programs, shows what is in it, and makes
// what is taken of it the outline.
#pragma once

#include <cstddef>
#include <string>

namespace velmora {

void importar_Load();
/// Asks for a file and reads it.
void Cmd_File_Click();
/// A file was dropped, or chosen. What can't be read is told in the window.
void importar_take_file(const std::string& path);
/// A choice changed that the reading depends on: the file's bytes are read once more.
void importar_reading_Change();
/// A choice changed that only puts what was read in order.
void importar_order_Change();
/// The factor, the chord: each empties the other.
void Txt_Scale_Change();
void Txt_Chord_Change();
/// A chain of Lst_Chains, from 0: taken behind those that are, or left again.
void importar_chain_Click(std::size_t chain);
/// The outline goes into Forma, its first point a sync point; the command goes on from there.
void importar_cmd_ok_Click();
void importar_cmd_cancel_Click();

} // namespace velmora
