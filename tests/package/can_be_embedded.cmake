# A project that embeds this one with add_subdirectory() builds the library on its own ARBase. It gets no tests, no
# examples, no benchmarks and no install rules; those of the library when it asks, and never what it brings itself.
include("${CMAKE_CURRENT_LIST_DIR}/packagetest.cmake")

# The whole library is built once more: as fast as the compiler can.
configure_client(embedding -D XMLHELPER_QUICK_BUILD=ON -D CMAKE_BUILD_TYPE=
    -D "XMLHELPER_SOURCE_DIR=${SOURCE_DIR}" -D "CMAKE_INSTALL_LIBDIR=${LIBDIR}")
build_and_run_client(
    "host trace: the client's own"
    "host trace: XMLReader: pCallback is NULL!"
    "read: bands"
    "read: band"
    "written: Site"
    "host trace: VCReporting::AddReportData(Frequency, , 98.5, , 0, )"
    "reported: Frequency 98.5")

run(OUTPUT tests COMMAND "${CTEST}" --test-dir build -N)
if(NOT tests MATCHES "Total Tests: 0")
    message(SEND_ERROR "The embedding project has got tests:\n${tests}")
endif()

file(GLOB_RECURSE folders LIST_DIRECTORIES ON RELATIVE "${WORK_DIR}/build/xmlhelper" "${WORK_DIR}/build/xmlhelper/*")
list(FILTER folders INCLUDE REGEX "^(tests|examples|benchmarks|fuzz)$|/tests$")
if(folders)
    message(SEND_ERROR "The embedding project has got ${folders}.")
endif()

run(COMMAND ${CMAKE_COMMAND} --install build --config "${CONFIG}" --prefix "${WORK_DIR}/not_asked")
list_files(installed "${WORK_DIR}/not_asked")
if(installed)
    message(SEND_ERROR "The embedding project has got install rules for:\n${installed}")
endif()

run(COMMAND ${CMAKE_COMMAND} -D XMLHELPER_INSTALL=ON build)
run(COMMAND ${CMAKE_COMMAND} --build build --config "${CONFIG}" --parallel 2)
run(COMMAND ${CMAKE_COMMAND} --install build --config "${CONFIG}" --prefix "${WORK_DIR}/asked")
if(IS_WINDOWS)
    set(libraries bin/XMLHelper${NAME_SUFFIX}.dll bin/GuiBase${NAME_SUFFIX}.dll)
else()
    set(libraries ${LIBDIR}/libXMLHelper${NAME_SUFFIX}.so ${LIBDIR}/libGuiBase${NAME_SUFFIX}.so)
endif()
set(include include)
if(QT_MAJOR EQUAL 6)
    set(include include/xmlhelper-qt6)
endif()
foreach(file IN ITEMS ${include}/xmlhelper/xmlhelper.h
        ${LIBDIR}/cmake/XMLHelper${NAME_SUFFIX}/XMLHelperConfig.cmake ${libraries})
    if(NOT EXISTS "${WORK_DIR}/asked/${file}")
        message(SEND_ERROR "The embedding project has asked for install rules and gets no ${file}.")
    endif()
endforeach()
foreach(file IN ITEMS ${include}/arbase ${LIBDIR}/cmake/ARBase${NAME_SUFFIX})
    if(EXISTS "${WORK_DIR}/asked/${file}")
        message(SEND_ERROR "The embedding project brings its own ARBase and gets ${file} of the stand-in.")
    endif()
endforeach()
