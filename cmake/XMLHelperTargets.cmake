# What every target of this project is compiled with. Nothing here leaks to embedding projects:
# all of it is private to the target it is called for.
#
#   xmlhelper_target_defaults(<target>)   warnings, strict Qt, sanitizers, C++17
#   xmlhelper_lay_translations_beside(<program> <catalogue>...)   into a folder of that name

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

# The catalogues in all languages, when they are made. The program's property XMLHELPER_CATALOGUES tells what to install.
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
