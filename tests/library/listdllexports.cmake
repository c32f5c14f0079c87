# Writes what a DLL exports into SYMBOLS, demangled, one symbol in each line: the form that checkexports.cmake takes.
# Then that one compares it with the checked-in list EXPECTED.
#
#   cmake -D EXPECTED=<file> -D LIBRARY=<file> -D OBJDUMP=<program> -D CXXFILT=<program> -D SYMBOLS=<file>
#         -P listdllexports.cmake
cmake_minimum_required(VERSION 3.22)

execute_process(COMMAND "${OBJDUMP}" --private-headers "${LIBRARY}" OUTPUT_VARIABLE headers COMMAND_ERROR_IS_FATAL ANY)
# The table of names follows the one of addresses, and an empty line ends it.
string(REGEX REPLACE "^.*\n\\[Ordinal/Name Pointer\\] Table[^\n]*\n" "" names "${headers}")
string(REGEX REPLACE "\n\n.*$" "\n" names "${names}")
string(REGEX REPLACE "\t\\[ *[0-9]+\\] " "" names "${names}")
file(WRITE "${SYMBOLS}.mangled" "${names}")
execute_process(COMMAND "${CXXFILT}" INPUT_FILE "${SYMBOLS}.mangled" OUTPUT_FILE "${SYMBOLS}" COMMAND_ERROR_IS_FATAL ANY)

include("${CMAKE_CURRENT_LIST_DIR}/checkexports.cmake")
