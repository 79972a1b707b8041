#include "runtime/file_table.h"
#include "runtime/error.h"
#include "runtime/file_stream.h"
#include "runtime/paths.h"

#include <algorithm>
#include <utility>

namespace velmora::runtime {
namespace {

constexpr char end_mark = 26;
/// Bytes. What goes on beyond is no text, and would fill the memory.
constexpr std::size_t longest_line = std::size_t{64} * 1024 * 1024;

enum class Use { lines, output, bytes, records };

/// The distance from `start` to the end of the line, or all there is.
std::size_t end_of_line(std::string_view text, std::size_t start) {
    // All the marks are among the first characters: one comparison passes over the others.
    const auto is_end = [](char c) {
        return static_cast<unsigned char>(c) <= end_mark &&
               (c == '\n' || c == '\r' || c == end_mark);
    };
    const auto* const found =
        std::find_if(text.begin() + static_cast<std::ptrdiff_t>(start), text.end(), is_end);
    return static_cast<std::size_t>(found - text.begin());
}

/// How many of the bytes after a line are its end; byte 26 stays for the next reading.
std::size_t end_size(std::string_view rest) {
    if (rest.starts_with("\r\n"))
        return 2;
    return rest.starts_with('\r') || rest.starts_with('\n') ? 1 : 0;
}

} // namespace

/// A file and how it is used. Reading and writing of records share one place in the file.
class FileTable::OpenFile {
  public:
    OpenFile(Use use, FileHandle file, std::filesystem::path path, std::size_t record = 0)
        : use_(use), record_(record), path_(std::move(path)), file_(std::move(file)) {}

    [[nodiscard]] bool eof();
    std::string_view line();
    std::string_view record();
    std::string_view bytes();
    void write(std::string_view bytes);
    [[nodiscard]] std::uint64_t length();
    void close();
    void abandon() noexcept;

  private:
    void expect(Use use) const;
    bool more() { return reading_.more(file_.get()); }
    [[nodiscard]] bool at_end();
    [[nodiscard]] bool at_text_end() { return at_end() || reading_.waiting().front() == end_mark; }
    void turn_to_reading();
    void turn_to_writing();
    std::string_view padded_rest();

    Use use_;
    std::size_t record_; ///< length in bytes
    std::filesystem::path path_;
    FileHandle file_;
    ReadBuffer reading_;
    WriteBuffer writing_;
    std::uint64_t place_ = 0; ///< of the next record, bytes from the start
    bool wrote_last_ = false;
    bool short_record_ = false;
    std::string padded_;
};

void FileTable::OpenFile::expect(Use use) const {
    if (use_ != use)
        raise(error::bad_file_mode);
}

bool FileTable::OpenFile::at_end() {
    return reading_.waiting().empty() && !more();
}

bool FileTable::OpenFile::eof() {
    switch (use_) {
    case Use::lines:
        return at_text_end();
    case Use::bytes:
        return at_end();
    case Use::records:
        return short_record_;
    default:
        raise(error::bad_file_mode);
    }
}

std::string_view FileTable::OpenFile::line() {
    expect(Use::lines);
    if (at_text_end())
        raise(error::past_end);
    std::size_t length = end_of_line(reading_.waiting(), 0);
    while (length == reading_.waiting().size() && more()) {
        length = end_of_line(reading_.waiting(), length);
        if (length > longest_line)
            raise(error::out_of_memory);
    }
    const bool feed_may_follow = reading_.waiting().substr(length) == "\r";
    if (feed_may_follow)
        more();
    const auto waiting = reading_.waiting();
    reading_.take(length + end_size(waiting.substr(length)));
    return waiting.substr(0, length);
}

std::string_view FileTable::OpenFile::record() {
    expect(Use::records);
    if (wrote_last_)
        turn_to_reading();
    while (reading_.waiting().size() < record_ && more()) {
    }
    place_ += record_;
    if (reading_.waiting().size() < record_)
        return padded_rest();
    const auto whole = reading_.waiting().substr(0, record_);
    reading_.take(record_);
    return whole;
}

std::string_view FileTable::OpenFile::padded_rest() {
    short_record_ = true;
    padded_ = reading_.waiting();
    padded_.resize(record_, ' ');
    reading_.clear();
    return padded_;
}

std::string_view FileTable::OpenFile::bytes() {
    expect(Use::bytes);
    if (at_end())
        return {};
    const auto all = reading_.waiting();
    reading_.take(all.size());
    return all;
}

void FileTable::OpenFile::write(std::string_view bytes) {
    if (use_ == Use::records) {
        if (bytes.size() != record_)
            raise(error::invalid_call);
        if (!wrote_last_)
            turn_to_writing();
        place_ += record_;
    } else {
        expect(Use::output);
    }
    writing_.add(file_.get(), bytes);
}

// The C library asks for a seek between the two directions.
void FileTable::OpenFile::turn_to_reading() {
    writing_.flush(file_.get());
    seek(file_.get(), place_);
    wrote_last_ = false;
}

void FileTable::OpenFile::turn_to_writing() {
    reading_.clear();
    seek(file_.get(), place_);
    wrote_last_ = true;
}

std::uint64_t FileTable::OpenFile::length() {
    writing_.flush(file_.get());
    std::error_code fault;
    const auto size = std::filesystem::file_size(path_, fault);
    if (fault)
        raise(error::device_io);
    return size;
}

void FileTable::OpenFile::close() {
    writing_.flush(file_.get());
    close_checked(std::move(file_));
}

void FileTable::OpenFile::abandon() noexcept {
    try {
        close();
    } catch (...) {
        file_.reset(); // an error route has its own fault to report
    }
}

FileTable::FileTable() = default;

FileTable::~FileTable() {
    abandon(1);
    abandon(2);
}

std::unique_ptr<FileTable::OpenFile>& FileTable::slot(int number) {
    if (number < 1 || number > static_cast<int>(slots_.size()))
        raise(error::bad_file_number);
    return slots_[static_cast<std::size_t>(number) - 1];
}

std::unique_ptr<FileTable::OpenFile>& FileTable::free_slot(int number) {
    auto& place = slot(number);
    if (place)
        raise(error::file_already_open);
    return place;
}

FileTable::OpenFile& FileTable::at(int number) {
    const auto& place = slot(number);
    if (!place)
        raise(error::bad_file_number);
    return *place;
}

void FileTable::open_input(int number, std::string_view path) {
    auto& place = free_slot(number);
    auto native = native_path(path);
    auto file = open_present(native);
    place = std::make_unique<OpenFile>(Use::lines, std::move(file), std::move(native));
}

void FileTable::open_output(int number, std::string_view path) {
    auto& place = free_slot(number);
    auto native = native_path(path);
    auto file = open_anew(native);
    place = std::make_unique<OpenFile>(Use::output, std::move(file), std::move(native));
}

void FileTable::open_bytes(int number, std::string_view path) {
    auto& place = free_slot(number);
    auto native = native_path(path);
    auto file = open_present(native);
    place = std::make_unique<OpenFile>(Use::bytes, std::move(file), std::move(native));
}

void FileTable::open_random(int number, std::string_view path, int length) {
    auto& place = free_slot(number);
    if (length < 1)
        raise(error::invalid_call);
    auto native = native_path(path);
    auto file = open_to_update(native);
    place = std::make_unique<OpenFile>(Use::records, std::move(file), std::move(native),
                                       static_cast<std::size_t>(length));
}

void FileTable::close(int number) {
    if (const auto file = std::exchange(slot(number), nullptr))
        file->close();
}

void FileTable::abandon(int number) noexcept {
    if (!is_open(number))
        return;
    auto& place = slots_[static_cast<std::size_t>(number) - 1];
    place->abandon();
    place.reset();
}

bool FileTable::is_open(int number) const {
    return number >= 1 && number <= static_cast<int>(slots_.size()) &&
           slots_[static_cast<std::size_t>(number) - 1] != nullptr;
}

bool FileTable::eof(int number) {
    return at(number).eof();
}

std::string_view FileTable::line_input(int number) {
    return at(number).line();
}

std::string_view FileTable::read_record(int number) {
    return at(number).record();
}

void FileTable::write(int number, std::string_view bytes) {
    at(number).write(bytes);
}

std::string_view FileTable::read_bytes(int number) {
    return at(number).bytes();
}

std::uint64_t FileTable::length(int number) {
    return at(number).length();
}

} // namespace velmora::runtime
