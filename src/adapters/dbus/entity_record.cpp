#include "adapters/dbus/entity_record.h"

#include "runtime/error.h"

#include <QDBusArgument>

#include <utility>

namespace velmora {

namespace {

/// Large enough that a drawing of thousands costs a few calls, small enough that the progress
/// moves.
constexpr std::int32_t kBlockSize = 2000;

EntityRecord read_record(const QDBusArgument& stream) {
    EntityRecord record;
    QString class_name;
    QList<double> numbers;
    stream.beginStructure();
    stream >> record.handle >> class_name >> record.closed >> numbers;
    stream.endStructure();
    record.class_name = class_name.toStdString();
    record.numbers.assign(numbers.cbegin(), numbers.cend());
    return record;
}

} // namespace

EntityBlocks::EntityBlocks(std::shared_ptr<const CadLink> link, QString document)
    : link_(std::move(link)), document_(std::move(document)) {}

std::int32_t EntityBlocks::count() {
    blocks_.clear();
    return link_->ask("EntityCount", "i", {document_}).toInt();
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

EntityBlocks::Block EntityBlocks::fetch(std::int32_t position) const {
    const auto stream = link_->ask("ReadEntities", "a(ssbad)", {document_, position, kBlockSize})
                            .value<QDBusArgument>();
    Block block;
    stream.beginArray();
    while (!stream.atEnd())
        block.push_back(read_record(stream));
    stream.endArray();
    return block;
}

} // namespace velmora
