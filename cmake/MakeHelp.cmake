# cmake -DCHMCMD=... -DPROJECT=... -DHELP_FILE=... -P MakeHelp.cmake
# Compiles a help project quietly. The compiler writes into the current folder, and its faults are
# seen by its status and by what it says of files that are missing.

cmake_minimum_required(VERSION 3.25)

get_filename_component(folder "${HELP_FILE}" DIRECTORY)
execute_process(COMMAND "${CHMCMD}" "${PROJECT}" WORKING_DIRECTORY "${folder}"
  RESULT_VARIABLE status OUTPUT_VARIABLE said ERROR_VARIABLE faults)
if(NOT status EQUAL 0 OR said MATCHES "Warning|Error")
  file(REMOVE "${HELP_FILE}")
  message(FATAL_ERROR "The help file was not written: ${said}${faults}")
endif()
