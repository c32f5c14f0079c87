# How a test program of this project is built and run.
#
#   xmlhelper_add_test(<name> SOURCES <file>... LIBRARIES <library>...)
#
# builds the Qt Test program tst_<name> and registers it with CTest as <name>, to run without a screen. Sanitizers say
# where a finding comes from; a leak is a failure, unless tests/support/leaks.supp names what made it.
#
#   xmlhelper_set_test_environment(<name>)
#
# gives a test that was added in another way the same environment.

function(xmlhelper_set_test_environment name)
    set(environment QT_QPA_PLATFORM=offscreen)
    if(XMLHELPER_SANITIZE)
        list(APPEND environment UBSAN_OPTIONS=print_stacktrace=1)
    endif()
    if("address" IN_LIST XMLHELPER_SANITIZE)
        set(suppressions "${XMLHelper_SOURCE_DIR}/tests/support/leaks.supp")
        list(APPEND environment
            ASAN_OPTIONS=detect_leaks=1
            "LSAN_OPTIONS=suppressions=${suppressions}:print_suppressions=0")
    endif()
    if("thread" IN_LIST XMLHELPER_SANITIZE)
        list(APPEND environment "TSAN_OPTIONS=suppressions=${XMLHelper_SOURCE_DIR}/tests/support/threads.supp")
    endif()

    # An emulator takes long to start a program, and some tests start hundreds.
    set(timeout 300)
    if(CMAKE_CROSSCOMPILING_EMULATOR)
        set(timeout 900)
    endif()
    set_tests_properties(${name} PROPERTIES ENVIRONMENT "${environment}" TIMEOUT ${timeout})
endfunction()

function(xmlhelper_add_test name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;LIBRARIES")

    set(program tst_${name})
    add_executable(${program} ${arg_SOURCES})
    set_target_properties(${program} PROPERTIES AUTOMOC ON UNITY_BUILD OFF)
    xmlhelper_target_defaults(${program})
    target_link_libraries(${program} PRIVATE ${arg_LIBRARIES} ${xmlhelper_qt_test})
    # What links more or less of Qt reads other headers.
    if(TARGET xmlhelper_test_headers AND arg_LIBRARIES MATCHES "^(xmlhelper|xmlreader|internals|measurementpanel_scene)"
            AND NOT arg_LIBRARIES STREQUAL "xmlhelper_reportcheck" AND NOT arg_LIBRARIES MATCHES "::Network")
        target_precompile_headers(${program} REUSE_FROM xmlhelper_test_headers)
        set_source_files_properties("${CMAKE_CURRENT_BINARY_DIR}/${program}_autogen/mocs_compilation.cpp"
            PROPERTIES SKIP_PRECOMPILE_HEADERS ON)
    endif()

    add_test(NAME ${name} COMMAND ${program})
    xmlhelper_set_test_environment(${name})
endfunction()
