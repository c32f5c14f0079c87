# Fails when DOCUMENT does not print each of SOURCES word for word.
file(READ "${DOCUMENT}" document)
foreach(source_file IN LISTS SOURCES)
    file(READ "${source_file}" source)
    string(FIND "${document}" "```cpp\n${source}```" position)
    if(position EQUAL -1)
        message(SEND_ERROR "${DOCUMENT} does not print ${source_file} as it is.")
    endif()
endforeach()
