#include "import/svg.h"

#include "import/curves.h"
#include "import/svg_attributes.h"
#include "import/svg_path.h"
#include "import/text.h"
#include "import/xml.h"

#include <algorithm>
#include <array>
#include <map>
#include <numbers>
#include <string>
#include <utility>

namespace velmora::imports {

namespace {

constexpr double mm_per_pixel = 25.4 / 96;
constexpr std::size_t deepest = 512;
constexpr std::size_t most_uses_nested = 16;
/// Elements that are looked at through references: a small file can ask for any number of them.
constexpr std::size_t most_referenced = 200'000;
constexpr std::size_t most_layers = 20'000;

/// Elements that draw nothing by themselves, with all that is in them.
constexpr std::array<std::string_view, 20> undrawn = {
    "defs",           "clipPath", "mask",   "marker",   "pattern", "symbol",       "text",
    "image",          "style",    "script", "metadata", "title",   "desc",         "linearGradient",
    "radialGradient", "filter",   "font",   "view",     "cursor",  "foreignObject"};
/// Of these the ones that a person would miss.
constexpr std::array<std::string_view, 3> missed = {"text", "image", "foreignObject"};

template <class List>
bool is_in(const List& list, std::string_view name) {
    return std::ranges::find(list, name) != list.end();
}

struct State {
    Map map;
    std::uint16_t layer = 0;
};

class SvgReader {
  public:
    SvgReader(std::string_view text, double tolerance, Report& report)
        : text_(text), tolerance_(tolerance), report_(report) {
        drawing_.layers.emplace_back();
    }

    Drawing read(bool& size_known) {
        XmlReader xml(text_);
        // Y points down in the file.
        draw_tree(xml, {.map = {1, 0, 0, -1, 0, 0}}, false);
        size_known = size_known_;
        drawing_.unit_mm = unit_mm_;
        if (!size_known_)
            report_.add(Fact::no_size, 0);
        report_.add(Fact::unit, 0, "user unit", unit_mm_);
        for (const auto& [kind, count] : left_out_)
            report_.add(Fact::left_out_entities, 0, kind, static_cast<double>(count));
        if (drawing_.pieces.full())
            report_.add(Fact::too_many_points, 0, {}, static_cast<double>(Pieces::most_points));
        return std::move(drawing_);
    }

  private:
    /// An element and what is in it; of a whole file the outermost one.
    void draw_tree(XmlReader& xml, const State& outer, bool by_reference) {
        std::vector<State> states = {outer};
        std::size_t passed_over = 0; ///< depth within an element that is not drawn
        while (true) {
            switch (xml.next()) {
            case XmlReader::Event::broken:
                report_.add(Fact::broken_xml, xml.line(), xml.name());
                return;
            case XmlReader::Event::finished:
                return;
            case XmlReader::Event::end:
                if (passed_over > 0)
                    --passed_over;
                else if (states.size() > 1)
                    states.pop_back();
                break;
            case XmlReader::Event::start:
                if (passed_over > 0 || !may_enter(xml, states.size(), by_reference))
                    ++passed_over;
                else
                    states.push_back(entered(xml, states.back()));
            }
            if (by_reference && states.size() == 1 && passed_over == 0)
                return;
        }
    }

    bool may_enter(const XmlReader& xml, std::size_t depth, bool by_reference) {
        const std::string_view name = xml.name();
        if (by_reference && ++referenced_ > most_referenced)
            return false;
        // What is referred to is drawn though it is among what is not.
        const bool referred_symbol = by_reference && depth == 1 && name == "symbol";
        if (is_in(undrawn, name) && !referred_symbol) {
            if (is_in(missed, name))
                ++left_out_[std::string(name)];
            return false;
        }
        if (depth >= deepest) {
            report_.add(Fact::too_deep, xml.line(), {}, static_cast<double>(deepest));
            return false;
        }
        return !is_hidden(xml.attribute("display"), xml.attribute("visibility"),
                          xml.attribute("style"));
    }

    State entered(const XmlReader& xml, const State& outer) {
        State state = outer;
        state.map = outer.map * svg_transform(xml.attribute("transform"));
        const std::string_view name = xml.name();
        if (name == "svg")
            enter_svg(xml, state);
        else if (name == "g")
            enter_group(xml, state);
        else if (name == "use")
            draw_reference(xml, state);
        else
            draw_shape(xml, state);
        return state;
    }

    void enter_group(const XmlReader& xml, State& state) {
        const std::string_view label = xml.attribute("label");
        if (label.empty() || drawing_.layers.size() >= most_layers)
            return;
        state.layer = static_cast<std::uint16_t>(drawing_.layers.size());
        drawing_.layers.emplace_back(label);
    }

    void enter_svg(const XmlReader& xml, State& state) {
        const std::vector<double> box = svg_numbers(xml.attribute("viewBox"));
        const bool has_box = box.size() == 4 && box[2] > 0 && box[3] > 0;
        const auto width = svg_length(xml.attribute("width"));
        const auto height = svg_length(xml.attribute("height"));
        if (!std::exchange(in_svg_, true)) {
            find_unit(has_box ? box : std::vector<double>{}, width, height);
            return;
        }
        const Point at{length_of(xml, "x"), length_of(xml, "y")};
        state.map = state.map * Map{1, 0, 0, 1, at.X, at.Y};
        if (has_box && width && height)
            state.map = state.map * fitted(box, *width, *height);
    }

    /// The box in the middle of a viewport, as large as it fits.
    static Map fitted(const std::vector<double>& box, double width, double height) {
        const double scale = std::min(width / box[2], height / box[3]);
        return {scale,
                0,
                0,
                scale,
                (width - scale * box[2]) / 2 - scale * box[0],
                (height - scale * box[3]) / 2 - scale * box[1]};
    }

    void find_unit(const std::vector<double>& box, std::optional<double> width,
                   std::optional<double> height) {
        unit_mm_ = mm_per_pixel;
        if (box.empty() || (!width && !height))
            return;
        const double by_width = width ? *width / box[2] : *height / box[3];
        const double by_height = height ? *height / box[3] : by_width;
        size_known_ = by_width > 0 && by_height > 0;
        if (size_known_)
            unit_mm_ = std::min(by_width, by_height) * mm_per_pixel;
    }

    static double length_of(const XmlReader& xml, std::string_view attribute, double missing = 0) {
        return svg_length(xml.attribute(attribute)).value_or(missing);
    }

    void draw_reference(const XmlReader& xml, const State& state) {
        std::string_view target = xml.attribute("href");
        if (!target.starts_with('#'))
            return;
        target.remove_prefix(1);
        find_ids();
        const auto found = ids_.find(target);
        if (found == ids_.end())
            return report_.add(Fact::missing_block, xml.line(), target);
        if (uses_nested_ >= most_uses_nested)
            return report_.add(Fact::too_deep, xml.line(), {},
                               static_cast<double>(most_uses_nested));
        if (referenced_ > most_referenced) {
            if (!std::exchange(told_of_too_many_, true))
                report_.add(Fact::too_many_inserts, xml.line(), {},
                            static_cast<double>(most_referenced));
            return;
        }
        State inner = state;
        inner.map = state.map * Map{1, 0, 0, 1, length_of(xml, "x"), length_of(xml, "y")};
        ++uses_nested_;
        XmlReader referred(text_, found->second.start, found->second.line);
        draw_tree(referred, inner, true);
        --uses_nested_;
    }

    void find_ids() {
        if (std::exchange(ids_found_, true))
            return;
        XmlReader xml(text_);
        for (auto event = xml.next(); event != XmlReader::Event::finished; event = xml.next()) {
            if (event == XmlReader::Event::broken)
                return;
            if (event == XmlReader::Event::start && !xml.attribute("id").empty())
                ids_.try_emplace(std::string(xml.attribute("id")),
                                 Place{xml.element_start(), xml.line()});
        }
    }

    void draw_shape(const XmlReader& xml, const State& state) {
        const std::string_view name = xml.name();
        if (name == "path")
            draw_path(xml, state);
        else if (name == "rect")
            draw_rectangle(xml, state);
        else if (name == "circle")
            draw_ellipse(xml, state, length_of(xml, "r"), length_of(xml, "r"));
        else if (name == "ellipse")
            draw_ellipse(xml, state, length_of(xml, "rx"), length_of(xml, "ry"));
        else if (name == "line")
            draw_points({length_of(xml, "x1"), length_of(xml, "y1"), length_of(xml, "x2"),
                         length_of(xml, "y2")},
                        xml, state, false);
        else if (name == "polyline" || name == "polygon")
            draw_points(svg_numbers(xml.attribute("points")), xml, state, name == "polygon");
    }

    void draw_path(const XmlReader& xml, const State& state) {
        const std::string_view data = xml.attribute("d");
        const SvgPen pen{drawing_.pieces, state.map, tolerance_, xml.line(), state.layer};
        const std::size_t read = read_svg_path(data, pen);
        if (read < data.size())
            report_.add(Fact::broken_path, xml.line(), data.substr(read, 40));
    }

    void draw_points(const std::vector<double>& numbers, const XmlReader& xml, const State& state,
                     bool closed) {
        drawing_.pieces.begin(xml.line(), state.layer);
        for (std::size_t i = 0; i + 1 < numbers.size(); i += 2)
            drawing_.pieces.add(state.map({numbers[i], numbers[i + 1]}));
        drawing_.pieces.end(closed);
    }

    void draw_ellipse(const XmlReader& xml, const State& state, double rx, double ry) {
        if (rx <= 0 || ry <= 0)
            return;
        const EllipseArc arc{.centre = {length_of(xml, "cx"), length_of(xml, "cy")},
                             .major = {rx, 0},
                             .minor = {0, ry},
                             .start = 0,
                             .sweep = 2 * std::numbers::pi};
        drawing_.pieces.begin(xml.line(), state.layer);
        flatten(mapped(arc, state.map), tolerance_, drawing_.pieces);
        drawing_.pieces.end(true);
    }

    void draw_rectangle(const XmlReader& xml, const State& state) {
        const double width = length_of(xml, "width");
        const double height = length_of(xml, "height");
        if (width <= 0 || height <= 0)
            return;
        const auto rx_given = svg_length(xml.attribute("rx"));
        const auto ry_given = svg_length(xml.attribute("ry"));
        const double rx = std::min(rx_given.value_or(ry_given.value_or(0)), width / 2);
        const double ry = std::min(ry_given.value_or(rx_given.value_or(0)), height / 2);
        const Point low{length_of(xml, "x"), length_of(xml, "y")};
        drawing_.pieces.begin(xml.line(), state.layer);
        constexpr std::array<Point, 4> corners = {{{1, 0}, {1, 1}, {0, 1}, {0, 0}}};
        for (std::size_t i = 0; i < corners.size(); ++i) {
            const Point& at = corners[i];
            const Point corner{low.X + at.X * width, low.Y + at.Y * height};
            if (rx <= 0 || ry <= 0) {
                drawing_.pieces.add(state.map(corner));
                continue;
            }
            const Point inward{rx * (1 - 2 * at.X), ry * (1 - 2 * at.Y)};
            const double start = (static_cast<double>(i) - 1) * std::numbers::pi / 2;
            flatten(
                mapped({corner + inward, {rx, 0}, {0, ry}, start, std::numbers::pi / 2}, state.map),
                tolerance_, drawing_.pieces);
        }
        drawing_.pieces.end(true);
    }

    struct Place {
        std::size_t start;
        std::size_t line;
    };

    std::string_view text_;
    double tolerance_;
    Report& report_;
    Drawing drawing_;
    bool in_svg_ = false;
    bool size_known_ = false;
    double unit_mm_ = mm_per_pixel;
    std::map<std::string, Place, std::less<>> ids_;
    bool ids_found_ = false;
    std::size_t uses_nested_ = 0;
    std::size_t referenced_ = 0;
    bool told_of_too_many_ = false;
    std::map<std::string, std::size_t, std::less<>> left_out_;
};

} // namespace

Drawing read_svg(std::string_view text, double tolerance, Report& report, bool& size_known) {
    return SvgReader(text, tolerance, report).read(size_known);
}

} // namespace velmora::imports
