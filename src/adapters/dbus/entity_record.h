// The entities of a drawing as the bus carries them, read in blocks.
#pragma once

#include "adapters/dbus/cad_link.h"

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace velmora {

/// Drawing units and radians. What the numbers are follows from the class.
struct EntityRecord {
    QString handle; ///< the CAD's own name for the entity
    std::string class_name;
    bool closed = false;
    std::vector<double> numbers;
};

/// The model space of one document, fetched as positions are asked for.
class EntityBlocks {
  public:
    EntityBlocks(std::shared_ptr<const CadLink> link, QString document);

    /// Number of entities, asked anew; what was fetched before counts no longer. Raises 7 for more
    /// than any drawing has, 13 for less than none.
    [[nodiscard]] std::int32_t count();
    /// The entity at a position. Raises 9 where the drawing has none, 7 for texts and numbers
    /// beyond any drawing's.
    [[nodiscard]] const EntityRecord& at(std::int32_t position);

  private:
    using Block = std::vector<EntityRecord>;

    [[nodiscard]] const EntityRecord* fetched(std::int32_t position) const;
    [[nodiscard]] Block fetch(std::int32_t position);

    std::shared_ptr<const CadLink> link_;
    QString document_;
    std::map<std::int32_t, Block> blocks_; ///< by position of the first
    std::size_t numbers_ = 0;              ///< in them all
};

} // namespace velmora
