# The install rules: the libraries with their client headers, and what find_package() and pkg-config find them by.
# The components: runtime and development; platform and platform_development, the stand-ins for the suite's base
# libraries; tools, the companion programs; translations; and examples and doc, which are installed only by name:
#
#   cmake --install <build> --prefix <folder>
#   cmake --install <build> --prefix <folder> --component examples

include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

# Where the catalogues of the libraries and the programs lie; clients are told.
set(xmlhelper_translations_dir "${CMAKE_INSTALL_DATADIR}/xmlhelper/translations")

# Installs a library, its PUBLIC_HEADERs (absolute paths) below the name of its folder, and a CMake package of its name,
# which finds everything that the library links: a client's linker follows its shared libraries.
#
#   xmlhelper_install_library(<target> [NAMESPACE <namespace::>] RUNTIME <component> DEVELOPMENT <component>)
function(xmlhelper_install_library target)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "NAMESPACE;RUNTIME;DEVELOPMENT" "")
    get_target_property(source_dir ${target} SOURCE_DIR)
    get_filename_component(folder "${source_dir}" NAME)
    set(package "${target}${xmlhelper_name_suffix}")
    set(package_dir "${CMAKE_INSTALL_LIBDIR}/cmake/${package}")

    # A library finds its neighbours wherever the tree is moved to, and so does the linker of a client.
    if(UNIX AND NOT APPLE)
        set_target_properties(${target} PROPERTIES INSTALL_RPATH "$ORIGIN")
    endif()
    install(TARGETS ${target} EXPORT ${package}Targets
        RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}" COMPONENT ${arg_RUNTIME}
        LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}"
            COMPONENT ${arg_RUNTIME} NAMELINK_COMPONENT ${arg_DEVELOPMENT}
        ARCHIVE DESTINATION "${CMAKE_INSTALL_LIBDIR}" COMPONENT ${arg_DEVELOPMENT}
        PUBLIC_HEADER DESTINATION "${xmlhelper_install_includedir}/${folder}" COMPONENT ${arg_DEVELOPMENT})
    install(EXPORT ${package}Targets NAMESPACE "${arg_NAMESPACE}"
        DESTINATION "${package_dir}" COMPONENT ${arg_DEVELOPMENT})

    get_target_property(dependencies ${target} LINK_LIBRARIES)
    if(NOT dependencies)
        get_target_property(dependencies ${target} INTERFACE_LINK_LIBRARIES)
    endif()
    xmlhelper_install_package_files(${target} ${package})
    # The library is found by its own name too. The name of a folder must begin with it.
    if(target STREQUAL "XMLHelper" AND NOT package STREQUAL target)
        xmlhelper_install_package_files(${target} ${target})
    endif()
endfunction()

# Installs what find_package() reads when it looks for a name. Variables of xmlhelper_install_library() are used.
function(xmlhelper_install_package_files target name)
    set(required_qt "Qt${XMLHELPER_QT_MAJOR}")
    set(required_qt_components ${dependencies})
    list(FILTER required_qt_components INCLUDE REGEX "^${required_qt}::")
    list(TRANSFORM required_qt_components REPLACE "^${required_qt}::" "")
    set(required_libraries ${dependencies})
    list(FILTER required_libraries EXCLUDE REGEX "^${required_qt}::")
    list(JOIN required_qt_components " " required_qt_components)
    list(JOIN required_libraries " " required_libraries)
    # Qt promises that what was built with one minor version runs with the later ones.
    string(REGEX MATCH "^[0-9]+\\.[0-9]+" required_qt_version "${${required_qt}_VERSION}")

    math(EXPR other_qt "11 - ${XMLHELPER_QT_MAJOR}")
    set(translations "")
    if(target STREQUAL "XMLHelper")
        set(translations "set(${name}_TRANSLATIONS_DIR \"\${PACKAGE_PREFIX_DIR}/${xmlhelper_translations_dir}\")\n")
    endif()
    set(config "${PROJECT_BINARY_DIR}/package/${package}/${name}Config")
    configure_package_config_file("${PROJECT_SOURCE_DIR}/cmake/PackageConfig.cmake.in"
        "${config}.cmake" INSTALL_DESTINATION "${package_dir}")

    write_basic_package_version_file("${config}Version.cmake"
        VERSION ${PROJECT_VERSION} COMPATIBILITY SameMajorVersion)
    file(READ "${config}Version.cmake" version_check)
    configure_file("${PROJECT_SOURCE_DIR}/cmake/PackageQtCheck.cmake.in" "${config}Version.cmake" @ONLY)
    install(FILES "${config}.cmake" "${config}Version.cmake"
        DESTINATION "${package_dir}" COMPONENT ${arg_DEVELOPMENT})
endfunction()

# Installs the pkg-config file of a library, called like it in lower case. It requires those of the libraries that a
# client links as well.
#
#   xmlhelper_install_pkg_config_file(<target> DESCRIPTION <text> COMPONENT <component>)
function(xmlhelper_install_pkg_config_file target)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "DESCRIPTION;COMPONENT" "")
    get_target_property(requires ${target} INTERFACE_LINK_LIBRARIES)
    list(TRANSFORM requires TOLOWER REGEX "^[A-Za-z]+$")
    list(TRANSFORM requires APPEND "${xmlhelper_lower_suffix}" REGEX "^[a-z]+$")
    list(TRANSFORM requires REPLACE "::" "")
    list(JOIN requires " " requires)

    get_target_property(type ${target} TYPE)
    set(libraries "")
    if(NOT type STREQUAL INTERFACE_LIBRARY)
        set(libraries " -L\${libdir} -l${target}${xmlhelper_name_suffix}")
    endif()
    set(flags "-I\${includedir}")
    if(UNIX)
        string(APPEND flags " -fPIC")    # which the headers of Qt ask for
    endif()
    file(RELATIVE_PATH prefix "/${CMAKE_INSTALL_LIBDIR}/pkgconfig" "/")
    string(REGEX REPLACE "/$" "" prefix "${prefix}")
    set(variables "")
    if(target STREQUAL "XMLHelper")
        set(variables "translationsdir=\${prefix}/${xmlhelper_translations_dir}\n")
    endif()
    string(TOLOWER "${target}" name)
    set(file "${PROJECT_BINARY_DIR}/package/${name}${xmlhelper_lower_suffix}.pc")
    configure_file("${PROJECT_SOURCE_DIR}/cmake/library.pc.in" "${file}" @ONLY)
    install(FILES "${file}" DESTINATION "${CMAKE_INSTALL_LIBDIR}/pkgconfig" COMPONENT ${arg_COMPONENT})
endfunction()

# Installs what stands beside the sources of a program: its man page, man/<target>.1, and for one with windows its entry
# in menus and its description for software centres. What completes its options in a shell is the same for all.
#
#   xmlhelper_install_program_files(<target> <component> [EXCLUDE_FROM_ALL])
function(xmlhelper_install_program_files target component)
    get_target_property(source_dir ${target} SOURCE_DIR)
    install(FILES "${source_dir}/man/${target}.1"
        DESTINATION "${CMAKE_INSTALL_MANDIR}/man1" COMPONENT ${component} ${ARGN})
    if(NOT UNIX OR APPLE)
        return()
    endif()
    if(EXISTS "${source_dir}/${target}.desktop")
        install(FILES "${source_dir}/${target}.desktop"
            DESTINATION "${CMAKE_INSTALL_DATADIR}/applications" COMPONENT ${component} ${ARGN})
        install(FILES "${source_dir}/${target}.metainfo.xml"
            DESTINATION "${CMAKE_INSTALL_DATADIR}/metainfo" COMPONENT ${component} ${ARGN})
    endif()
    install(FILES "${PROJECT_SOURCE_DIR}/cmake/completion.bash" RENAME ${target}
        DESTINATION "${CMAKE_INSTALL_DATADIR}/bash-completion/completions" COMPONENT ${component} ${ARGN})
endfunction()

# Installs an example that looks for its FILES beside itself. Those have no place among the programs of a Unix system:
# there both stand in a folder of their own, and a link leads to the program. Its translations go where those of the
# libraries are.
#
#   xmlhelper_install_example(<target> FILES <file>...)
function(xmlhelper_install_example target)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "FILES")
    set(folder "${CMAKE_INSTALL_BINDIR}")
    if(UNIX)
        set(folder "${CMAKE_INSTALL_LIBEXECDIR}/xmlhelper")
        file(RELATIVE_PATH program "/${CMAKE_INSTALL_BINDIR}" "/${folder}/${target}")
        set(link "${PROJECT_BINARY_DIR}/package/links/${target}")
        file(MAKE_DIRECTORY "${PROJECT_BINARY_DIR}/package/links")
        file(CREATE_LINK "${program}" "${link}" SYMBOLIC)
        install(PROGRAMS "${link}" DESTINATION "${CMAKE_INSTALL_BINDIR}" COMPONENT examples EXCLUDE_FROM_ALL)
    endif()
    if(UNIX AND NOT APPLE)
        file(RELATIVE_PATH libraries "/${folder}" "/${CMAKE_INSTALL_LIBDIR}")
        set_target_properties(${target} PROPERTIES INSTALL_RPATH "$ORIGIN/${libraries}")
    endif()
    install(TARGETS ${target} RUNTIME DESTINATION "${folder}" COMPONENT examples EXCLUDE_FROM_ALL)
    install(FILES ${arg_FILES} DESTINATION "${folder}" COMPONENT examples EXCLUDE_FROM_ALL)
    get_target_property(catalogues ${target} XMLHELPER_CATALOGUES)
    if(catalogues)
        list(FILTER catalogues EXCLUDE REGEX "/XMLHelper[A-Za-z]*_[a-z]+\\.qm$")
        install(FILES ${catalogues} DESTINATION "${xmlhelper_translations_dir}" COMPONENT examples EXCLUDE_FROM_ALL)
    endif()
    xmlhelper_install_program_files(${target} examples EXCLUDE_FROM_ALL)
endfunction()

# Installs a companion program and its translations.
function(xmlhelper_install_app target)
    if(UNIX AND NOT APPLE)
        file(RELATIVE_PATH libraries "/${CMAKE_INSTALL_BINDIR}" "/${CMAKE_INSTALL_LIBDIR}")
        set_target_properties(${target} PROPERTIES INSTALL_RPATH "$ORIGIN/${libraries}")
    endif()
    install(TARGETS ${target} RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}" COMPONENT tools)
    xmlhelper_install_program_files(${target} tools)
    get_target_property(catalogues ${target} XMLHELPER_CATALOGUES)
    if(catalogues)
        install(FILES ${catalogues} DESTINATION "${xmlhelper_translations_dir}" COMPONENT translations)
    endif()
endfunction()

# The stand-ins that are in use, and one name for all of them; the embedding project installs the libraries that it
# brings itself.
get_property(stand_ins GLOBAL PROPERTY XMLHELPER_STAND_INS)
foreach(stand_in IN LISTS stand_ins)
    xmlhelper_install_library(${stand_in} RUNTIME platform DEVELOPMENT platform_development)
    xmlhelper_install_pkg_config_file(${stand_in}
        DESCRIPTION "Stand-in for a base library of the suite" COMPONENT platform_development)
endforeach()
if(stand_ins)
    xmlhelper_install_library(XMLHelperPlatform NAMESPACE XMLHelper::
        RUNTIME platform DEVELOPMENT platform_development)
    xmlhelper_install_pkg_config_file(XMLHelperPlatform
        DESCRIPTION "The base libraries of the suite" COMPONENT platform_development)
endif()
foreach(library IN ITEMS XMLHelper XMLHelperReports XMLHelperReportWidgets)
    xmlhelper_install_library(${library} NAMESPACE XMLHelper:: RUNTIME runtime DEVELOPMENT development)
endforeach()
xmlhelper_install_pkg_config_file(XMLHelper
    DESCRIPTION "${PROJECT_DESCRIPTION}" COMPONENT development)
xmlhelper_install_pkg_config_file(XMLHelperReports
    DESCRIPTION "Fills measurement reports, watches over them, remembers and shows them" COMPONENT development)
xmlhelper_install_pkg_config_file(XMLHelperReportWidgets
    DESCRIPTION "Shows operators what became of their measurement reports" COMPONENT development)

# What the libraries say, for applications to take with them.
if(TARGET xmlhelper_translations)
    get_target_property(catalogues xmlhelper_translations XMLHELPER_CATALOGUES)
    list(FILTER catalogues INCLUDE REGEX "/XMLHelper(ReportWidgets)?_[a-z]+\\.qm$")
    install(FILES ${catalogues} DESTINATION "${xmlhelper_translations_dir}" COMPONENT translations)
endif()

foreach(app IN ITEMS xmlhelper-fill xmlhelper-journal xmlhelper-report xmlhelper-schema)
    if(TARGET ${app})
        xmlhelper_install_app(${app})
    endif()
endforeach()
if(TARGET measurementpanel)
    get_target_property(panel_dir measurementpanel SOURCE_DIR)
    file(GLOB panel_schemas CONFIGURE_DEPENDS "${panel_dir}/*.xsd")
    xmlhelper_install_example(measurementpanel FILES ${panel_schemas})
endif()

# What scripts/make-docs has made, as a component of its own that is installed only by name.
set(has_docs OFF)
if(XMLHELPER_DOCS AND EXISTS "${XMLHELPER_DOCS}/html/index.html")
    set(has_docs ON)
    install(DIRECTORY "${XMLHELPER_DOCS}/html" DESTINATION "${CMAKE_INSTALL_DATADIR}/doc/xmlhelper-doc"
        COMPONENT doc EXCLUDE_FROM_ALL)
    install(FILES "${XMLHELPER_DOCS}/xmlhelper.qch" DESTINATION "${CMAKE_INSTALL_DATADIR}/doc/xmlhelper-doc"
        COMPONENT doc EXCLUDE_FROM_ALL)
endif()
