# A client asks for the component Reports, builds and runs.
include("${CMAKE_CURRENT_LIST_DIR}/packagetest.cmake")

configure_client(reports -D "XMLHelper_DIR=${PREFIX}/${LIBDIR}/cmake/XMLHelper")
build_and_run_client(
    "filled: no"
    "says: the schema cannot be read: there is no such file")
