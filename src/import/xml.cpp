#include "import/xml.h"

#include "import/text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <utility>

namespace velmora::imports {

namespace {

constexpr std::array<std::pair<std::string_view, char>, 5> entities = {
    {{"lt", '<'}, {"gt", '>'}, {"amp", '&'}, {"quot", '"'}, {"apos", '\''}}};

bool ends_name(char c) {
    return is_blank(c) || c == '/' || c == '>' || c == '=' || c == '<';
}

std::string_view without_prefix(std::string_view name) {
    const auto colon = name.find(':');
    return colon == std::string_view::npos ? name : name.substr(colon + 1);
}

/// The ASCII character of a reference without its marks; 0 for any other.
char character_of(std::string_view reference) {
    for (const auto& [name, character] : entities) {
        if (reference == name)
            return character;
    }
    if (!reference.starts_with('#'))
        return 0;
    reference.remove_prefix(1);
    const bool hexadecimal = reference.starts_with('x');
    if (hexadecimal)
        reference.remove_prefix(1);
    std::uint32_t code = 0;
    std::from_chars(reference.data(), reference.data() + reference.size(), code,
                    hexadecimal ? 16 : 10);
    return code < 128 ? static_cast<char>(code) : 0;
}

void take_value(std::string& value, std::string_view raw) {
    value.clear();
    while (!raw.empty()) {
        const std::size_t mark = std::min(raw.find('&'), raw.size());
        value.append(raw.substr(0, mark));
        raw.remove_prefix(mark);
        const std::size_t end = raw.substr(0, 12).find(';');
        const char c = end != std::string_view::npos ? character_of(raw.substr(1, end - 1)) : '\0';
        if (c != '\0') {
            value += c;
            raw.remove_prefix(end + 1);
        } else if (!raw.empty()) {
            value += raw.front();
            raw.remove_prefix(1);
        }
    }
}

} // namespace

XmlReader::Event XmlReader::next() {
    if (std::exchange(empty_element_, false))
        return Event::end;
    while (true) {
        at_ = std::min(text_.find('<', at_), text_.size());
        count_lines();
        const std::string_view rest = text_.substr(at_);
        if (rest.empty())
            return Event::finished;
        bool whole = true;
        if (rest.starts_with("<!--"))
            whole = skip_behind("-->");
        else if (rest.starts_with("<![CDATA["))
            whole = skip_behind("]]>");
        else if (rest.starts_with("<?"))
            whole = skip_behind("?>");
        else if (rest.starts_with("<!"))
            whole = skip_declaration();
        else if (rest.starts_with("</"))
            return end_tag();
        else
            return element();
        if (!whole)
            return Event::broken;
    }
}

std::string_view XmlReader::attribute(std::string_view name) const {
    for (std::size_t i = 0; i < attribute_count_; ++i) {
        if (attributes_[i].name == name)
            return attributes_[i].value;
    }
    return {};
}

XmlReader::Event XmlReader::element() {
    element_start_ = at_;
    ++at_;
    name_ = without_prefix(take_name());
    if (name_.empty() || !attributes())
        return Event::broken;
    return Event::start;
}

XmlReader::Event XmlReader::end_tag() {
    at_ += 2;
    name_ = without_prefix(take_name());
    return skip_behind(">") ? Event::end : Event::broken;
}

bool XmlReader::attributes() {
    attribute_count_ = 0;
    while (true) {
        skip_blanks();
        if (at_ >= text_.size())
            return false;
        if (text_[at_] == '>') {
            ++at_;
            return true;
        }
        if (text_.substr(at_).starts_with("/>")) {
            at_ += 2;
            empty_element_ = true;
            return true;
        }
        if (!attribute_pair())
            return false;
    }
}

bool XmlReader::attribute_pair() {
    const std::string_view name = without_prefix(take_name());
    skip_blanks();
    if (name.empty() || at_ >= text_.size() || text_[at_] != '=')
        return false;
    ++at_;
    skip_blanks();
    if (at_ >= text_.size() || (text_[at_] != '"' && text_[at_] != '\''))
        return false;
    const std::size_t end = text_.find(text_[at_], at_ + 1);
    if (end == std::string_view::npos)
        return false;
    if (attribute_count_ == attributes_.size())
        attributes_.emplace_back();
    Attribute& attribute = attributes_[attribute_count_++];
    attribute.name = name;
    take_value(attribute.value, text_.substr(at_ + 1, end - at_ - 1));
    at_ = end + 1;
    return true;
}

bool XmlReader::skip_behind(std::string_view end) {
    const std::size_t found = text_.find(end, at_);
    if (found == std::string_view::npos)
        return false;
    at_ = found + end.size();
    return true;
}

/// With the declarations in brackets that a document type may hold.
bool XmlReader::skip_declaration() {
    const std::size_t bracket = text_.find('[', at_);
    const std::size_t end = text_.find('>', at_);
    if (bracket < end)
        return skip_behind("]") && skip_behind(">");
    return skip_behind(">");
}

std::string_view XmlReader::take_name() {
    const std::size_t start = at_;
    while (at_ < text_.size() && !ends_name(text_[at_]))
        ++at_;
    return text_.substr(start, at_ - start);
}

void XmlReader::skip_blanks() {
    while (at_ < text_.size() && is_blank(text_[at_]))
        ++at_;
}

void XmlReader::count_lines() {
    const std::string_view passed = text_.substr(counted_, at_ - counted_);
    line_ += static_cast<std::size_t>(std::ranges::count(passed, '\n'));
    counted_ = at_;
}

} // namespace velmora::imports
