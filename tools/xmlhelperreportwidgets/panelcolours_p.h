#ifndef XMLHELPERREPORTWIDGETS_PANELCOLOURS_P_H
#define XMLHELPERREPORTWIDGETS_PANELCOLOURS_P_H

#include <QColor>
#include <QPalette>

/// Colours that are readable on the windows of their palette, light or dark.
bool isDark(const QPalette& palette);
QColor colourOn(const QPalette& palette, QRgb ifLight, QRgb ifDark);

/// Those with a meaning.
QColor goodColour(const QPalette& palette);
QColor badColour(const QPalette& palette);
QColor pendingColour(const QPalette& palette);
/// For what is drawn: the trace and the button's picture.
QColor accentColour(const QPalette& palette);

#endif
