// XML, element by element, as far as a drawing needs it: no declarations are carried out, no other
// file is opened, no entity is replaced but the five of XML itself and characters by number.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace velmora::imports {

class XmlReader {
  public:
    /// `start` is where to begin in the text: 0, or a place that `element_start` gave.
    explicit XmlReader(std::string_view text, std::size_t start = 0, std::size_t line = 1)
        : text_(text), at_(start), counted_(start), line_(line) {}

    enum class Event : unsigned char { start, end, finished, broken };
    /// The next element's start or end; an empty element is a start and an end.
    [[nodiscard]] Event next();

    /// Without the prefix of its name space.
    [[nodiscard]] std::string_view name() const { return name_; }
    /// Of the element that began last; empty where it has none of the name. A prefix is not part of
    /// the name.
    [[nodiscard]] std::string_view attribute(std::string_view name) const;
    [[nodiscard]] std::size_t element_start() const { return element_start_; }
    [[nodiscard]] std::size_t line() const { return line_; }

  private:
    [[nodiscard]] Event element();
    [[nodiscard]] Event end_tag();
    [[nodiscard]] bool attributes();
    [[nodiscard]] bool attribute_pair();
    [[nodiscard]] bool skip_behind(std::string_view end);
    [[nodiscard]] bool skip_declaration();
    std::string_view take_name();
    void skip_blanks();
    void count_lines();

    struct Attribute {
        std::string_view name;
        std::string value;
    };

    std::string_view text_;
    std::size_t at_;
    std::size_t counted_; ///< up to here the lines are counted
    std::size_t line_;
    std::size_t element_start_ = 0;
    std::string_view name_;
    std::vector<Attribute> attributes_;
    std::size_t attribute_count_ = 0;
    bool empty_element_ = false;
};

} // namespace velmora::imports
