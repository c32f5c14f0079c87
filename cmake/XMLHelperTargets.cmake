# What every target of this project is compiled with. Nothing here leaks to embedding projects:
# all of it is private to the target it is called for.
#
#   xmlhelper_target_defaults(<target>)   warnings, strict Qt, sanitizers, C++17

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
