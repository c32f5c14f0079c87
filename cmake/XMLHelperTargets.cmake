# What every target of this project is compiled with. It is private to the target that it is called for, but for C++17
# and what the sanitizers link.
#
#   xmlhelper_target_defaults(<target>)   warnings, strict Qt, sanitizers, C++17
#   xmlhelper_target_exports(<target> <map>)   what a shared library exports, under a version
#   xmlhelper_lay_translations_beside(<program> <catalogue>...)   into the folder translations beside it

function(xmlhelper_target_defaults target)
    target_compile_features(${target} PUBLIC cxx_std_17)
    set_target_properties(${target} PROPERTIES CXX_EXTENSIONS OFF)
    target_compile_definitions(${target} PRIVATE
        QT_NO_CAST_FROM_ASCII
        QT_NO_CAST_TO_ASCII
        QT_NO_CAST_FROM_BYTEARRAY
        QT_NO_URL_CAST_FROM_STRING
        QT_NO_KEYWORDS)

    if(MSVC)
        # 4251 and 4275 say that exported classes hold and inherit classes of others: all modules of one process are
        # built by one compiler anyway.
        target_compile_options(${target} PRIVATE
            /W4 /wd4251 /wd4275 /utf-8 /permissive- /Zc:__cplusplus
            $<$<BOOL:${XMLHELPER_WERROR}>:/WX>)
    else()
        target_compile_options(${target} PRIVATE
            -Wall -Wextra -Wpedantic -Wconversion -Wshadow
            $<$<BOOL:${XMLHELPER_WERROR}>:-Werror>)
    endif()

    if(XMLHELPER_SANITIZE)
        list(JOIN XMLHELPER_SANITIZE "," sanitizers)
        target_compile_options(${target} PRIVATE
            -fsanitize=${sanitizers} -fno-sanitize-recover=all -fno-omit-frame-pointer)
        target_link_options(${target} PUBLIC -fsanitize=${sanitizers})
    endif()
endfunction()

# The version of every symbol that the libraries export. The soname's number and Qt stand in it: the loader does not
# start a client with a library on the other Qt, and says which version it misses.
set(xmlhelper_version_node "XMLHELPER_${PROJECT_VERSION_MAJOR}")
set(xmlhelper_version_node_of_other_qt "XMLHELPER_QT6_${PROJECT_VERSION_MAJOR}")
if(XMLHELPER_QT_MAJOR EQUAL 6)
    set(xmlhelper_version_node "XMLHELPER_QT6_${PROJECT_VERSION_MAJOR}")
    set(xmlhelper_version_node_of_other_qt "XMLHELPER_${PROJECT_VERSION_MAJOR}")
endif()

# Only debug information with types tells the binary interface. scripts/check-abi compares that of builds on Qt 5.
set(XMLHELPER_TELLS_TYPES OFF)
if(XMLHELPER_BUILD_TESTS AND CMAKE_BUILD_TYPE STREQUAL "Debug" AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU"
        AND CMAKE_SYSTEM_NAME STREQUAL "Linux" AND CMAKE_SYSTEM_PROCESSOR STREQUAL "x86_64"
        AND XMLHELPER_QT_MAJOR EQUAL 5 AND NOT XMLHELPER_SANITIZE)
    set(XMLHELPER_TELLS_TYPES ON)
endif()

# Lets a shared library export what its version script <map>.in names, which stands beside its CMake list.
function(xmlhelper_target_exports target map)
    # The formats of Windows and macOS know no version scripts, even where their linker accepts the option.
    if(NOT UNIX OR APPLE)
        return()
    endif()
    set(version_node "${xmlhelper_version_node}")
    set(version_script "${CMAKE_CURRENT_BINARY_DIR}/${map}")
    configure_file("${map}.in" "${version_script}" @ONLY)

    include(CheckLinkerFlag)
    check_linker_flag(CXX "LINKER:--version-script=${version_script}" XMLHELPER_HAS_VERSION_SCRIPT)
    if(XMLHELPER_HAS_VERSION_SCRIPT)
        target_link_options(${target} PRIVATE "LINKER:--version-script=${version_script}")
        set_property(TARGET ${target} APPEND PROPERTY LINK_DEPENDS "${version_script}")
    endif()
    if(XMLHELPER_TELLS_TYPES)
        target_compile_options(${target} PRIVATE -g2)
    endif()
endfunction()

# The catalogues in all languages, when they are made. The program's property XMLHELPER_CATALOGUES tells what to
# install.
function(xmlhelper_lay_translations_beside program)
    if(NOT TARGET xmlhelper_translations)
        return()
    endif()
    get_target_property(catalogues xmlhelper_translations XMLHELPER_CATALOGUES)
    list(JOIN ARGN "|" wanted)
    list(FILTER catalogues INCLUDE REGEX "/(${wanted})_[a-z]+\\.qm$")
    set(folder "$<TARGET_FILE_DIR:${program}>/translations")
    add_dependencies(${program} xmlhelper_translations)
    set_property(TARGET ${program} APPEND PROPERTY LINK_DEPENDS "${catalogues}")
    set_property(TARGET ${program} PROPERTY XMLHELPER_CATALOGUES "${catalogues}")
    add_custom_command(TARGET ${program} POST_BUILD
        COMMAND ${CMAKE_COMMAND} -E make_directory "${folder}"
        COMMAND ${CMAKE_COMMAND} -E copy_if_different ${catalogues} "${folder}")
endfunction()
