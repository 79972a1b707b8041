// The targets, each in a source of its own subject.
#pragma once

#include <string_view>

namespace velmora::fuzz {

/// A DAT file's dialect by its first lines.
void detection(std::string_view bytes);
/// The first byte names the reader, the rest is the file.
void readers(std::string_view bytes);
/// A file under its extension through the passes and its reader, on a machine of either separator.
void dispatcher(std::string_view bytes);
/// Numbers as points and marks: saved in one of the three forms and read back.
void save_reopen(std::string_view bytes);
/// Both readers of a side, and the choice between them.
void workbench(std::string_view bytes);
/// A file of another program, of any kind.
void import_file(std::string_view bytes);
/// A text as a number and a number as a text, beside what the C library says.
void numbers(std::string_view bytes);
/// A file in the place of VELMORA.MDB.
void language_database(std::string_view bytes);
/// Stored settings, a line "section/key=value" each.
void settings(std::string_view bytes);
/// The file of addresses that is handed out with the program.
void deployment(std::string_view bytes);
/// A script of the scenario driver: its lines, words and numbers, the CAD and the file it
/// describes.
void scenario(std::string_view bytes);

} // namespace velmora::fuzz
