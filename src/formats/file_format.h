// The formats that are read, in one table: extension, detection, passes, reader, message.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace velmora {

enum class FileFormat : std::int16_t {
    undecided = 0,
    SLWS = 1,
    SLWSINC = 2,
    NOSLW = 3,
    SLWMD = 4,
    PROFILI = 5,
};

/// The dialect of a DAT file by its first three lines; `undecided` after the box of its own trap.
FileFormat GetFileFormat(std::string_view path);
/// The same where the box is to name the file in another way: the sides of the workbench show
/// capitals.
FileFormat GetFileFormat(std::string_view path, std::string_view shown_path);

/// The first three lines of a file.
struct FirstLines {
    std::string line1;
    std::string line2;
    std::string line3;
};

/// What is done to a file before it is read.
enum class Passes { none, separator, separator_and_tabs };

/// A row of the table.
struct Format {
    std::string_view extension; ///< three capitals
    FileFormat code;            ///< `undecided` where the extension alone decides
    bool (*known_by)(const FirstLines&);
    Passes passes;
    /// Reads the first path; texts show the second.
    std::int16_t (*read)(std::string_view path, std::string_view shown_path);
    int text; ///< message
    /// The reader takes a point from the line; null where it passes over none in silence.
    bool (*takes)(std::string_view line) = nullptr;
};

/// The row of a format that its extension alone decides, nullptr where there is none.
[[nodiscard]] const Format* format_of(std::string_view extension);
/// The row of a dialect, nullptr for `undecided`.
[[nodiscard]] const Format* format_of(FileFormat code);

} // namespace velmora
