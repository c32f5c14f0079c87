# Compares what a library exports with the checked-in list EXPECTED.
#
#   cmake -D EXPECTED=<file> -D LIBRARY=<file> -D VERSION=<name> [-D NM=<program>] -P checkexports.cmake
#   cmake -D EXPECTED=<file> -D SYMBOLS=<file> -P checkexports.cmake
#
# The first form asks nm, which demangles the dynamic symbols of an ELF library; all must have this version. The second
# takes a file with one symbol in each line, however that was made.
cmake_minimum_required(VERSION 3.22)
include("${CMAKE_CURRENT_LIST_DIR}/../support/comparelists.cmake")

if(SYMBOLS)
    file(STRINGS "${SYMBOLS}" symbols)
else()
    if(NOT NM)
        set(NM nm)
    endif()
    execute_process(COMMAND "${NM}" --dynamic --demangle --defined-only --with-symbol-versions "${LIBRARY}"
        OUTPUT_VARIABLE symbols COMMAND_ERROR_IS_FATAL ANY)
    string(STRIP "${symbols}" symbols)
    string(REPLACE "\n" ";" symbols "${symbols}")
    list(TRANSFORM symbols REPLACE "^[0-9a-f ]* [A-Za-z] " "")
    set(other_versions ${symbols})
    list(FILTER other_versions EXCLUDE REGEX "(^|@@)${VERSION}$")
    if(other_versions)
        list(JOIN other_versions "\n  " other_versions)
        message(SEND_ERROR "These symbols of ${LIBRARY} are not of the version ${VERSION}:\n  ${other_versions}")
    endif()
    list(TRANSFORM symbols REPLACE "@@?[A-Z0-9_]+$" "")
    list(REMOVE_ITEM symbols "${VERSION}")    # the version itself
endif()
list(TRANSFORM symbols REPLACE "QList<QString>" "QStringList") # what Qt 6 makes of the name
if(NOT symbols)
    message(FATAL_ERROR "${LIBRARY}${SYMBOLS} exports nothing at all.")
endif()

compare_lists("The exported symbols" "${EXPECTED}" LINES ${symbols})
