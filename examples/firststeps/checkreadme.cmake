# Fails when DOCUMENT does not print SOURCE word for word.
file(READ "${SOURCE}" source)
file(READ "${DOCUMENT}" document)
string(FIND "${document}" "```cpp\n${source}```" position)
if(position EQUAL -1)
    message(FATAL_ERROR "${DOCUMENT} does not print ${SOURCE} as it is.")
endif()
