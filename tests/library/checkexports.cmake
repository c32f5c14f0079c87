# Compares what a library exports with the checked-in list EXPECTED.
#
#   cmake -D EXPECTED=<file> -D LIBRARY=<file> [-D NM=<program>] -P checkexports.cmake
#   cmake -D EXPECTED=<file> -D SYMBOLS=<file> -P checkexports.cmake
#
# The first form asks nm, which demangles the dynamic symbols of an ELF library; the second takes a file with one
# symbol in each line, however that was made.
cmake_minimum_required(VERSION 3.22)
include("${CMAKE_CURRENT_LIST_DIR}/../support/comparelists.cmake")

if(SYMBOLS)
    file(STRINGS "${SYMBOLS}" symbols)
else()
    if(NOT NM)
        set(NM nm)
    endif()
    execute_process(COMMAND "${NM}" --dynamic --demangle --defined-only "${LIBRARY}"
        OUTPUT_VARIABLE symbols COMMAND_ERROR_IS_FATAL ANY)
    string(STRIP "${symbols}" symbols)
    string(REPLACE "\n" ";" symbols "${symbols}")
    list(TRANSFORM symbols REPLACE "^[0-9a-f ]* [A-Za-z] " "")
endif()
list(TRANSFORM symbols REPLACE "QList<QString>" "QStringList") # what Qt 6 makes of the name
if(NOT symbols)
    message(FATAL_ERROR "${LIBRARY}${SYMBOLS} exports nothing at all.")
endif()

compare_lists("The exported symbols" "${EXPECTED}" LINES ${symbols})
