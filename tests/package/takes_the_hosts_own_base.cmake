# A host that has defined its own base library finds the installed tree without the stand-in for it: the package does
# not look for one, and the traces of the library arrive at the host.
include("${CMAKE_CURRENT_LIST_DIR}/packagetest.cmake")

configure_client(findpackage -D "XMLHelper_DIR=${PACKAGE_DIR}"
    -D "EXPECTED_VERSION=${VERSION}" -D "EXPECTED_MAJOR=${VERSION_MAJOR}" -D HOST_HAS_ARBASE=ON)
build_and_run_client(
    "host trace: the client's own"
    "host trace: XMLReader: pCallback is NULL!"
    "read: bands"
    "read: band"
    "written: Site"
    "host trace: VCReporting::AddReportData(Frequency, , 98.5, , 0, )"
    "reported: Frequency 98.5")
