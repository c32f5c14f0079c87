# Takes the search paths for libraries out of what cpack is about to pack: in a system's own folders the loader looks
# anyway, and Debian allows no other paths there.
if(NOT CPACK_GENERATOR STREQUAL "DEB")
    return()
endif()

file(GLOB_RECURSE files LIST_DIRECTORIES OFF "${CPACK_TEMPORARY_DIRECTORY}/*")
foreach(file IN LISTS files)
    if(IS_SYMLINK "${file}")
        continue()
    endif()
    file(READ "${file}" magic LIMIT 4 HEX)
    if(magic STREQUAL "7f454c46")
        file(RPATH_REMOVE FILE "${file}")
    endif()
endforeach()
