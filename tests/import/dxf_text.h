// DXF as text from pairs of codes and values, and the same in the binary form.
#pragma once

#include <bit>
#include <charconv>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace velmora::imports {

using DxfPairs = std::vector<std::pair<int, std::string>>;

inline std::string as_text(const DxfPairs& pairs, std::string_view end = "\n") {
    std::string text;
    for (const auto& [code, value] : pairs)
        text.append(std::to_string(code)).append(end).append(value).append(end);
    return text;
}

/// A section of entities between the marks of a whole file.
inline DxfPairs drawing(const DxfPairs& entities) {
    DxfPairs pairs = {{0, "SECTION"}, {2, "ENTITIES"}};
    pairs.insert(pairs.end(), entities.begin(), entities.end());
    pairs.insert(pairs.end(), {{0, "ENDSEC"}, {0, "EOF"}});
    return pairs;
}

inline DxfPairs operator+(DxfPairs a, const DxfPairs& b) {
    a.insert(a.end(), b.begin(), b.end());
    return a;
}

inline void put_bytes(std::string& bytes, std::uint64_t value, int count) {
    for (int i = 0; i < count; ++i)
        bytes += static_cast<char>(value >> (8 * i) & 0xFF);
}

/// Codes of two bytes as since R13, or of one as before.
inline std::string as_binary(const DxfPairs& pairs, bool wide) {
    std::string bytes("AutoCAD Binary DXF\r\n\x1a\0", 22);
    for (const auto& [code, value] : pairs) {
        put_bytes(bytes, static_cast<std::uint64_t>(code), wide ? 2 : 1);
        const bool real = (code >= 10 && code < 60) || (code >= 210 && code < 240);
        if (real)
            put_bytes(bytes, std::bit_cast<std::uint64_t>(std::stod(value)), 8);
        else if (code >= 60 && code < 80)
            put_bytes(bytes, static_cast<std::uint64_t>(std::stoi(value)), 2);
        else if (code >= 90 && code < 100)
            put_bytes(bytes, static_cast<std::uint64_t>(std::stoi(value)), 4);
        else
            bytes.append(value).push_back('\0');
    }
    return bytes;
}

inline DxfPairs dxf_line(const std::string& x1, const std::string& y1, const std::string& x2,
                         const std::string& y2) {
    return {{0, "LINE"}, {8, "0"}, {10, x1}, {20, y1}, {11, x2}, {21, y2}};
}

} // namespace velmora::imports
