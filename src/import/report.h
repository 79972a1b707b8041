// What a reader did with a file: facts with their lines. The words are made last, so that they can
// be said in another language.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace velmora::imports {

/// The comment of each is its sentence in `sentence`.
enum class Fact : unsigned char {
    // Text.
    utf16,
    latin1,
    end_mark,
    // Rows of numbers.
    title,
    line_passed_over,
    numbers_passed_over,
    grid_numbers,
    count_pair,
    outlying_row,
    short_run,
    decimal_comma,
    third_column,
    selig,
    lednicer,
    three_columns,
    from_the_nose,
    open_row,
    order_unknown,
    reversed,
    percent,
    chord,
    element_left_out,
    edge_gap,
    suspicious_row,
    // Pieces and chains.
    doubles,
    zero_lengths,
    junction,
    largest_gap,
    too_many_points,
    points_alone,
    points_left_out,
    // Drawings.
    dxf_version,
    unit,
    read_entities,
    left_out_entities,
    hidden_layer,
    paper_space,
    hidden_entities,
    stray_line,
    ends_early,
    behind_the_end,
    missing_block,
    block_in_itself,
    too_deep,
    too_many_inserts,
    bad_entity,
    // SVG.
    broken_xml,
    broken_path,
    no_size,
    // G-code.
    word_refused,
    approach_left_out,
    no_unit,
    axes,
    layer_planes,
    // Kinds that are not read.
    not_read,
    last_
};

struct Remark {
    Fact fact;
    std::size_t line = 0; ///< of the file, from 1; 0 where it speaks of the whole file
    std::string text;     ///< what is there, or a name
    double number = 0;
    double other = 0;
};

class Report {
  public:
    /// Of each fact the first thousand are kept, the rest counted: a damaged file's report stays
    /// smaller than the file.
    static constexpr std::size_t kept_of_each = 1000;

    void add(Fact fact, std::size_t line, std::string_view text = {}, double number = 0,
             double other = 0);
    [[nodiscard]] const std::vector<Remark>& remarks() const { return remarks_; }
    /// Adds what another report holds.
    void append(const Report& other);
    /// How often it was said, those not kept among them.
    [[nodiscard]] std::size_t count(Fact fact) const;

  private:
    std::vector<Remark> remarks_;
    std::array<std::size_t, static_cast<std::size_t>(Fact::last_)> counts_{};
};

/// The key of a fact: a word without blanks.
[[nodiscard]] std::string_view key(Fact fact);
/// Of its sentence in English: {t} stands for the text, {n} and {o} for the numbers.
[[nodiscard]] std::string_view words(Fact fact);
/// Such words, in any language, with what the remark has put in.
[[nodiscard]] std::string filled(std::string_view words, const Remark& remark, char separator);
/// In English, the line first where there is one: "line 77: passed over: end".
[[nodiscard]] std::string sentence(const Remark& remark);

} // namespace velmora::imports
