// The two folders of a scenario, as a transcript names them: $WORK, where relative paths lie, and
// $PROGRAM, the program's own.
#pragma once

#include <string>
#include <string_view>

namespace velmora::driver {

class Places {
  public:
    /// Both are absolute paths, UTF-8, without a separator at the end.
    Places(std::string work, std::string program);

    [[nodiscard]] const std::string& work() const { return work_; }
    [[nodiscard]] const std::string& program() const { return program_; }

    /// The absolute path of a script's path. A relative one lies in the work folder; one may also
    /// begin with $WORK or $PROGRAM, as transcripts print them.
    [[nodiscard]] std::string resolve(std::string_view path) const;
    /// A text that begins with $WORK or $PROGRAM, with the folder's path for the name; any other as
    /// it stands.
    [[nodiscard]] std::string expanded(std::string_view text) const;
    /// The text with the names for the folders' paths, also where it shows them in capitals.
    [[nodiscard]] std::string named(std::string_view text) const;
    /// `named` as a word of the transcript.
    [[nodiscard]] std::string word(std::string_view text) const;

  private:
    std::string work_;
    std::string program_;
};

} // namespace velmora::driver
