#include "reportpicture.h"

#ifdef MEASUREMENTPANEL_HAS_SVG

#include <QByteArray>
#include <QFile>
#include <QPainter>
#include <QSvgRenderer>

#include <xmlhelperreportwidgets/panelcolours_p.h>

namespace {

/// Those of buttons on screens of one, one and a half, two and more dots for each pixel.
constexpr int Sizes[] = {16, 24, 32, 48, 64, 96};

QByteArray colourName(const QColor& colour)
{
    return colour.name().toLatin1();
}

/// The drawing names its two colours by words, which become those of the palette here.
QByteArray drawing(const QPalette& palette)
{
    QFile file(QStringLiteral(":/measurementpanel/toreport.svg"));
    QByteArray svg = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    svg.replace("INK", colourName(palette.color(QPalette::ButtonText)));
    svg.replace("ACCENT", colourName(accentColour(palette)));
    return svg;
}

} // namespace

/// Outside of any namespace, as the resources of a static library demand.
static void loadDrawing()
{
    Q_INIT_RESOURCE(measurementpanel);
}

QIcon reportPicture(const QPalette& palette)
{
    loadDrawing();
    QSvgRenderer renderer(drawing(palette));
    QIcon icon;
    for (const int size : Sizes) {
        QPixmap picture(size, size);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        renderer.render(&painter);
        painter.end();
        icon.addPixmap(picture);
    }
    return icon;
}

#else

QIcon reportPicture(const QPalette& /*palette*/)
{
    return {};
}

#endif
