# Fails when DOCUMENT does not explain a sentence that a source in LIBRARY_FOLDER traces or tells, or an error number, or
# explains one that is neither there nor in COMPANIONS_FOLDER.
file(READ "${DOCUMENT}" document)
string(REPLACE "\\|" "|" document "${document}")
file(READ "${LIBRARY_FOLDER}/ixmlhelper.h" header)
string(REGEX MATCHALL "[A-Z_]+[ \n]*= -?[0-9]+" told "${header}")
list(TRANSFORM told REPLACE "[ \n]*=.*" "")

set(sources "${header}")
file(GLOB files "${LIBRARY_FOLDER}/*.cpp")
foreach(file IN LISTS files)
    file(READ "${file}" source)
    string(REGEX REPLACE "[][;]" "_" source "${source}") # They mean something in lists.
    string(REPLACE "\\\"" "''" source "${source}")
    string(APPEND sources "${source}")
    # A sentence has a blank and ends like one. Only the reasons why a file is not written have no stop.
    string(REGEX MATCHALL "\"[^\"\n]* [^\"\n]*[.!]\"" sentences "${source}")
    string(REGEX MATCHALL "\"FileSaving\", \"[^\"\n]*\"" reasons "${source}")
    list(TRANSFORM reasons REPLACE "\"FileSaving\", " "")
    list(APPEND told ${sentences} ${reasons})
endforeach()

foreach(sentence IN LISTS told)
    string(REPLACE "\"" "" sentence "${sentence}")
    string(REPLACE "''" "\"" sentence "${sentence}")
    string(FIND "${document}" "${sentence}`" position)
    if(position EQUAL -1)
        message(SEND_ERROR "${DOCUMENT} does not explain: ${sentence}")
    endif()
endforeach()

file(GLOB files "${COMPANIONS_FOLDER}/*.cpp")
foreach(file IN LISTS files)
    file(READ "${file}" source)
    string(APPEND sources "${source}")
endforeach()

# What the first column of a table explains.
string(REGEX MATCHALL "\n\\| `[^`\n]*`" explained "${document}")
foreach(sentence IN LISTS explained)
    string(REGEX MATCH "`(.*)`" sentence "${sentence}")
    string(REPLACE "\"" "''" text "${CMAKE_MATCH_1}")
    string(FIND "${sources}" "${text}" position)
    if(position EQUAL -1)
        message(SEND_ERROR "${DOCUMENT} explains what the library does not say: ${sentence}")
    endif()
endforeach()

list(LENGTH told number)
list(LENGTH explained number_explained)
if(number LESS 40 OR number_explained LESS 40)
    message(FATAL_ERROR "Only ${number} sentences were found, and ${number_explained} explanations.")
endif()
message(STATUS "${number} sentences are told, and all of them are explained.")
