// Run-time errors: one exception type, its numbers, and the table of descriptions.
#pragma once

#include <cstdint>
#include <exception>
#include <string>
#include <string_view>

namespace velmora {

/// The numbers in use.
namespace error {
inline constexpr int invalid_call = 5;
inline constexpr int overflow = 6;
inline constexpr int out_of_memory = 7;
inline constexpr int subscript = 9;
inline constexpr int division_by_zero = 11;
inline constexpr int type_mismatch = 13;
inline constexpr int bad_file_number = 52;
inline constexpr int file_not_found = 53;
inline constexpr int bad_file_mode = 54;
inline constexpr int file_already_open = 55;
inline constexpr int device_io = 57;
inline constexpr int disk_full = 61;
inline constexpr int past_end = 62;
inline constexpr int permission_denied = 70;
inline constexpr int path_access = 75;
inline constexpr int path_not_found = 76;
inline constexpr int object_not_set = 91;
inline constexpr int invalid_null = 94;
inline constexpr int not_an_array = 343;
inline constexpr int object_required = 424;
inline constexpr int cannot_create_object = 429;
inline constexpr int no_such_member = 438;
inline constexpr int server_unavailable = 462;
inline constexpr int invalid_picture = 481;
inline constexpr int printer = 482;
inline constexpr int no_current_record = 3021;
inline constexpr int duplicate_key = 3022;
inline constexpr int invalid_database_path = 3044;
inline constexpr int statement_syntax = 3075;
inline constexpr int table_not_found = 3078;
inline constexpr int item_not_found = 3265;
inline constexpr int unrecognized_database = 3343;
} // namespace error

/// A run-time error. `description` is empty where the number's own text of the table holds. `place`
/// is one more line of the report: what the user has to mend, empty where the raiser doesn't know.
class RuntimeError : public std::exception {
  public:
    explicit RuntimeError(int error_number, std::string own_description = {});
    const char* what() const noexcept override { return what_.c_str(); }

    int number;
    std::string description;
    std::string place;

  private:
    std::string what_;
};

[[noreturn]] void raise(int number);
[[noreturn]] void raise(int number, std::string description);

/// The text of an error number in the program's language 'E', 'I', 'F', 'P' or 'T'; any other
/// letter gives the Spanish one, an unknown number a general text with the number.
std::string error_description(int number, char language);

/// Runs `body`; a run-time error, or a lack of memory as number 7, goes to `handler`.
template <class Body, class Handler>
void trap(Body&& body, Handler&& handler) {
    try {
        body();
    } catch (const RuntimeError& failure) {
        handler(failure);
    } catch (const std::bad_alloc&) {
        handler(RuntimeError(error::out_of_memory));
    }
}

} // namespace velmora
