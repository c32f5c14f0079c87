# Compares a list of lines with a checked-in one.
#
#   compare_lists(<what> <file> LINES <line>...)
#
# fails with one line for each difference: "+" is new, "-" is gone. The file is sorted and may start with comments (#).
# While XMLHELPER_REWRITE_EXPECTED is set it is written instead, for a person to review the difference.
function(compare_lists what file)
    cmake_parse_arguments(PARSE_ARGV 2 arg "" "" "LINES")
    set(actual ${arg_LINES})
    list(REMOVE_DUPLICATES actual)
    list(SORT actual)

    if(DEFINED ENV{XMLHELPER_REWRITE_EXPECTED})
        file(READ "${file}" comments)
        string(REGEX MATCH "^(#[^\n]*\n)*" comments "${comments}")
        list(JOIN actual "\n" body)
        file(WRITE "${file}" "${comments}${body}\n")
        return()
    endif()

    file(STRINGS "${file}" expected REGEX "^[^#]")

    set(differences "")
    foreach(line IN LISTS actual)
        if(NOT line IN_LIST expected)
            string(APPEND differences "  + ${line}\n")
        endif()
    endforeach()
    foreach(line IN LISTS expected)
        if(NOT line IN_LIST actual)
            string(APPEND differences "  - ${line}\n")
        endif()
    endforeach()
    if(differences)
        message(FATAL_ERROR "${what} differ from ${file}:\n${differences}"
            "If they are meant to, run this test with XMLHELPER_REWRITE_EXPECTED set and review the file.")
    endif()
endfunction()
