# The packages that cpack makes, on Debian one for each component:
#
#   libxmlhelper1          runtime: the libraries
#   libxmlhelper-dev       development: headers, CMake packages, pkg-config
#   xmlhelper-platform     platform: the stand-ins for the suite's base libraries
#   xmlhelper-platform-dev platform_development: their headers, CMake packages and pkg-config files
#   xmlhelper-tools        tools: the companion programs
#   xmlhelper-l10n         translations: what libraries and programs say in other languages
#   xmlhelper-examples     examples: the example application
#   xmlhelper-doc          doc: the documentation, where XMLHELPER_DOCS names the folder in which it was made
#
# Those of a build on Qt 6 have -qt6 in their names, but for the last four, which serve both.
#
# The suite's own base libraries take the place of the stand-ins in a package that provides xmlhelper-platform-abi1, and
# conflicts with it, as one package at a time may have files of these names; see docs/platform.md.
#
# The preset "packages" configures with -DCMAKE_INSTALL_PREFIX=/usr to have the libraries where Debian keeps its own, in
# the folder of the machine's architecture. With another prefix they go into /usr/lib itself, where the loader finds
# them, too.

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
if(stand_ins)
    list(APPEND CPACK_COMPONENTS_ALL platform platform_development)
endif()
if(TARGET xmlhelper-fill)
    list(APPEND CPACK_COMPONENTS_ALL tools)
endif()
if(TARGET xmlhelper_translations)
    list(APPEND CPACK_COMPONENTS_ALL translations)
endif()
if(TARGET measurementpanel)
    list(APPEND CPACK_COMPONENTS_ALL examples)
endif()
if(has_docs)
    list(APPEND CPACK_COMPONENTS_ALL doc)
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

# Under which licence the packages are given away is the owner's to say.
set(XMLHELPER_COPYRIGHT_FILE "" CACHE FILEPATH "The file copyright of the Debian packages; empty: they have none yet")
set(CPACK_XMLHELPER_COPYRIGHT_FILE "${XMLHELPER_COPYRIGHT_FILE}")

set(CPACK_ARCHIVE_COMPONENT_INSTALL ON)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_PACKAGE_SOURCE xmlhelper)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_PRE_BUILD_SCRIPTS "${PROJECT_SOURCE_DIR}/cmake/XMLHelperFinishPackages.cmake")

if(XMLHELPER_QT_MAJOR EQUAL 6)
    set(runtime_package "libxmlhelper-qt6-${PROJECT_VERSION_MAJOR}")    # a name that ends in a digit gets a dash
    set(qt_packages "qt6-base-dev, qt6-5compat-dev")
    set(qt_sql_drivers libqt6sql6)
else()
    set(runtime_package "libxmlhelper${PROJECT_VERSION_MAJOR}")
    set(qt_packages "qtbase5-dev")
    set(qt_sql_drivers libqt5sql5)
endif()

# The stand-ins by default, or what provides the same. The number is that of their sonames.
set(platform_package "xmlhelper-platform${xmlhelper_lower_suffix}")
set(platform_abi "${platform_package}-abi${PROJECT_VERSION_MAJOR}")
set(platform_or_other "${platform_package} | ${platform_abi}")

# What a package of libraries tells those that are linked with them: on what to depend. The loader's cache is dpkg's own
# affair.
#   xmlhelper_package_libraries(<component> DEPENDENCY <dependency> LIBRARIES <target>...)
function(xmlhelper_package_libraries component)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "DEPENDENCY" "LIBRARIES")
    set(folder "${PROJECT_BINARY_DIR}/package/${component}")
    set(shlibs "")
    foreach(library IN LISTS arg_LIBRARIES)
        string(APPEND shlibs "lib${library}${xmlhelper_name_suffix} ${PROJECT_VERSION_MAJOR} ${arg_DEPENDENCY}\n")
    endforeach()
    file(WRITE "${folder}/shlibs" "${shlibs}")
    file(WRITE "${folder}/triggers" "activate-noawait ldconfig\n")
    string(TOUPPER "${component}" component)
    # cpack adds scripts that call ldconfig unless there are others; to name them is enough.
    set(CPACK_DEBIAN_${component}_PACKAGE_CONTROL_EXTRA
        "${folder}/shlibs" "${folder}/triggers" "${folder}/postinst" "${folder}/postrm" PARENT_SCOPE)
endfunction()

set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME ${runtime_package})
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_DEPENDS "${platform_or_other}")
xmlhelper_package_libraries(runtime DEPENDENCY "${runtime_package} (>= ${PROJECT_VERSION})"
    LIBRARIES XMLHelper XMLHelperReports XMLHelperReportWidgets)
if(xmlhelper_qt_sql) # A driver is loaded while it runs.
    set(CPACK_DEBIAN_RUNTIME_PACKAGE_RECOMMENDS "${qt_sql_drivers}-sqlite")
    set(CPACK_DEBIAN_RUNTIME_PACKAGE_SUGGESTS "${qt_sql_drivers}-psql")
endif()
set(CPACK_COMPONENT_RUNTIME_DESCRIPTION
"XML and measurement reports on Qt: library
XMLHelper reads XML as a stream of events, writes XML files, fills documents
by an XSD schema, and writes measurement reports at the press of a button.

This package contains the shared libraries.")

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME "libxmlhelper${xmlhelper_lower_suffix}-dev")
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_RECOMMENDS xmlhelper-l10n)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS
    "${runtime_package} (= ${PROJECT_VERSION}), ${platform_package}-dev | ${platform_abi}-dev, ${qt_packages}")
set(CPACK_COMPONENT_DEVELOPMENT_DESCRIPTION
"XML and measurement reports on Qt: development files
XMLHelper reads XML as a stream of events, writes XML files, fills documents
by an XSD schema, and writes measurement reports at the press of a button.

This package contains the headers, the CMake packages and the pkg-config
files.")

set(platform_description
"The library and its programs stand on five base libraries: traces and clock,
the value tree, the tool button, and the registry of translations. A suite of
applications brings its own; these stand in for them, small but real.")

set(CPACK_DEBIAN_PLATFORM_PACKAGE_NAME ${platform_package})
set(CPACK_DEBIAN_PLATFORM_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_PLATFORM_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PLATFORM_PACKAGE_PROVIDES ${platform_abi})
set(CPACK_DEBIAN_PLATFORM_PACKAGE_CONFLICTS ${platform_abi})
set(CPACK_DEBIAN_PLATFORM_PACKAGE_REPLACES ${platform_abi})
xmlhelper_package_libraries(platform DEPENDENCY "${platform_or_other}" LIBRARIES ${stand_ins})
set(CPACK_COMPONENT_PLATFORM_DESCRIPTION
"XML and measurement reports on Qt: base libraries
${platform_description}")

set(CPACK_DEBIAN_PLATFORM_DEVELOPMENT_PACKAGE_NAME ${platform_package}-dev)
set(CPACK_DEBIAN_PLATFORM_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_PLATFORM_DEVELOPMENT_PACKAGE_DEPENDS
    "${platform_package} (= ${PROJECT_VERSION}), ${qt_packages}")
set(CPACK_DEBIAN_PLATFORM_DEVELOPMENT_PACKAGE_PROVIDES ${platform_abi}-dev)
set(CPACK_DEBIAN_PLATFORM_DEVELOPMENT_PACKAGE_CONFLICTS ${platform_abi}-dev)
set(CPACK_DEBIAN_PLATFORM_DEVELOPMENT_PACKAGE_REPLACES ${platform_abi}-dev)
set(CPACK_COMPONENT_PLATFORM_DEVELOPMENT_DESCRIPTION
"XML and measurement reports on Qt: development files of the base libraries
${platform_description}

This package contains the headers, the CMake packages and the pkg-config
files.")

set(CPACK_DEBIAN_TOOLS_PACKAGE_NAME xmlhelper-tools)
set(CPACK_DEBIAN_TOOLS_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_TOOLS_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_TOOLS_PACKAGE_DEPENDS "${runtime_package} (= ${PROJECT_VERSION}), ${platform_or_other}")
set(CPACK_DEBIAN_TOOLS_PACKAGE_RECOMMENDS xmlhelper-l10n)
set(CPACK_COMPONENT_TOOLS_DESCRIPTION
"XML and measurement reports on Qt: programs for reports and schemas
The program xmlhelper-schema shows how a schema is understood and mends it,
xmlhelper-report says what a finished report lacks, xmlhelper-fill fills one
from the command line, and xmlhelper-journal looks into the journal of reports.")

set(CPACK_DEBIAN_TRANSLATIONS_PACKAGE_NAME xmlhelper-l10n)
set(CPACK_DEBIAN_TRANSLATIONS_PACKAGE_SECTION localization)
set(CPACK_DEBIAN_TRANSLATIONS_PACKAGE_ARCHITECTURE all)
set(CPACK_COMPONENT_TRANSLATIONS_DESCRIPTION
"XML and measurement reports on Qt: translations
XMLHelper reads XML as a stream of events, writes XML files, fills documents
by an XSD schema, and writes measurement reports at the press of a button.

This package contains the German and French texts of libraries and programs.")

set(CPACK_DEBIAN_EXAMPLES_PACKAGE_NAME xmlhelper-examples)
set(CPACK_DEBIAN_EXAMPLES_PACKAGE_SECTION misc)
set(CPACK_DEBIAN_EXAMPLES_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_EXAMPLES_PACKAGE_DEPENDS "${runtime_package} (= ${PROJECT_VERSION}), ${platform_or_other}")
set(CPACK_DEBIAN_EXAMPLES_PACKAGE_RECOMMENDS xmlhelper-l10n)
set(CPACK_COMPONENT_EXAMPLES_DESCRIPTION
"XML and measurement reports on Qt: example application
The program measurementpanel is a measurement screen with a report button, on
simulated values.")

set(CPACK_DEBIAN_DOC_PACKAGE_NAME xmlhelper-doc)
set(CPACK_DEBIAN_DOC_PACKAGE_SECTION doc)
set(CPACK_DEBIAN_DOC_PACKAGE_ARCHITECTURE all)
set(CPACK_DEBIAN_DOC_PACKAGE_SUGGESTS qt5-assistant)
set(CPACK_COMPONENT_DOC_DESCRIPTION
"XML and measurement reports on Qt: documentation
XMLHelper reads XML as a stream of events, writes XML files, fills documents
by an XSD schema, and writes measurement reports at the press of a button.

This package contains the pages on tasks and classes for a browser, and the
same as a file for Qt Assistant.")

# Where the libraries of one package lie while another is looked at for what it needs.
foreach(library IN ITEMS XMLHelper XMLHelperReports XMLHelperReportWidgets ${stand_ins})
    get_target_property(library_dir ${library} BINARY_DIR)
    list(APPEND CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS "${library_dir}")
endforeach()

include(CPack)
