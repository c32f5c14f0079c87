# A client asks for the component ReportWidgets, builds and runs.
include("${CMAKE_CURRENT_LIST_DIR}/packagetest.cmake")

configure_client(reportwidgets -D "XMLHelper_DIR=${PREFIX}/${LIBDIR}/cmake/XMLHelper")
build_and_run_client(
    "shows: 0"
    "may quit: yes")
