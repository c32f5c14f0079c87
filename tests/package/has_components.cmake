# A client asks for the components, gets all that they stand on, builds and runs. It is told where the catalogues are,
# and a part of it that uses the other Qt does not get a library on this one.
include("${CMAKE_CURRENT_LIST_DIR}/packagetest.cmake")

list(JOIN LIBRARY_CATALOGUES "," catalogues)
configure_client(components -D "XMLHelper_DIR=${PACKAGE_DIR}"
    -D "CATALOGUES=${catalogues}")
build_and_run_client(
    "level: 17.5"
    "filled: no"
    "says: the schema cannot be read: there is no such file"
    "shows: 0"
    "may quit: yes")
