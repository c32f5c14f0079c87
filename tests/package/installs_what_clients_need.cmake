# The installed tree holds the files of the checked-in list, the companion programs that are built, and nothing else.
# It is moved before anybody uses it.
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

# Wherever the tree is moved to, the companion programs find their translations.
if(APP_TRANSLATIONS AND "xmlhelper-report" IN_LIST APPS)
    file(COPY "${SOURCE_DIR}/apps/xmlhelper-report/tests/right.xml" "${SOURCE_DIR}/apps/xmlhelper-report/tests/level.xsd"
        DESTINATION "${WORK_DIR}")
    run(OUTPUT printed COMMAND "${PREFIX}/bin/xmlhelper-report" --language de right.xml)
    if(NOT printed MATCHES "gültig nach level\\.xsd")
        message(SEND_ERROR "The installed xmlhelper-report does not speak German: ${printed}")
    endif()
endif()
