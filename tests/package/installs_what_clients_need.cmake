# The installed tree holds the files of the checked-in list, the companion programs that are built, and nothing else. It is moved before anybody uses it.
include("${CMAKE_CURRENT_LIST_DIR}/packagetest.cmake")

run(COMMAND ${CMAKE_COMMAND} --install "${BUILD_DIR}" --config "${CONFIG}" --prefix "${WORK_DIR}/tree")
list_files(installed "${WORK_DIR}/tree")
take_apps(installed)
set(expected installed-files.txt)
if(IS_WINDOWS)
    set(expected installed-files-windows.txt)
endif()
compare_lists("The installed files" "${CASES_DIR}/${expected}" LINES ${installed})

file(REMOVE_RECURSE "${PREFIX}")
file(RENAME "${WORK_DIR}/tree" "${PREFIX}")
