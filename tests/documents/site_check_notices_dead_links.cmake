# scripts/check-site passes a site whose links all lead somewhere, and names each one that does not, and each picture
# without words.
cmake_minimum_required(VERSION 3.22)

# Writes a site of two pages, the first with the given body, and checks it.
function(check body result_variable said_variable)
    file(REMOVE_RECURSE "${WORK_DIR}")
    file(WRITE "${WORK_DIR}/index.html" "<html><body>${body}</body></html>")
    file(WRITE "${WORK_DIR}/other page.html" "<html><body><h1 id=\"place\">Other</h1></body></html>")
    file(WRITE "${WORK_DIR}/picture.png" "")
    execute_process(COMMAND "${PYTHON}" "${CHECK}" "${WORK_DIR}"
        RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE error)
    set(${result_variable} "${result}" PARENT_SCOPE)
    set(${said_variable} "${output}${error}" PARENT_SCOPE)
endfunction()

set(good "<a name=\"here\"></a><a href=\"#here\">1</a><a href=\"other%20page.html#place\">2</a>\
<img src=\"picture.png\" alt=\"A picture\"/><a href=\"https://www.w3.org/XML/#none\">3</a>")
check("${good}" result said)
if(NOT result EQUAL 0 OR NOT said MATCHES "4 links of 2 pages")
    message(SEND_ERROR "A site without fault is refused (${result}): ${said}")
endif()

foreach(dead IN ITEMS "a href=\"nowhere.html\"" "a href=\"other%20page.html#nowhere\"" "a href=\"#nowhere\""
        "img src=\"nowhere.png\" alt=\"A picture\"" "object data=\"nowhere.svg\"" "script src=\"nowhere.js\"")
    check("${good}<${dead}>" result said)
    if(result EQUAL 0 OR NOT said MATCHES "index\\.html leads to [^\n]*nowhere")
        message(SEND_ERROR "A dead link, ${dead}, was not noticed (${result}): ${said}")
    endif()
endforeach()

check("${good}<img src=\"picture.png\" alt=\"\"/>" result said)
if(result EQUAL 0 OR NOT said MATCHES "index\\.html shows picture\\.png without words")
    message(SEND_ERROR "A picture without words was not noticed (${result}): ${said}")
endif()

check("no link at all" result said)
if(result EQUAL 0)
    message(SEND_ERROR "A site without links passed: ${said}")
endif()
file(REMOVE_RECURSE "${WORK_DIR}")
