#include "formats/fixed_record.h"

#include <algorithm>

namespace velmora {

namespace {

void put_field(char* place, std::string_view text) {
    const std::string_view kept = text.substr(0, FixedRecord::field_length);
    const auto end = std::copy(kept.begin(), kept.end(), place);
    std::fill(end, place + FixedRecord::field_length, ' ');
}

} // namespace

FixedRecord::FixedRecord(std::string_view bytes) {
    bytes_.fill(' ');
    const std::string_view kept = bytes.substr(0, bytes_.size());
    std::copy(kept.begin(), kept.end(), bytes_.begin());
}

FixedRecord::FixedRecord(std::string_view field1, std::string_view field2) {
    put_field(bytes_.data(), field1);
    put_field(bytes_.data() + field_length, field2);
    bytes_[2 * field_length] = '\r';
    bytes_[2 * field_length + 1] = '\n';
}

bool FixedRecord::blank() const {
    const std::string_view fields = bytes().substr(0, 2 * field_length);
    return fields.find_first_not_of(' ') == std::string_view::npos;
}

} // namespace velmora
