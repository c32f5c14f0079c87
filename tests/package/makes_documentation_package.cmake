# scripts/make-docs makes the documentation, and cpack a package of it, without building anything: with the pages and
# with a file that Qt's help reads.
include("${CMAKE_CURRENT_LIST_DIR}/packagetest.cmake")

set(ENV{XMLHELPER_KEEP_PACKAGES} ON)    # a test installs nothing
run(COMMAND "${SOURCE_DIR}/scripts/make-docs" "${WORK_DIR}/docs")
run(COMMAND ${CMAKE_COMMAND} -S "${SOURCE_DIR}" -B build -G ${GENERATOR} -D "CMAKE_MAKE_PROGRAM=${MAKE_PROGRAM}"
    -D "CMAKE_CXX_COMPILER=${COMPILER}" -D "XMLHELPER_QT_MAJOR=${QT_MAJOR}" -D "XMLHELPER_DOCS=${WORK_DIR}/docs"
    -D XMLHELPER_BUILD_TESTS=OFF -D XMLHELPER_BUILD_EXAMPLES=OFF -D XMLHELPER_BUILD_APPS=OFF
    -D XMLHELPER_BUILD_BENCHMARKS=OFF -D CMAKE_SKIP_INSTALL_ALL_DEPENDENCY=ON)
run(COMMAND "${CPACK}" --config build/CPackConfig.cmake -B "${WORK_DIR}" -G DEB -D CPACK_COMPONENTS_ALL=doc)

set(package "${WORK_DIR}/xmlhelper-doc_${VERSION}_all.deb")
if(NOT EXISTS "${package}")
    message(FATAL_ERROR "cpack has made no package ${package}.")
endif()
run(COMMAND "${DPKG_DEB}" --extract "${package}" "${WORK_DIR}/tree")
set(folder "${WORK_DIR}/tree/usr/share/doc/xmlhelper-doc")
file(GLOB_RECURSE files RELATIVE "${folder}" "${folder}/*")
foreach(file IN ITEMS html/index.html html/classXMLReader.html html/site.css html/press.svg xmlhelper.qch changelog.gz)
    if(NOT file IN_LIST files)
        message(SEND_ERROR "The package has no ${file}.")
    endif()
endforeach()
file(GLOB_RECURSE elsewhere RELATIVE "${WORK_DIR}/tree" "${WORK_DIR}/tree/*")
list(FILTER elsewhere EXCLUDE REGEX "^usr/share/(doc|lintian/overrides)/")
if(elsewhere)
    message(SEND_ERROR "The package has files in other places: ${elsewhere}")
endif()
run(COMMAND "${SOURCE_DIR}/scripts/check-site" "${folder}/html")

# Qt's own program takes the file into a collection, as Qt Assistant does, and every class can be looked up in it.
file(WRITE "${WORK_DIR}/collection.qhcp" "<?xml version=\"1.0\" encoding=\"UTF-8\"?>
<QHelpCollectionProject version=\"1.0\"><docFiles><register>
<file>tree/usr/share/doc/xmlhelper-doc/xmlhelper.qch</file></register></docFiles></QHelpCollectionProject>\n")
run(COMMAND "${QCOLLECTIONGENERATOR}" collection.qhcp -o collection.qhc)
file(WRITE "${WORK_DIR}/lookup.py" "import sqlite3, sys
help = sqlite3.connect(sys.argv[1])
for name in sys.argv[2:]:
    pages = help.execute('SELECT f.Name FROM IndexTable i JOIN FileNameTable f USING (FileId) WHERE i.Name = ?', [name])
    print(' '.join(sorted({page for (page,) in pages})))
(namespace,) = sqlite3.connect('collection.qhc').execute('SELECT Name FROM NamespaceTable').fetchone()
print(namespace)\n")
run(OUTPUT found COMMAND "${PYTHON}" lookup.py "${folder}/xmlhelper.qch" XMLReader ReportFiller ReportPanel)
expect_output("${found}" "classXMLReader.html" "classReportFiller.html" "classReportPanel.html" "xmlhelper")
