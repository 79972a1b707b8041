#include "cutting/sheet_svg.h"

#include "runtime/numbers.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace velmora::cutting {

namespace {

struct Layer {
    Ink ink;
    std::string_view name;
    std::string_view colour;
    double width; ///< of its lines
};

/// In the order in which they lie on one another, from below.
constexpr std::array<Layer, 5> layers = {{{Ink::joint, "joint", "#808080", 0.1},
                                          {Ink::point, "point", "#808080", 0.1},
                                          {Ink::side_A, "A", "#c00000", 0.2},
                                          {Ink::side_B, "B", "#0000c0", 0.2},
                                          {Ink::sync, "sync", "#008000", 0.2}}};

class SvgWriter {
  public:
    explicit SvgWriter(int decimals) : decimals_(std::clamp(decimals, 0, 9)) {}

    std::string write(const SheetLayout& layout, const Sheet& sheet) {
        const std::string width = number(layout.width);
        const std::string height = number(layout.height);
        text_ = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                "<svg xmlns=\"http://www.w3.org/2000/svg\"\n"
                "     xmlns:inkscape=\"http://www.inkscape.org/namespaces/inkscape\"\n"
                "     width=\"" +
                width + "mm\" height=\"" + height + "mm\" viewBox=\"0 0 " + width + " " + height +
                "\">\n";
        for (const Layer& layer : layers)
            add_layer(sheet, layer);
        text_ += "</svg>\n";
        return std::move(text_);
    }

  private:
    [[nodiscard]] std::string number(double value) const {
        return runtime::NumACadena(runtime::Round(value, decimals_), '.');
    }
    [[nodiscard]] std::string attribute(std::string_view name, double value) const {
        return std::string(name).append("=\"").append(number(value)).append("\" ");
    }

    void add_layer(const Sheet& sheet, const Layer& layer) {
        const std::size_t before = text_.size();
        const auto add_all = [&](const auto& list) {
            for (const auto& item : list)
                if (item.ink == layer.ink)
                    add(item);
        };
        add_all(sheet.lines);
        add_all(sheet.circles);
        add_all(sheet.texts);
        if (text_.size() == before)
            return;
        const std::string colour(layer.colour);
        text_.insert(before, "<g inkscape:groupmode=\"layer\" inkscape:label=\"" +
                                 std::string(layer.name) + "\" fill=\"none\" stroke=\"" + colour +
                                 "\" stroke-width=\"" + runtime::NumACadena(layer.width, '.') +
                                 "\" color=\"" + colour + "\">\n");
        text_ += "</g>\n";
    }

    void add(const SheetLine& line) {
        text_ += line.closed ? "<polygon points=\"" : "<polyline points=\"";
        std::string_view blank = "";
        for (const Point& point : line.points) {
            text_ += blank;
            text_ += number(point.X) + "," + number(point.Y);
            blank = " ";
        }
        text_ += "\"/>\n";
    }

    void add(const SheetCircle& circle) {
        text_ += "<circle " + attribute("cx", circle.centre.X) + attribute("cy", circle.centre.Y) +
                 attribute("r", circle.radius) + "/>\n";
    }

    void add(const SheetText& text) {
        text_ += "<text " + attribute("x", text.at.X) + attribute("y", text.at.Y) +
                 "font-family=\"sans-serif\" " + attribute("font-size", text.height) +
                 "fill=\"currentColor\" stroke=\"none\">" + text.text + "</text>\n";
    }

    int decimals_;
    std::string text_;
};

} // namespace

std::string svg_of(const SheetLayout& layout, const Sheet& sheet, int decimals) {
    return SvgWriter(decimals).write(layout, sheet);
}

} // namespace velmora::cutting
