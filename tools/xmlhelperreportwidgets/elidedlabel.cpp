#include "elidedlabel_p.h"

#include <QHelpEvent>
#include <QPainter>
#include <QTextDocument>
#include <QToolTip>

ElidedLabel::ElidedLabel(QWidget* parent)
    : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
}

ElidedLabel::~ElidedLabel() = default;

QString ElidedLabel::GetShownText() const
{
    QString line = text();
    line.replace(QLatin1Char('\n'), QLatin1Char(' '));
    return fontMetrics().elidedText(line, Qt::ElideMiddle, contentsRect().width());
}

bool ElidedLabel::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTip) {
        const QString tip = Qt::mightBeRichText(text()) ? QStringLiteral("<span>%1</span>").arg(text().toHtmlEscaped())
                                                        : text(); // a path may have any name
        QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), tip, this);
        return true;
    }
    return QLabel::event(event);
}

void ElidedLabel::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setPen(palette().color(foregroundRole()));
    painter.drawText(contentsRect(), int(Qt::AlignLeft) | int(Qt::AlignVCenter), GetShownText());
}
