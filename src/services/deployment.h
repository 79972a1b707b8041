// What those who hand out the program fill in: addresses and names, in the file "deployment.txt"
// beside the program.
#pragma once

#include <iosfwd>
#include <string>

namespace velmora {

/// Empty is what nobody has filled in.
struct Deployment {
    std::string support_address;
    std::string web_page;
    std::string helpers; ///< the names that the about box shows, a line each
};

/// Lines "key = value" (UTF-8); a key that is not known and a line that begins with "#" are passed
/// over, "helper" may occur several times.
[[nodiscard]] Deployment read_deployment(std::istream& lines);

/// The file beside the program as it is now; all empty where there is none.
[[nodiscard]] Deployment deployment();

} // namespace velmora
