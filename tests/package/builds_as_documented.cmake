# The command lines of the pages build clients of the installed tree as they stand there, by CMake and by pkg-config,
# and without a word from compiler and linker; the clients run. On Qt 6 pkg-config's files have other names.
include("${CMAKE_CURRENT_LIST_DIR}/packagetest.cmake")

# Takes the lines out of a page that begin with the given one and are set off as code.
#   take_lines(<variable> <page> <first line>)
function(take_lines variable page first_line)
    file(READ "${SOURCE_DIR}/${page}" text)
    string(FIND "${text}" "\n\n    ${first_line}" start)
    if(start EQUAL -1)
        message(FATAL_ERROR "${page} has no lines that begin with: ${first_line}")
    endif()
    math(EXPR start "${start} + 1")
    string(SUBSTRING "${text}" ${start} -1 text)
    string(REGEX MATCH "^(\n    [^\n]*)+" lines "${text}")
    string(REPLACE "\n    " "\n" lines "${lines}")
    string(REPLACE "xmlhelper/lib" "xmlhelper/${LIBDIR}" lines "${lines}")
    string(REGEX REPLACE "(--libs [a-z]+)" "\\1${LOWER_SUFFIX}" lines "${lines}")
    set(${variable} "${lines}\n" PARENT_SCOPE)
endfunction()

# Runs lines of a page in a shell and compares what is said after the build by the client alone.
#   follow(<lines> <expected line>...)
function(follow lines)
    string(REGEX REPLACE "\n(cmake [^\n]*)" "\n\\1 >cmake.log" lines "${lines}")
    run(OUTPUT said COMMAND sh -e -c "exec 2>&1\n${lines}")
    expect_output("${said}" ${ARGN})
endfunction()

set(ENV{PKG_CONFIG_PATH} "${PREFIX}/${LIBDIR}/pkgconfig")
run(OUTPUT version COMMAND "${PKG_CONFIG}" --modversion xmlhelper${LOWER_SUFFIX})
expect_output("${version}" "${VERSION}")

file(COPY "${SOURCE_DIR}/examples/firststeps/main.cpp" "${SOURCE_DIR}/examples/firststeps/fill.cpp"
    DESTINATION "${WORK_DIR}")
file(WRITE "${WORK_DIR}/some.xml" "<bands><band/><band/></bands>\n")
file(CREATE_LINK "${PREFIX}" "${WORK_DIR}/xmlhelper" SYMBOLIC)
set(ENV{HOME} "${WORK_DIR}")

take_lines(project docs/linking.md "cmake_minimum_required(")
file(WRITE "${WORK_DIR}/CMakeLists.txt" "${project}")
take_lines(lines docs/linking.md "cmake -B build ")
follow("${lines}" "bands" "band" "band")

take_lines(lines docs/linking.md "export PKG_CONFIG_PATH=")
follow("${lines}" "bands" "band" "band")

# Its second client fills a report.
set(ENV{LD_LIBRARY_PATH} "${PREFIX}/${LIBDIR}")
file(CREATE_LINK "${SOURCE_DIR}/examples" "${WORK_DIR}/examples" SYMBOLIC)
take_lines(lines docs/linking.md "c++ fill.cpp ")
follow("${lines}" "complete")

# The main page's line links a program that uses the value tree.
file(COPY_FILE "${SOURCE_DIR}/examples/writetree/main.cpp" "${WORK_DIR}/client.cpp")
take_lines(lines docs/pages/mainpage.md "c++ client.cpp ")
follow("${lines}")
run(COMMAND "${WORK_DIR}/a.out" inventory.xml)
file(READ "${WORK_DIR}/inventory.xml" inventory)
if(NOT inventory MATCHES "<Name>Tower &amp; Hill</Name>")
    message(SEND_ERROR "The value tree is not in the document:\n${inventory}")
endif()

# So does that of the panel with a program of widgets, which waits for its operator and is not run.
file(COPY "${SOURCE_DIR}/examples/reportpanel/main.cpp" DESTINATION "${WORK_DIR}")
take_lines(lines docs/report-panel.md "c++ main.cpp ")
follow("${lines}")

# The catalogues lie where pkg-config says.
run(OUTPUT folder COMMAND "${PKG_CONFIG}" --variable=translationsdir xmlhelper${LOWER_SUFFIX})
string(STRIP "${folder}" folder)
foreach(catalogue IN LISTS LIBRARY_CATALOGUES)
    if(NOT EXISTS "${folder}/${catalogue}")
        message(SEND_ERROR "pkg-config tells of catalogues in ${folder}, and there is no ${catalogue}.")
    endif()
endforeach()
