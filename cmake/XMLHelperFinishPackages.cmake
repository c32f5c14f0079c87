# Gives what cpack is about to pack the form that Debian wants. Each package has a folder here, called after its
# component.
if(NOT CPACK_GENERATOR STREQUAL "DEB")
    return()
endif()

# Compresses a file, without its date.
function(compress file)
    execute_process(COMMAND gzip -9 -n -f "${file}" COMMAND_ERROR_IS_FATAL ANY)
endfunction()

# In a system's own folders the loader looks anyway, and Debian allows no other search paths there.
function(drop_search_path file)
    file(READ "${file}" magic LIMIT 4 HEX)
    if(magic STREQUAL "7f454c46")
        file(RPATH_REMOVE FILE "${file}")
    endif()
endfunction()

# What every package has: a changelog and, as soon as the owner has given one, a licence; and why lintian is not heeded.
function(add_documents folder package)
    set(documents "${folder}/usr/share/doc/${package}")
    string(TIMESTAMP date "%a, %d %b %Y %H:%M:%S +0000" UTC)
    file(WRITE "${documents}/changelog"
        "${CPACK_PACKAGE_NAME} (${CPACK_PACKAGE_VERSION}) unstable; urgency=medium\n\n"
        "  * What has changed is told by the project's CHANGELOG.md.\n\n"
        " -- ${CPACK_PACKAGE_CONTACT}  ${date}\n")
    compress("${documents}/changelog")
    if(CPACK_XMLHELPER_COPYRIGHT_FILE)
        configure_file("${CPACK_XMLHELPER_COPYRIGHT_FILE}" "${documents}/copyright" COPYONLY)
    endif()
    string(REPLACE "-qt6" "" overrides "${package}")
    string(REGEX REPLACE "-?[0-9]+$" "" overrides "${overrides}")
    set(overrides "${CMAKE_CURRENT_LIST_DIR}/lintian/${overrides}")
    if(EXISTS "${overrides}")
        configure_file("${overrides}" "${folder}/usr/share/lintian/overrides/${package}" COPYONLY)
    endif()
    # Whatever the rights are that the builder's files get.
    foreach(made IN ITEMS doc lintian)
        if(EXISTS "${folder}/usr/share/${made}")
            file(CHMOD_RECURSE "${folder}/usr/share/${made}"
                FILE_PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ
                DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE
                    WORLD_READ WORLD_EXECUTE)
        endif()
    endforeach()
endfunction()

file(GLOB folders "${CPACK_TEMPORARY_DIRECTORY}/*")
foreach(folder IN LISTS folders)
    file(GLOB_RECURSE files LIST_DIRECTORIES OFF "${folder}/*")
    foreach(file IN LISTS files)
        if(IS_SYMLINK "${file}")
            continue()
        endif()
        drop_search_path("${file}")
        if(file MATCHES "/man/man[0-9]/[^/]+\\.[0-9]$")
            compress("${file}")
        endif()
    endforeach()
    get_filename_component(component "${folder}" NAME)
    string(TOUPPER "${component}" component)
    if(CPACK_DEBIAN_${component}_PACKAGE_NAME)
        add_documents("${folder}" "${CPACK_DEBIAN_${component}_PACKAGE_NAME}")
    endif()
endforeach()
