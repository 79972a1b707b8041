#include "import_tool/arguments.h"

#include "import/number_text.h"

#include <cstddef>

namespace velmora::import_tool {

namespace {

class ArgumentReader {
  public:
    ArgumentReader(std::span<const std::string> words, std::string& fault)
        : words_(words), fault_(fault) {}

    std::optional<Arguments> read() {
        while (at_ < words_.size() && fault_.empty())
            take(words_[at_++]);
        if (fault_.empty() && read_.files.empty() && !read_.help)
            fault_ = "no file is named";
        return fault_.empty() ? std::optional(read_) : std::nullopt;
    }

  private:
    void take(const std::string& word) {
        if (only_files_ || !word.starts_with("-") || word == "-")
            read_.files.push_back(word);
        else if (word == "--")
            only_files_ = true;
        else if (word == "--to")
            read_.folder = value_of(word);
        else if (word == "--chord")
            read_.chord_mm = length_of(word);
        else if (word == "--tolerance")
            read_.tolerance_mm = length_of(word);
        else if (word == "--as")
            take_form(value_of(word));
        else if (!take_switch(word))
            fault_ = "unknown option " + word;
    }

    bool take_switch(const std::string& word) {
        bool* const found = word == "--json"                   ? &read_.json
                            : word == "--points"               ? &read_.points
                            : word == "--check"                ? &read_.check
                            : word == "--all"                  ? &read_.all
                            : word == "--help" || word == "-h" ? &read_.help
                                                               : nullptr;
        if (found != nullptr)
            *found = true;
        return found != nullptr;
    }

    std::string value_of(const std::string& option) {
        if (at_ < words_.size())
            return words_[at_++];
        fault_ = option + " needs a value";
        return {};
    }

    std::optional<double> length_of(const std::string& option) {
        const std::string value = value_of(option);
        const auto length = imports::number_of(value);
        if (fault_.empty() && (!length || *length <= 0))
            fault_ = option + " needs a length above 0, not " + value;
        return length;
    }

    void take_form(const std::string& name) {
        if (name == "sync")
            read_.form = Form::sync;
        else if (name == "plain")
            read_.form = Form::plain;
        else if (name == "scr")
            read_.form = Form::scr;
        else if (fault_.empty())
            fault_ = "--as takes sync, plain or scr, not " + name;
    }

    std::span<const std::string> words_;
    std::string& fault_;
    std::size_t at_ = 0;
    bool only_files_ = false;
    Arguments read_;
};

} // namespace

std::optional<Arguments> arguments_of(std::span<const std::string> words, std::string& fault) {
    return ArgumentReader(words, fault).read();
}

} // namespace velmora::import_tool
