#include "adapters/dbus/entity_record.h"

#include "runtime/error.h"

#include <QDBusArgument>

#include <utility>

namespace velmora {

namespace {

/// Large enough that a drawing of thousands costs a few calls, small enough that the progress
/// moves.
constexpr std::int32_t kBlockSize = 2000;

/// What no drawing has; beyond it the answers are no drawing's, and would fill the memory.
constexpr std::int32_t kMostEntities = 10'000'000;
constexpr qsizetype kLongestText = 1024;
constexpr std::size_t kMostNumbers = 100'000'000;

void refuse_beyond(bool beyond) {
    if (beyond)
        raise(error::out_of_memory);
}

EntityRecord read_record(const QDBusArgument& stream) {
    EntityRecord record;
    QString class_name;
    QList<double> numbers;
    stream.beginStructure();
    stream >> record.handle >> class_name >> record.closed >> numbers;
    stream.endStructure();
    refuse_beyond(record.handle.size() > kLongestText || class_name.size() > kLongestText);
    record.class_name = class_name.toStdString();
    record.numbers.assign(numbers.cbegin(), numbers.cend());
    return record;
}

} // namespace

EntityBlocks::EntityBlocks(std::shared_ptr<const CadLink> link, QString document)
    : link_(std::move(link)), document_(std::move(document)) {}

std::int32_t EntityBlocks::count() {
    blocks_.clear();
    numbers_ = 0;
    const std::int32_t claimed = link_->ask_patiently("EntityCount", "i", {document_}).toInt();
    if (claimed < 0)
        raise(error::type_mismatch);
    refuse_beyond(claimed > kMostEntities);
    return claimed;
}

const EntityRecord& EntityBlocks::at(std::int32_t position) {
    if (position < 0)
        raise(error::subscript);
    if (const EntityRecord* known = fetched(position))
        return *known;
    Block block = fetch(position);
    // A drawing that has shrunk since it was counted.
    if (block.empty())
        raise(error::subscript);
    return blocks_.insert_or_assign(position, std::move(block)).first->second.front();
}

const EntityRecord* EntityBlocks::fetched(std::int32_t position) const {
    const auto behind = blocks_.upper_bound(position);
    if (behind == blocks_.begin())
        return nullptr;
    const auto& [first, block] = *std::prev(behind);
    const auto place = static_cast<std::size_t>(position - first);
    return place < block.size() ? &block[place] : nullptr;
}

EntityBlocks::Block EntityBlocks::fetch(std::int32_t position) {
    const auto stream =
        link_->ask_patiently("ReadEntities", "a(ssbad)", {document_, position, kBlockSize})
            .value<QDBusArgument>();
    Block block;
    stream.beginArray();
    while (!stream.atEnd()) {
        refuse_beyond(block.size() == static_cast<std::size_t>(kBlockSize));
        block.push_back(read_record(stream));
        numbers_ += block.back().numbers.size();
        refuse_beyond(numbers_ > kMostNumbers);
    }
    stream.endArray();
    return block;
}

} // namespace velmora
