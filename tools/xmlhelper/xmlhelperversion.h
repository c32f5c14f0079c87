#ifndef XMLHELPER_XMLHELPERVERSION_H
#define XMLHELPER_XMLHELPERVERSION_H

/// The version of the headers that a client is compiled with: the first part changes with the interface, the second
/// when something is added to it, the third with what is mended.
#define XMLHELPER_VERSION_MAJOR 1
/// @copydoc XMLHELPER_VERSION_MAJOR
#define XMLHELPER_VERSION_MINOR 0
/// @copydoc XMLHELPER_VERSION_MAJOR
#define XMLHELPER_VERSION_PATCH 0

/// The version as text.
#define XMLHELPER_VERSION_STRING "1.0.0"

/// A version as one number that can be compared. Each part is below 256.
#define XMLHELPER_VERSION_CHECK(major, minor, patch) (((major) << 16) | ((minor) << 8) | (patch))

/// The version of the headers as such a number:
///
///     #if XMLHELPER_VERSION >= XMLHELPER_VERSION_CHECK(1, 1, 0)
#define XMLHELPER_VERSION                                                                                              \
    XMLHELPER_VERSION_CHECK(XMLHELPER_VERSION_MAJOR, XMLHELPER_VERSION_MINOR, XMLHELPER_VERSION_PATCH)

#endif
