# The README's example is built with the compiler and pkg-config alone, without a word from the linker, and runs.
include("${CMAKE_CURRENT_LIST_DIR}/packagetest.cmake")

set(ENV{PKG_CONFIG_PATH} "${PREFIX}/${LIBDIR}/pkgconfig")
run(OUTPUT version COMMAND "${PKG_CONFIG}" --modversion xmlhelper)
string(STRIP "${version}" version)
if(NOT version STREQUAL VERSION)
    message(FATAL_ERROR "pkg-config knows version ${version} instead of ${VERSION}.")
endif()
run(OUTPUT flags_and_libraries COMMAND "${PKG_CONFIG}" --cflags --libs xmlhelper)
separate_arguments(flags_and_libraries UNIX_COMMAND "${flags_and_libraries}")
separate_arguments(flags UNIX_COMMAND "${FLAGS}")

run(COMMAND "${COMPILER}" ${flags} -std=c++17 -fPIC "${SOURCE_DIR}/examples/firststeps/main.cpp" -o client
    ${flags_and_libraries} -Wl,--fatal-warnings)

file(WRITE "${WORK_DIR}/bands.xml" "<bands><band/><band/></bands>\n")
set(ENV{LD_LIBRARY_PATH} "${PREFIX}/${LIBDIR}")
run(OUTPUT printed COMMAND "${WORK_DIR}/client" bands.xml)
expect_output("${printed}" "bands" "band" "band")
