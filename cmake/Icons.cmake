# velmora_add_icons(TARGET): renders data/icons/*.svg into pictures of all sizes and takes them into
# the target as Qt resources ":/icons/light/NAME-SIZE.png" and ":/icons/dark/NAME-SIZE.png". Only
# the toolbar keys and the tiles have a dark rendering.
find_program(VELMORA_RSVG rsvg-convert REQUIRED DOC "Renders the icons")

function(_velmora_render svg folder arguments widths result)
  cmake_path(GET svg STEM name)
  set(made)
  foreach(width IN LISTS widths)
    set(png "${folder}/${name}-${width}.png")
    add_custom_command(
      OUTPUT "${png}"
      COMMAND "${CMAKE_COMMAND}" -E make_directory "${folder}"
      COMMAND "${VELMORA_RSVG}" -w ${width} ${arguments} -o "${png}" "${svg}"
      DEPENDS "${svg}" "${CMAKE_SOURCE_DIR}/data/icons/dark.css"
      COMMENT "" VERBATIM)
    list(APPEND made "${png}")
  endforeach()
  set(${result} ${${result}} ${made} PARENT_SCOPE)
endfunction()

function(velmora_add_icons target)
  set(source "${CMAKE_SOURCE_DIR}/data/icons")
  set(folder "${CMAKE_BINARY_DIR}/icons")
  set(sizes 16 24 32 48 64)
  set(pictures)
  file(GLOB keys CONFIGURE_DEPENDS "${source}/K_*.svg" "${source}/tile_*.svg")
  foreach(svg IN LISTS keys)
    _velmora_render("${svg}" "${folder}/light" "" "${sizes}" pictures)
    _velmora_render("${svg}" "${folder}/dark" "--stylesheet=${source}/dark.css" "${sizes}" pictures)
  endforeach()
  _velmora_render("${source}/velmora.svg" "${folder}/light" "" "${sizes};128;256" pictures)
  _velmora_render("${source}/splash.svg" "${folder}/light" "" "600;1200" pictures)
  qt_add_resources(${target} icons PREFIX /icons BASE "${folder}" FILES ${pictures})
endfunction()
