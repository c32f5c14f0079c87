# A client asks for the components, gets all that they stand on, builds and runs.
include("${CMAKE_CURRENT_LIST_DIR}/packagetest.cmake")

configure_client(components -D "XMLHelper_DIR=${PREFIX}/${LIBDIR}/cmake/XMLHelper")
build_and_run_client(
    "level: 17.5"
    "filled: no"
    "says: the schema cannot be read: there is no such file"
    "shows: 0"
    "may quit: yes")
