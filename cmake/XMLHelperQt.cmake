# Finds Qt and gives its parts names that stay the same on Qt 5 and Qt 6.
#
#   xmlhelper_qt_core, xmlhelper_qt_gui, xmlhelper_qt_widgets, xmlhelper_qt_xml, xmlhelper_qt_test
#   xmlhelper_qt_sql, which is empty where Qt has no SQL module; the journal of reports is left out then
#
# The SAX classes live in QtXml on Qt 5 and in Core5Compat on Qt 6.

if(NOT XMLHELPER_QT_MAJOR MATCHES "^[56]$")
    message(FATAL_ERROR "XMLHELPER_QT_MAJOR is '${XMLHELPER_QT_MAJOR}'; it must be 5 or 6.")
endif()

set(_qt "Qt${XMLHELPER_QT_MAJOR}")
set(_qt_components Core Gui Widgets Xml)
if(XMLHELPER_QT_MAJOR EQUAL 6)
    list(APPEND _qt_components Core5Compat)
    set(_qt_minimum 6.2)
else()
    set(_qt_minimum 5.15)
endif()
if(XMLHELPER_BUILD_TESTS)
    list(APPEND _qt_components Test)
endif()
find_package(${_qt} ${_qt_minimum} REQUIRED COMPONENTS ${_qt_components})
find_package(${_qt}Sql ${_qt_minimum} QUIET PATHS "${${_qt}_DIR}/.." NO_DEFAULT_PATH) # optional, of the same Qt

set(xmlhelper_qt_core    ${_qt}::Core)
set(xmlhelper_qt_gui     ${_qt}::Gui)
set(xmlhelper_qt_widgets ${_qt}::Widgets)
set(xmlhelper_qt_xml     ${_qt}::Xml)
set(xmlhelper_qt_test    ${_qt}::Test)
if(XMLHELPER_QT_MAJOR EQUAL 6)
    list(APPEND xmlhelper_qt_xml ${_qt}::Core5Compat)
endif()
set(xmlhelper_qt_sql "")
if(TARGET ${_qt}::Sql)
    set(xmlhelper_qt_sql ${_qt}::Sql)
else()
    message(STATUS "The journal of reports is left out: it needs the SQL module of Qt.")
endif()

# What was built on Qt 6 has names of its own, so that both can be installed on one system and nobody links the wrong
# one: libXMLHelperQt6, xmlhelper-qt6. The names of targets and headers stay; docs/versions.md tells clients.
set(xmlhelper_name_suffix "")
set(xmlhelper_lower_suffix "")
if(XMLHELPER_QT_MAJOR EQUAL 6)
    set(xmlhelper_name_suffix "Qt6")
    set(xmlhelper_lower_suffix "-qt6")
endif()
include(GNUInstallDirs)
set(xmlhelper_install_includedir "${CMAKE_INSTALL_INCLUDEDIR}")
if(XMLHELPER_QT_MAJOR EQUAL 6)
    string(APPEND xmlhelper_install_includedir "/xmlhelper${xmlhelper_lower_suffix}")
endif()
