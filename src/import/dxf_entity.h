// One entity of a DXF file: its tags collected first, since programs write them in any order.
#pragma once

#include "import/dxf_tags.h"
#include "import/geometry.h"

#include <array>
#include <optional>
#include <string_view>
#include <vector>

namespace velmora::imports {

struct DxfVertex {
    Point at;
    double bulge = 0;
};

class DxfEntity {
  public:
    void begin(const DxfTag& tag);
    void take(const DxfTag& tag);

    [[nodiscard]] std::string_view kind() const { return kind_; }
    [[nodiscard]] std::size_t line() const { return line_; }
    [[nodiscard]] std::string_view name() const { return name_; }   ///< group 2
    [[nodiscard]] std::string_view layer() const { return layer_; } ///< group 8

    [[nodiscard]] bool has(int code) const { return stamps_[index(code)] == stamp_; }
    [[nodiscard]] double real(int code, double missing = 0) const {
        return has(code) ? values_[index(code)] : missing;
    }
    [[nodiscard]] int whole(int code, int missing = 0) const;
    /// The numbers under a code and 10 above it; none where the first is missing.
    [[nodiscard]] std::optional<Point> place(int code) const;

    [[nodiscard]] const std::vector<DxfVertex>& vertices() const { return vertices_; } ///< 10, 42
    [[nodiscard]] const std::vector<Point>& fit_points() const { return fit_points_; } ///< 11
    [[nodiscard]] const std::vector<double>& knots() const { return knots_; }          ///< 40
    [[nodiscard]] const std::vector<double>& weights() const { return weights_; }      ///< 41

    struct Value {
        int code = 0;
        double number = 0;
    };
    /// Of a hatch all its numbers in their order, in which alone they have a meaning.
    [[nodiscard]] const std::vector<Value>& ordered() const { return ordered_; }

  private:
    static constexpr std::size_t codes = 240;
    [[nodiscard]] static std::size_t index(int code) { return static_cast<std::size_t>(code); }
    void take_list_value(int code, double value);

    std::string_view kind_;
    std::string_view name_;
    std::string_view layer_;
    std::size_t line_ = 0;
    bool listing_ = false; ///< values under one code are many
    bool ordering_ = false;
    std::array<double, codes> values_{};
    std::array<std::uint32_t, codes> stamps_{}; ///< equal to `stamp_` where the entity has a value
    std::uint32_t stamp_ = 0;
    std::vector<DxfVertex> vertices_;
    std::vector<Point> fit_points_;
    std::vector<double> knots_;
    std::vector<double> weights_;
    std::vector<Value> ordered_;
};

} // namespace velmora::imports
