// Drawings in the DXF format for the benches of both readers.
#pragma once

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <numeric>
#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace velmora::bench {

/// A group: its code and a number of six decimals.
inline void put_pair(std::string& text, std::string_view code, double value) {
    char digits[32];
    text.append(code).append("\r\n");
    text.append(
        digits,
        std::to_chars(digits, digits + sizeof digits, value, std::chars_format::fixed, 6).ptr);
    text += "\r\n";
}

/// A sheet of the version that both readers take.
inline std::string sheet(const std::string& entities) {
    return "  0\r\nSECTION\r\n  2\r\nHEADER\r\n  9\r\n$ACADVER\r\n  1\r\nAC1015\r\n"
           "  0\r\nENDSEC\r\n  0\r\nSECTION\r\n  2\r\nENTITIES\r\n" +
           entities + "  0\r\nENDSEC\r\n  0\r\nEOF\r\n";
}

/// A corner of a saw-toothed spiral, each in a cell of its own; codes of a line's end.
inline void put_corner(std::string& text, std::int64_t i, bool last) {
    put_pair(text, last ? " 11" : " 10", 2.5 * static_cast<double>(i % 1000) + 0.25);
    put_pair(text, last ? " 21" : " 20", 2.5 * static_cast<double>(i / 1000) + 0.25);
    put_pair(text, last ? " 31" : " 30", 0);
}

/// A closed run of `count` LINE entities, shuffled, half of them drawn backwards.
inline std::string shuffled_lines(std::int64_t count) {
    std::mt19937 random(7);
    std::vector<std::int64_t> order(static_cast<std::size_t>(count));
    std::iota(order.begin(), order.end(), std::int64_t{0});
    std::shuffle(order.begin(), order.end(), random);
    std::string text;
    for (const std::int64_t i : order) {
        const bool backwards = random() % 2 != 0;
        text += "  0\r\nLINE\r\n  5\r\n2F\r\n100\r\nAcDbEntity\r\n  8\r\n0\r\n100\r\nAcDbLine\r\n";
        put_corner(text, backwards ? (i + 1) % count : i, false);
        put_corner(text, backwards ? i : (i + 1) % count, true);
    }
    return sheet(text);
}

} // namespace velmora::bench
