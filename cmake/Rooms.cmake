# velmora_add_room_library(TARGET ROOM...): a static library of all sources in the given folders
# of src/. A new file is taken in at the next build without an edit here. A `main.cpp` belongs to the
# program alone.
function(velmora_add_room_library target)
  set(sources)
  foreach(room IN LISTS ARGN)
    file(GLOB_RECURSE found CONFIGURE_DEPENDS
      "${CMAKE_SOURCE_DIR}/src/${room}/*.cpp" "${CMAKE_SOURCE_DIR}/src/${room}/*.h")
    list(APPEND sources ${found})
  endforeach()
  list(FILTER sources EXCLUDE REGEX "/main\\.cpp$")
  add_library(${target} STATIC ${sources})
  target_include_directories(${target} PUBLIC "${CMAKE_SOURCE_DIR}/src")
  target_link_libraries(${target} PRIVATE velmora_flags)
endfunction()
