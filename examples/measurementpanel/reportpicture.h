#ifndef MEASUREMENTPANEL_REPORTPICTURE_H
#define MEASUREMENTPANEL_REPORTPICTURE_H

#include <QIcon>
#include <QPalette>

/// The picture of the report button, drawn in the colours of a palette and in several sizes, so that it is crisp on
/// every screen and readable on dark windows.
///
/// It needs Qt's SVG module. Built without it, the picture is null, and the report widget shows its own, of 16x16.
QIcon reportPicture(const QPalette& palette);

#endif
