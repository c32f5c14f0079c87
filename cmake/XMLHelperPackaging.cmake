# The packages that cpack makes, on Debian one for each component:
#
#   libxmlhelper1    runtime: the library and the stand-ins for the suite's base libraries
#   libxmlhelper-dev development: headers, CMake packages, pkg-config, and the companion programs
#   xmlhelper-tools  programs that fill reports: one for the command line, and the example application
#
# Configure with -DCMAKE_INSTALL_PREFIX=/usr to have the libraries where Debian keeps its own, in the folder of the
# machine's architecture. With another prefix they go into /usr/lib itself, where the loader finds them too.

include(GNUInstallDirs)

set(CPACK_PACKAGE_NAME xmlhelper)
set(CPACK_PACKAGE_VENDOR "XMLHelper maintainers")
set(CPACK_PACKAGE_CONTACT "XMLHelper maintainers <maintainers@users.noreply.example>")
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "")    # each package has its own
set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

set(CPACK_COMPONENTS_ALL runtime development)
if(TARGET xmlhelper-fill OR TARGET measurementpanel)
    list(APPEND CPACK_COMPONENTS_ALL tools)
endif()

find_program(XMLHELPER_DPKG_DEB dpkg-deb)
mark_as_advanced(XMLHELPER_DPKG_DEB)
if(XMLHELPER_DPKG_DEB AND NOT CMAKE_CROSSCOMPILING)
    set(CPACK_GENERATOR DEB)
    set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
elseif(WIN32)
    set(CPACK_GENERATOR ZIP)
else()
    set(CPACK_GENERATOR TGZ)
endif()

set(CPACK_ARCHIVE_COMPONENT_INSTALL ON)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_PACKAGE_SOURCE xmlhelper)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_PRE_BUILD_SCRIPTS "${PROJECT_SOURCE_DIR}/cmake/XMLHelperDropSearchPaths.cmake")

set(runtime_package "libxmlhelper${PROJECT_VERSION_MAJOR}")
if(XMLHELPER_QT_MAJOR EQUAL 6)
    set(qt_packages "qt6-base-dev, qt6-5compat-dev")
    set(qt_sql_drivers libqt6sql6)
else()
    set(qt_packages "qtbase5-dev")
    set(qt_sql_drivers libqt5sql5)
endif()

set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME ${runtime_package})
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SHLIBDEPS ON)
if(xmlhelper_qt_sql) # A driver is loaded while it runs.
    set(CPACK_DEBIAN_RUNTIME_PACKAGE_RECOMMENDS "${qt_sql_drivers}-sqlite")
    set(CPACK_DEBIAN_RUNTIME_PACKAGE_SUGGESTS "${qt_sql_drivers}-psql")
endif()
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
file(WRITE "${PROJECT_BINARY_DIR}/package/triggers" "activate-noawait ldconfig\n")
set(CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_EXTRA "${PROJECT_BINARY_DIR}/package/triggers")
set(CPACK_COMPONENT_RUNTIME_DESCRIPTION
"XML and measurement reports on Qt: library
XMLHelper reads XML as a stream of events, writes XML files, fills documents
by an XSD schema, and writes measurement reports at the press of a button.

This package contains the shared libraries.")

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME libxmlhelper-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "${runtime_package} (= ${PROJECT_VERSION}), ${qt_packages}")
set(CPACK_COMPONENT_DEVELOPMENT_DESCRIPTION
"XML and measurement reports on Qt: development files
XMLHelper reads XML as a stream of events, writes XML files, fills documents
by an XSD schema, and writes measurement reports at the press of a button.

This package contains the headers, the CMake packages and the pkg-config file,
and the companion programs for the authors of schemas and reports.")

set(CPACK_DEBIAN_TOOLS_PACKAGE_NAME xmlhelper-tools)
set(CPACK_DEBIAN_TOOLS_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_TOOLS_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_TOOLS_PACKAGE_DEPENDS "${runtime_package} (= ${PROJECT_VERSION})")
set(CPACK_COMPONENT_TOOLS_DESCRIPTION
"XML and measurement reports on Qt: tools
The program xmlhelper-fill fills a report from the command line, under the
rules of an XSD schema. The program xmlhelper-journal looks into the journal of
reports. The program measurementpanel is a measurement screen with a report
button, on simulated values.")

# Where the libraries of one package lie while another is looked at for what it needs.
foreach(library IN ITEMS XMLHelper XMLHelperReports XMLHelperReportWidgets ${stand_ins})
    get_target_property(library_dir ${library} BINARY_DIR)
    list(APPEND CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS "${library_dir}")
endforeach()

include(CPack)
