// Files under numbers: text lines in and out, fixed records, plain bytes. All reading and writing
// is buffered; texts are bytes as they are in the file (Windows-1252).
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>

namespace velmora::runtime {

/// The open files of the program, numbers 1 and 2. Opening a number that is open raises 55, using
/// one that is not raises 52, using one in the wrong way 54, opening what is not there 53, making
/// one where no folder is 76, what may not be read or written 70, a folder or a disk that is read
/// only 75, a full disk 61, any other fault of a device 57.
class FileTable {
  public:
    FileTable();
    ~FileTable();
    FileTable(const FileTable&) = delete;
    FileTable& operator=(const FileTable&) = delete;

    /// Text, to read by lines.
    void open_input(int number, std::string_view path);
    /// Text, made anew, to write.
    void open_output(int number, std::string_view path);
    /// Bytes, to read from the start; the file must exist.
    void open_bytes(int number, std::string_view path);
    /// Records of `length` bytes, made when missing, read and written in sequence from the first;
    /// an existing file keeps what is not written over, one that may not be written is read.
    void open_random(int number, std::string_view path, int length);

    /// Writes what waits and closes; open or not. Raises 61 or 57 when the rest can't be written;
    /// the number is free all the same.
    void close(int number);
    /// Closes without a fault, for error routes; open or not.
    void abandon(int number) noexcept;
    [[nodiscard]] bool is_open(int number) const;

    /// Text: nothing more to read, or byte 26 next. Records: a read found less than a record.
    [[nodiscard]] bool eof(int number);
    /// The next line without its end (CR LF, LF, or CR alone); valid until the next use of the
    /// number. Raises 62 at the end, 7 for a line of more than 64 MB.
    std::string_view line_input(int number);
    /// The next record, `length` bytes; what the file lacks is blank. Valid until the next use.
    std::string_view read_record(int number);
    /// Text or bytes as they are. For a record exactly its length, else 5.
    void write(int number, std::string_view bytes);
    /// Bytes of a file opened for bytes, at most a buffer's worth; empty at the end.
    std::string_view read_bytes(int number);
    /// Length in bytes of an open file.
    [[nodiscard]] std::uint64_t length(int number);

  private:
    class OpenFile;
    OpenFile& at(int number);
    std::unique_ptr<OpenFile>& slot(int number);
    std::unique_ptr<OpenFile>& free_slot(int number);
    std::array<std::unique_ptr<OpenFile>, 2> slots_;
};

} // namespace velmora::runtime
