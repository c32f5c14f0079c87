# A client finds the installed tree with find_package(), builds and runs.
include("${CMAKE_CURRENT_LIST_DIR}/packagetest.cmake")

configure_client(findpackage -D "XMLHelper_DIR=${PACKAGE_DIR}"
    -D "EXPECTED_VERSION=${VERSION}" -D "EXPECTED_MAJOR=${VERSION_MAJOR}")
build_and_run_client(
    "read: bands"
    "read: band"
    "written: Site"
    "reported: Frequency 98.5")
