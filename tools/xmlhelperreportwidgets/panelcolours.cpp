#include "panelcolours_p.h"

namespace {

constexpr int HalfLight = 128;

} // namespace

bool isDark(const QPalette& palette)
{
    return palette.color(QPalette::Window).lightness() < HalfLight;
}

QColor colourOn(const QPalette& palette, QRgb ifLight, QRgb ifDark)
{
    return QColor(isDark(palette) ? ifDark : ifLight);
}

QColor goodColour(const QPalette& palette)
{
    return colourOn(palette, 0x276B2B, 0x81C784);
}

QColor badColour(const QPalette& palette)
{
    return colourOn(palette, 0xB3261E, 0xFF8A80);
}

QColor pendingColour(const QPalette& palette)
{
    return colourOn(palette, 0x8A5A00, 0xFFCC66);
}

QColor accentColour(const QPalette& palette)
{
    return colourOn(palette, 0x1F6FB2, 0x7FBCF0);
}
