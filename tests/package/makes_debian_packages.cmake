# cpack makes one package for each component. Together they hold the files of the checked-in lists; the libraries alone
# are in the runtime package and have no search paths; each package knows what it depends on, and the tools run from
# where they are packed.
include("${CMAKE_CURRENT_LIST_DIR}/packagetest.cmake")

run(COMMAND "${CPACK}" --config "${BUILD_DIR}/CPackConfig.cmake" -C "${CONFIG}" -B "${WORK_DIR}" -G DEB)

function(expect_field package field regex)
    run(OUTPUT value COMMAND "${DPKG_DEB}" --field "${package}" "${field}")
    string(STRIP "${value}" value)
    if(NOT value MATCHES "${regex}")
        message(SEND_ERROR "${package}: the field ${field} is \"${value}\" and does not match \"${regex}\".")
    endif()
endfunction()

# Looks at a package and gives the list of its files.
#   expect_package(<name> FILES <variable> DEPENDS <regex>...)
function(expect_package name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "FILES" "DEPENDS")
    file(GLOB package "${WORK_DIR}/${name}_${VERSION}_*.deb")
    if(NOT package)
        message(FATAL_ERROR "cpack has made no package ${name} of version ${VERSION}.")
    endif()
    expect_field("${package}" Version "^${VERSION}$")
    expect_field("${package}" Maintainer "^XMLHelper maintainers <")
    foreach(regex IN LISTS arg_DEPENDS)
        expect_field("${package}" Depends "${regex}")
    endforeach()

    run(OUTPUT contents COMMAND "${DPKG_DEB}" --contents "${package}")
    string(REGEX MATCHALL "[^\n]+" entries "${contents}")
    foreach(entry IN LISTS entries)
        if(NOT entry MATCHES "^(drwxr-xr-x|-rwxr-xr-x|-rw-r--r--|lrwxrwxrwx) root/root ")
            message(SEND_ERROR "${package}: the owner or the rights of a file are wrong: ${entry}")
        endif()
    endforeach()

    set(tree "${WORK_DIR}/${name}")
    run(COMMAND "${DPKG_DEB}" --extract "${package}" "${tree}")
    list_files(files "${tree}")
    set(${arg_FILES} "${files}" PARENT_SCOPE)

    file(GLOB_RECURSE binaries "${tree}/*.so.${VERSION}" "${tree}/usr/bin/*" "${tree}/usr/libexec/xmlhelper/*")
    list(FILTER binaries EXCLUDE REGEX "\\.xsd$")
    foreach(binary IN LISTS binaries)
        run(OUTPUT dynamic COMMAND "${READELF}" --dynamic "${binary}")
        if(dynamic MATCHES "\\((RPATH|RUNPATH)\\)")
            message(SEND_ERROR "${binary} has a search path for libraries.")
        endif()
    endforeach()
endfunction()

set(runtime libxmlhelper${VERSION_MAJOR})
string(REPLACE "." "\\." version "${VERSION}")
if(QT_MAJOR EQUAL 6)
    set(qt_dev "qt6-base-dev, qt6-5compat-dev")
    set(qt_core libqt6core6)
else()
    set(qt_dev "qtbase5-dev")
    set(qt_core libqt5core5a)
endif()

expect_package(${runtime} FILES runtime_files DEPENDS "${qt_core} \\(>=" "libc6 \\(>=")
expect_package(libxmlhelper-dev FILES development_files DEPENDS "${runtime} \\(= ${version}\\)" "${qt_dev}")

set(installed ${runtime_files} ${development_files})
list(TRANSFORM installed REPLACE "^usr/" "")
compare_lists("The files of ${runtime} and libxmlhelper-dev" "${CASES_DIR}/installed-files.txt" LINES ${installed})

set(library "\\.so\\.<(major|version)>$")
list(FILTER runtime_files EXCLUDE REGEX "${library}")
list(FILTER development_files INCLUDE REGEX "${library}")
if(runtime_files OR development_files)
    message(SEND_ERROR "These files are in the wrong package: ${runtime_files} ${development_files}")
endif()

if(HAS_TOOLS)
    expect_package(xmlhelper-tools FILES tools_files DEPENDS "${runtime} \\(= ${version}\\)" "${qt_core} \\(>=")
    compare_lists("The files of xmlhelper-tools" "${CASES_DIR}/tools-files.txt" LINES ${tools_files})

    # The panel is started by its link and makes a report by the schema that comes with it.
    file(MAKE_DIRECTORY "${WORK_DIR}/reports")
    set(ENV{LD_LIBRARY_PATH} "${WORK_DIR}/${runtime}/usr/${LIBDIR}")
    run(COMMAND "${WORK_DIR}/xmlhelper-tools/usr/bin/measurementpanel" --press 1 --reports "${WORK_DIR}/reports")
    file(GLOB reports "${WORK_DIR}/reports/*.xml")
    if(NOT reports)
        message(SEND_ERROR "The packed measurementpanel has made no report.")
    endif()
endif()
