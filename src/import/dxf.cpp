#include "import/dxf.h"

#include "import/dxf_blocks.h"
#include "import/dxf_hatch.h"
#include "import/dxf_tags.h"
#include "import/text.h"
#include "import/units.h"

#include <algorithm>
#include <map>
#include <string>
#include <utility>

namespace velmora::imports {

namespace {

constexpr std::size_t most_layers = 20'000;
/// Names that are told apart in the report: a damaged file may have any number of them.
constexpr std::size_t most_kinds = 200;

struct Layer {
    bool off = false;
    bool frozen = false;
    std::size_t pieces = 0;
};

using Counts = std::map<std::string, std::size_t, std::less<>>;

void count_in(Counts& counts, std::string_view name) {
    const auto found = counts.find(name);
    if (found != counts.end())
        ++found->second;
    else
        ++counts[counts.size() < most_kinds ? std::string(name) : "..."];
}

/// Kinds without a shape that belong to others which have one.
bool belongs_to_another(std::string_view kind) {
    return kind == "SEQEND" || kind == "ATTRIB" || kind == "ENDBLK" || kind == "ENDSEC";
}

class DxfReader {
  public:
    DxfReader(std::string_view bytes, double tolerance, const Choices& choices, Report& report)
        : tags_(bytes, report), tolerance_(tolerance), choices_(choices), report_(report) {
        layer_number("0");
    }

    Drawing read() {
        DxfTag tag;
        while (tags_.next(tag)) {
            if (tag.code != 0) {
                take(tag);
                continue;
            }
            finish_entity();
            entity_.begin(tag);
            begun_ = true;
        }
        finish_entity();
        finish_polyline();
        finish();
        return std::move(drawing_);
    }

  private:
    void take(const DxfTag& tag) {
        if (section_ == "OBJECTS" || section_ == "CLASSES" || section_ == "THUMBNAILIMAGE")
            return;
        if (section_ == "HEADER")
            take_variable(tag);
        else if (tag.code == 2 && entity_.kind() == "SECTION")
            section_ = tag.text;
        entity_.take(tag);
    }

    void take_variable(const DxfTag& tag) {
        if (tag.code == 9)
            variable_ = tag.text;
        else if (variable_ == "$ACADVER" && tag.code == 1)
            report_.add(Fact::dxf_version, tag.line, tag.text);
        else if (variable_ == "$INSUNITS" && tag.code == 70)
            unit_ = drawing_unit(tag.whole());
        else if (variable_ == "$MEASUREMENT" && tag.code == 70)
            measurement_ = drawing_unit(tag.whole() == 0 ? 1 : 4);
    }

    void finish_entity() {
        if (!std::exchange(begun_, false))
            return;
        const std::string_view kind = entity_.kind();
        if (kind != "VERTEX")
            finish_polyline();
        if (kind == "SECTION")
            return;
        if (kind == "ENDSEC")
            leave_section();
        else if (section_ == "TABLES")
            take_table_entry();
        else if (section_ == "BLOCKS" && kind == "BLOCK")
            begin_block();
        else if (section_ == "BLOCKS" && kind == "ENDBLK")
            block_ = nullptr;
        else if (section_ == "BLOCKS" || section_ == "ENTITIES" || section_.empty())
            take_entity();
    }

    void leave_section() {
        // What a file holds without sections, or after one, counts as drawn.
        section_ = {};
        variable_ = {};
        block_ = nullptr;
    }

    void take_table_entry() {
        if (entity_.kind() != "LAYER")
            return;
        Layer& layer = layers_[layer_number(entity_.name())];
        layer.off = entity_.whole(62) < 0;
        layer.frozen = (entity_.whole(70) & 1) != 0;
    }

    void begin_block() {
        block_ = &blocks_.block(entity_.name());
        block_->base = entity_.place(10).value_or(Point{});
    }

    void take_entity() {
        const std::string_view kind = entity_.kind();
        if (kind == "VERTEX")
            return take_vertex();
        if (belongs_to_another(kind))
            return;
        if (entity_.whole(67) == 1 && block_ == nullptr)
            ++on_paper_;
        else if (entity_.whole(60) == 1)
            ++invisible_;
        else if (kind == "POLYLINE")
            begin_polyline();
        else if (kind == "HATCH")
            take_hatch();
        else if (!draws_shape(kind))
            count_in(left_out_, kind);
        else if (auto shape = shape_of(entity_))
            place(std::move(*shape));
        else
            report_.add(Fact::bad_entity, entity_.line(), kind);
    }

    /// An area is bounded by loops; each is a shape of its own.
    void take_hatch() {
        std::vector<DxfShape> loops = hatch_loops(entity_);
        if (loops.empty())
            return report_.add(Fact::bad_entity, entity_.line(), "HATCH");
        count_in(read_, "HATCH");
        for (DxfShape& loop : loops) {
            loop.line = static_cast<std::uint32_t>(entity_.line());
            loop.layer = layer_number(entity_.layer());
            place_finished(std::move(loop));
        }
    }

    void place(DxfShape&& shape) {
        shape.line = static_cast<std::uint32_t>(entity_.line());
        shape.layer = layer_number(entity_.layer());
        count_in(read_, entity_.kind());
        place_finished(std::move(shape));
    }

    /// Insertions wait until all blocks and layers are known.
    void place_finished(DxfShape&& shape) {
        if (section_ == "BLOCKS") {
            if (block_ != nullptr)
                block_->shapes.push_back(std::move(shape));
        } else if (std::holds_alternative<DxfInsert>(shape.what)) {
            inserts_.push_back(std::move(shape));
        } else {
            blocks_.draw_shape(shape, {}, target());
        }
    }

    [[nodiscard]] DxfBlocks::Target target() {
        return {drawing_.pieces, fills_, drawing_.dots, frozen_, tolerance_, report_};
    }

    /// Its vertices follow as entities of their own. Meshes are not lines.
    void begin_polyline() {
        const int flags = entity_.whole(70);
        if ((flags & (16 | 64)) != 0)
            return count_in(left_out_, "POLYLINE (mesh)");
        const bool in_space = (flags & 8) != 0;
        polyline_ = DxfShape{.what = DxfPath{.vertices = {},
                                             .plane = in_space ? Map{} : plane_map(entity_),
                                             .closed = (flags & 1) != 0},
                             .line = static_cast<std::uint32_t>(entity_.line()),
                             .layer = layer_number(entity_.layer())};
        in_polyline_ = true;
        count_in(read_, "POLYLINE");
    }

    void take_vertex() {
        constexpr int control_frame = 16;
        const auto at = entity_.place(10);
        if (!in_polyline_ || !at || (entity_.whole(70) & control_frame) != 0)
            return;
        std::get<DxfPath>(polyline_.what)
            .vertices.push_back({.at = *at, .bulge = entity_.real(42)});
    }

    void finish_polyline() {
        if (std::exchange(in_polyline_, false))
            place_finished(std::move(polyline_));
    }

    std::uint16_t layer_number(std::string_view name) {
        if (name.empty())
            return 0;
        if (name == last_name_)
            return last_number_;
        auto found = layer_numbers_.find(name);
        if (found == layer_numbers_.end()) {
            if (layers_.size() >= most_layers)
                return 0;
            found = layer_numbers_.emplace(name, layers_.size()).first;
            layers_.emplace_back();
            drawing_.layers.emplace_back(name);
        }
        last_name_ = found->first;
        last_number_ = static_cast<std::uint16_t>(found->second);
        return last_number_;
    }

    void finish() {
        if (!choices_.hidden_layers) {
            for (const Layer& layer : layers_)
                frozen_.push_back(layer.frozen);
        }
        for (const DxfShape& insert : inserts_)
            blocks_.draw_shape(insert, {}, target());
        if (drawing_.pieces.all().empty() && !fills_.all().empty())
            drawing_.pieces = std::move(fills_);
        if (drawing_.pieces.full())
            report_.add(Fact::too_many_points, 0, {}, static_cast<double>(Pieces::most_points));
        hide_layers();
        find_unit();
        say_counts();
    }

    void hide_layers() {
        if (choices_.hidden_layers)
            return;
        drawing_.pieces.erase_if([&](const Piece& piece) {
            Layer& layer = layers_[piece.layer];
            ++layer.pieces;
            return layer.off || layer.frozen;
        });
        for (std::size_t i = 0; i < layers_.size(); ++i) {
            const Layer& layer = layers_[i];
            if (layer.off || layer.frozen)
                report_.add(Fact::hidden_layer, 0, drawing_.layers[i],
                            static_cast<double>(layer.pieces));
        }
    }

    void find_unit() {
        const Unit unit = unit_.mm > 0 ? unit_ : measurement_;
        drawing_.unit_mm = unit.mm;
        if (unit.mm > 0)
            report_.add(Fact::unit, 0, unit.name, unit.mm);
    }

    void say_counts() {
        for (const auto& [kind, count] : read_)
            report_.add(Fact::read_entities, 0, kind, static_cast<double>(count));
        for (const auto& [kind, count] : left_out_)
            report_.add(Fact::left_out_entities, 0, kind, static_cast<double>(count));
        if (on_paper_ > 0)
            report_.add(Fact::paper_space, 0, {}, static_cast<double>(on_paper_));
        if (invisible_ > 0)
            report_.add(Fact::hidden_entities, 0, {}, static_cast<double>(invisible_));
    }

    DxfTags tags_;
    double tolerance_;
    const Choices& choices_;
    Report& report_;

    DxfEntity entity_;
    bool begun_ = false;
    std::string_view section_;
    std::string_view variable_;
    Unit unit_;
    Unit measurement_;

    DxfBlocks blocks_;
    DxfBlock* block_ = nullptr; ///< the one that is being read
    DxfShape polyline_;
    bool in_polyline_ = false;
    std::vector<DxfShape> inserts_;

    std::vector<Layer> layers_;
    std::map<std::string, std::size_t, std::less<>> layer_numbers_;
    std::string_view last_name_;
    std::uint16_t last_number_ = 0;
    std::vector<bool> frozen_;

    Drawing drawing_;
    Pieces fills_;
    Counts read_;
    Counts left_out_;
    std::size_t on_paper_ = 0;
    std::size_t invisible_ = 0;
};

} // namespace

Drawing read_dxf(std::string_view bytes, double tolerance, const Choices& choices, Report& report) {
    return DxfReader(bytes, tolerance, choices, report).read();
}

} // namespace velmora::imports
