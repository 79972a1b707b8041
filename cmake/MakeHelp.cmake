# cmake -DSOURCE=... -DSTYLE=... -DPAGES=... -DWORK=... [-DCHMCMD=... -DHELP_FILE=...] -P MakeHelp.cmake
# Lays the pages of one language of the guide into PAGES and compiles the help file of them, quietly.
# The compiler wants all in one folder and writes into the current one, so both happen in WORK; its
# faults are seen by its status and by what it says of files that are missing.

cmake_minimum_required(VERSION 3.25)

file(REMOVE_RECURSE "${PAGES}" "${WORK}")
file(GLOB_RECURSE files RELATIVE "${SOURCE}" "${SOURCE}/*")
foreach(file IN LISTS files)
  get_filename_component(folder "${file}" DIRECTORY)
  file(COPY "${SOURCE}/${file}" DESTINATION "${WORK}/${folder}")
  if(file MATCHES "\\.(html|png)$")
    file(COPY "${SOURCE}/${file}" DESTINATION "${PAGES}/${folder}")
  endif()
endforeach()
file(COPY "${STYLE}" DESTINATION "${WORK}")
file(COPY "${STYLE}" DESTINATION "${PAGES}")

if(NOT CHMCMD)
  return()
endif()
execute_process(COMMAND "${CHMCMD}" "${WORK}/velmora.hhp" WORKING_DIRECTORY "${WORK}"
  RESULT_VARIABLE status OUTPUT_VARIABLE said ERROR_VARIABLE faults)
get_filename_component(name "${HELP_FILE}" NAME)
if(NOT status EQUAL 0 OR said MATCHES "Warning|Error" OR NOT EXISTS "${WORK}/${name}")
  file(REMOVE "${HELP_FILE}")
  message(FATAL_ERROR "The help file ${name} was not written: ${said}${faults}")
endif()
file(RENAME "${WORK}/${name}" "${HELP_FILE}")
