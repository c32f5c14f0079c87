# How an example is tested: by running it and comparing what it prints or writes with an expected file.
#
#   xmlhelper_add_example_test(<name> PROGRAM <target>
#       ARGUMENTS <argument>...       run in the tests folder; {run} stands for a folder that is made for the
#                                     run and removed after it
#       EXPECTED_STATUS <status>      0 when it is not given
#       EXPECTED_OUTPUT <file>        what the program prints, a file of the tests folder
#       WRITTEN_FILE <name>           a file that the program writes into that folder
#       EXPECTED_FILE <file>)         what it has to hold, a file of the tests folder

include(XMLHelperTesting)

function(xmlhelper_add_example_test name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "PROGRAM;EXPECTED_STATUS;EXPECTED_OUTPUT;WRITTEN_FILE;EXPECTED_FILE"
        "ARGUMENTS")
    if(NOT DEFINED arg_EXPECTED_STATUS)
        set(arg_EXPECTED_STATUS 0)
    endif()
    add_test(NAME ${name}
        COMMAND ${CMAKE_COMMAND}
            -D "PROGRAM=$<TARGET_FILE:${arg_PROGRAM}>"
            -D "EMULATOR=${CMAKE_CROSSCOMPILING_EMULATOR}"
            -D "ARGUMENTS=${arg_ARGUMENTS}"
            -D "EXPECTED_STATUS=${arg_EXPECTED_STATUS}"
            -D "EXPECTED_OUTPUT=${arg_EXPECTED_OUTPUT}"
            -D "WRITTEN_FILE=${arg_WRITTEN_FILE}"
            -D "EXPECTED_FILE=${arg_EXPECTED_FILE}"
            -D "RUN_FOLDER=${CMAKE_CURRENT_BINARY_DIR}/${name}"
            -P "${XMLHelper_SOURCE_DIR}/cmake/RunExample.cmake"
        WORKING_DIRECTORY "${CMAKE_CURRENT_SOURCE_DIR}/tests")
    xmlhelper_set_test_environment(${name})
endfunction()
