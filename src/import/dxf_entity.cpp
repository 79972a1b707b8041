#include "import/dxf_entity.h"

#include <cmath>
#include <limits>

namespace velmora::imports {

namespace {

bool holds_number(int code) {
    return (code >= 10 && code < 100) || (code >= 210 && code < 240);
}

} // namespace

void DxfEntity::begin(const DxfTag& tag) {
    kind_ = tag.text;
    line_ = tag.line;
    name_ = {};
    layer_ = {};
    listing_ = kind_ == "LWPOLYLINE" || kind_ == "SPLINE";
    ordering_ = kind_ == "HATCH";
    ordered_.clear();
    ++stamp_;
    vertices_.clear();
    fit_points_.clear();
    knots_.clear();
    weights_.clear();
}

void DxfEntity::take(const DxfTag& tag) {
    if (tag.code == 2)
        name_ = tag.text;
    else if (tag.code == 8)
        layer_ = tag.text;
    if (!holds_number(tag.code))
        return;
    const auto value = tag.real();
    if (!value)
        return;
    values_[index(tag.code)] = *value;
    stamps_[index(tag.code)] = stamp_;
    if (ordering_)
        ordered_.push_back({tag.code, *value});
    if (listing_)
        take_list_value(tag.code, *value);
}

void DxfEntity::take_list_value(int code, double value) {
    switch (code) {
    case 10:
        vertices_.push_back({.at = {value, 0}});
        break;
    case 20:
        if (!vertices_.empty())
            vertices_.back().at.Y = value;
        break;
    case 42:
        if (!vertices_.empty())
            vertices_.back().bulge = value;
        break;
    case 11:
        fit_points_.push_back({value, 0});
        break;
    case 21:
        if (!fit_points_.empty())
            fit_points_.back().Y = value;
        break;
    case 40:
        knots_.push_back(value);
        break;
    case 41:
        weights_.push_back(value);
        break;
    default:
        break;
    }
}

int DxfEntity::whole(int code, int missing) const {
    const double value = real(code, missing);
    return std::abs(value) < std::numeric_limits<int>::max() ? static_cast<int>(value) : missing;
}

std::optional<Point> DxfEntity::place(int code) const {
    if (!has(code))
        return {};
    return Point{real(code), real(code + 10)};
}

} // namespace velmora::imports
