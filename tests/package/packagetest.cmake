# What the cases have in common: SETTINGS of the build, CONFIG and NAME of the case come from CTest.
cmake_minimum_required(VERSION 3.22)
include("${SETTINGS}")
include("${CMAKE_CURRENT_LIST_DIR}/../support/comparelists.cmake")

set(WORK_DIR "${CASES_BUILD_DIR}/${NAME}")
file(REMOVE_RECURSE "${WORK_DIR}")
file(MAKE_DIRECTORY "${WORK_DIR}")
set(ENV{LC_ALL} C.UTF-8)    # what compilers say is looked at

# Runs a command in the folder of the case; its failure is the case's, with all that it has said.
#   run([OUTPUT <variable>] COMMAND <command>...)
function(run)
    cmake_parse_arguments(PARSE_ARGV 0 arg "" "OUTPUT" "COMMAND")
    execute_process(COMMAND ${arg_COMMAND} WORKING_DIRECTORY "${WORK_DIR}"
        RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE error)
    if(NOT result EQUAL 0)
        list(JOIN arg_COMMAND " " command)
        string(REPLACE "\n" "\n  " said "\n${output}${error}")    # CMake leaves indented lines alone
        message(FATAL_ERROR "This failed (${result}):\n  ${command}${said}")
    endif()
    if(arg_OUTPUT)
        set(${arg_OUTPUT} "${output}" PARENT_SCOPE)
    endif()
endfunction()

# Configures a client's project into the folder "build" of the case, with the compiler of this build.
#   configure_client(<folder below clients> <argument>...)
function(configure_client client)
    set(system "")
    if(TOOLCHAIN_FILE)
        list(APPEND system -D "CMAKE_TOOLCHAIN_FILE=${TOOLCHAIN_FILE}"
            -D "CMAKE_PREFIX_PATH=${PREFIX}\\;${PREFIX_PATH}")
    endif()
    if(IS_WINDOWS)
        list(APPEND system -D "CMAKE_RUNTIME_OUTPUT_DIRECTORY=${WORK_DIR}/build")
    endif()
    run(COMMAND ${CMAKE_COMMAND} -S "${CASES_DIR}/clients/${client}" -B build -G ${GENERATOR}
        -D "CMAKE_MAKE_PROGRAM=${MAKE_PROGRAM}" -D "CMAKE_BUILD_TYPE=${CONFIG}" -D "CMAKE_CXX_COMPILER=${COMPILER}"
        -D "CMAKE_CXX_FLAGS=${FLAGS}" -D "XMLHELPER_QT_MAJOR=${QT_MAJOR}" ${system} ${ARGN})
endfunction()

# Windows looks for DLLs beside a program, Qt for its plugins: what the client's build has not put there itself is taken
# from the installed tree and from what the tests of this build run with.
function(lay_dlls_beside_client)
    file(GLOB dlls "${PREFIX}/bin/*.dll" "${PROGRAMS_DIR}/*.dll")
    foreach(dll IN LISTS dlls)
        get_filename_component(name "${dll}" NAME)
        if(NOT EXISTS "${WORK_DIR}/build/${name}")
            file(COPY "${dll}" DESTINATION "${WORK_DIR}/build")
        endif()
    endforeach()
    file(COPY "${PROGRAMS_DIR}/platforms" DESTINATION "${WORK_DIR}/build")
endfunction()

# Builds the client that was configured, runs it and compares what it prints.
#   build_and_run_client(<expected line>...)
function(build_and_run_client)
    run(COMMAND ${CMAKE_COMMAND} --build build --config "${CONFIG}" --target client --parallel 2)
    find_program(client NAMES client client.exe PATHS "${WORK_DIR}/build" PATH_SUFFIXES "${CONFIG}"
        NO_DEFAULT_PATH NO_CACHE REQUIRED)
    if(IS_WINDOWS)
        lay_dlls_beside_client()
    endif()
    run(OUTPUT printed COMMAND ${EMULATOR} "${client}")
    string(REPLACE "\r" "" printed "${printed}")
    expect_output("${printed}" ${ARGN})
endfunction()

#   expect_output(<text> <expected line>...)
function(expect_output text)
    list(JOIN ARGN "\n" expected)
    string(STRIP "${text}" text)
    if(NOT text STREQUAL expected)
        string(REPLACE "\n" "\n  " text "${text}")
        string(REPLACE "\n" "\n  " expected "${expected}")
        message(FATAL_ERROR "The client printed:\n  ${text}\nExpected was:\n  ${expected}")
    endif()
endfunction()

# The files below a folder, links included, with placeholders for what differs between builds.
function(list_files variable folder)
    file(GLOB_RECURSE files LIST_DIRECTORIES OFF RELATIVE "${folder}" "${folder}/*")
    string(TOLOWER "${CONFIG}" config)
    if(NOT config)
        set(config noconfig)
    endif()
    list(TRANSFORM files REPLACE "^((usr/)?)${LIBDIR}/" "\\1<libdir>/")
    list(TRANSFORM files REPLACE "Targets-${config}\\.cmake$" "Targets-<config>.cmake")
    list(TRANSFORM files REPLACE "\\.so\\.${VERSION}$" ".so.<version>")
    list(TRANSFORM files REPLACE "\\.so\\.${VERSION_MAJOR}$" ".so.<major>")
    if(QT_MAJOR EQUAL 6)
        take_names_of_qt6(files)
    endif()
    set(${variable} "${files}" PARENT_SCOPE)
endfunction()

# Gives the files of a library the names that they have on Qt 5. All must have others on Qt 6, so that both can lie side
# by side; one that has not is marked.
function(take_names_of_qt6 variable)
    set(renamed "")
    foreach(file IN LISTS ${variable})
        if(file MATCHES "cmake/XMLHelperQt6/XMLHelperConfig")    # the library is found by both names
            continue()
        endif()
        string(REGEX REPLACE "include/xmlhelper-qt6/" "include/" name "${file}")
        string(REGEX REPLACE "cmake/([A-Za-z]+)Qt6/([A-Za-z]+)Qt6" "cmake/\\1/\\2" name "${name}")
        string(REGEX REPLACE "([A-Za-z]+)Qt6(\\.so|\\.dll)" "\\1\\2" name "${name}")
        string(REPLACE "-qt6.pc" ".pc" name "${name}")
        if(name STREQUAL file AND file MATCHES "^(usr/)?(include|<libdir>)/|\\.dll$")
            string(APPEND name " (has the name of Qt 5)")
        endif()
        list(APPEND renamed "${name}")
    endforeach()
    set(${variable} "${renamed}" PARENT_SCOPE)
endfunction()

# Checks that a list of installed files has the companion programs that are built, with their man pages, what completes
# their options, entries in menus and translations, and takes them out of it.
#   take_apps(<variable>)
function(take_apps variable)
    set(expected ${APP_TRANSLATIONS})
    list(TRANSFORM expected PREPEND "share/xmlhelper/translations/")
    foreach(app IN LISTS APPS)
        if(IS_WINDOWS)
            list(APPEND expected "bin/${app}.exe" "share/man/man1/${app}.1")
            continue()
        endif()
        list(APPEND expected "bin/${app}" "share/man/man1/${app}.1" "share/bash-completion/completions/${app}")
        if(app STREQUAL "xmlhelper-schema")
            list(APPEND expected "share/applications/${app}.desktop" "share/metainfo/${app}.metainfo.xml")
        endif()
    endforeach()
    foreach(file IN LISTS expected)
        if(NOT file IN_LIST ${variable})
            message(SEND_ERROR "${file} is missing.")
        endif()
        list(REMOVE_ITEM ${variable} "${file}")
    endforeach()
    set(${variable} "${${variable}}" PARENT_SCOPE)
endfunction()
