# One set of flags for every target of ours: warnings are errors, sanitizers by option,
# ccache where the machine has it.

# Paths in the cache are told from the checkout, so that what one compiled serves every other.
find_program(VELMORA_CCACHE ccache)
if(VELMORA_CCACHE)
  set(CMAKE_CXX_COMPILER_LAUNCHER "${CMAKE_COMMAND}" -E env
    "CCACHE_BASEDIR=${CMAKE_SOURCE_DIR}" CCACHE_NOHASHDIR=1
    CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime
    "${VELMORA_CCACHE}")
endif()

add_library(velmora_flags INTERFACE)
target_compile_options(velmora_flags INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Wshadow)
# What the sanitizers add to the code makes this compiler see faults that are not there.
if(NOT VELMORA_SANITIZE)
  target_compile_options(velmora_flags INTERFACE -Werror)
endif()
# Products and sums stay two roundings: the same bits on every machine.
target_compile_options(velmora_flags INTERFACE -ffp-contract=off)

if(VELMORA_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all
    -fno-omit-frame-pointer -g1 -O1)
  add_link_options(-fsanitize=address,undefined)
endif()
if(VELMORA_FUZZ)
  add_compile_options(-fsanitize=fuzzer-no-link)
endif()

# Hardened as the distribution hardens, with the library's own checks of its containers on top. Its
# compilers make position independent programs by themselves.
add_compile_definitions(_GLIBCXX_ASSERTIONS)
if(NOT VELMORA_SANITIZE AND NOT WIN32)
  add_compile_options(-fstack-protector-strong -Wformat -Werror=format-security)
  add_link_options(-Wl,-z,relro -Wl,-z,now -Wl,-z,noexecstack)
endif()
