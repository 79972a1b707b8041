// The cut as a program for another machine: which machines there are, and the way to the file.
#pragma once

#include "forms/cut_words.h"

namespace velmora {

/// Fills the list of machines from their files, those of the program's folder `machines`.
void offer_machines(const CutWords& words);
/// Tells what is wrong with the file of the machine that is chosen; its program can't be written
/// then.
void show_machine(const CutWords& words);
/// Places beyond the travel are told first, with the question whether to go on; then the place of
/// the file is asked for.
void write_cut_program(const CutWords& words);

} // namespace velmora
