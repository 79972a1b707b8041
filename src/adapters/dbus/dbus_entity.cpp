#include "adapters/dbus/dbus_entity.h"

#include "runtime/error.h"

#include <algorithm>
#include <utility>

namespace velmora {

namespace {

constexpr std::string_view kLine = "AcDbLine";
constexpr std::string_view kPoint = "AcDbPoint";
constexpr std::string_view kPolyline = "AcDbPolyline";
constexpr std::string_view kArc = "AcDbArc";
constexpr std::string_view kCircle = "AcDbCircle";
constexpr std::string_view kSpline = "AcDbSpline";

} // namespace

DbusEntity::DbusEntity(std::shared_ptr<const CadLink> link, QString document, EntityRecord record)
    : link_(std::move(link)), document_(std::move(document)), record_(std::move(record)) {}

std::string DbusEntity::ObjectName() {
    return record_.class_name;
}

void DbusEntity::set_Color(int index) {
    link_->tell("SetColor", {document_, record_.handle, index});
}

std::vector<double> DbusEntity::StartPoint() {
    require({kLine});
    return pair_at(0);
}

std::vector<double> DbusEntity::EndPoint() {
    require({kLine});
    return pair_at(2);
}

std::vector<double> DbusEntity::Coordinates() {
    require({kPoint, kPolyline});
    return record_.numbers;
}

bool DbusEntity::Closed() {
    require({kPolyline});
    return record_.closed;
}

void DbusEntity::set_Closed(bool closed) {
    require({kPolyline});
    link_->tell("SetClosed", {document_, record_.handle, closed});
}

std::vector<double> DbusEntity::Center() {
    require({kArc, kCircle});
    return pair_at(0);
}

double DbusEntity::Radius() {
    require({kArc, kCircle});
    return number_at(2);
}

double DbusEntity::StartAngle() {
    require({kArc});
    return number_at(3);
}

double DbusEntity::EndAngle() {
    require({kArc});
    return number_at(4);
}

std::int32_t DbusEntity::NumberOfControlPoints() {
    require({kSpline});
    // A last one without its Y counts, and fails when it is looked at.
    return static_cast<std::int32_t>((record_.numbers.size() + 1) / 2);
}

std::vector<double> DbusEntity::GetControlPoint(std::int32_t index) {
    require({kSpline});
    if (index < 0 || index >= NumberOfControlPoints())
        raise(error::subscript);
    return pair_at(2 * static_cast<std::size_t>(index));
}

void DbusEntity::require(std::initializer_list<std::string_view> classes) const {
    if (std::ranges::find(classes, record_.class_name) == classes.end())
        raise(error::no_such_member);
}

/// What there is of an X and a Y: who uses a coordinate that is missing fails there.
std::vector<double> DbusEntity::pair_at(std::size_t first) const {
    const auto& numbers = record_.numbers;
    const auto begin = std::min(first, numbers.size());
    const auto end = std::min(first + 2, numbers.size());
    return {numbers.begin() + static_cast<std::ptrdiff_t>(begin),
            numbers.begin() + static_cast<std::ptrdiff_t>(end)};
}

double DbusEntity::number_at(std::size_t place) const {
    if (place >= record_.numbers.size())
        raise(error::subscript);
    return record_.numbers[place];
}

} // namespace velmora
