#include "samples/tavrel/sample_pictures.h"

#include <QPainter>
#include <QPolygonF>

QImage landscapePicture()
{
    QImage picture(360, 300, QImage::Format_RGB32);
    picture.fill(QColor(0xcf, 0xe8, 0xf5));
    QPainter painter(&picture);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0xfc, 0xb5, 0x14));
    painter.drawEllipse(QPointF(270, 75), 38, 38);
    painter.setBrush(QColor(0x8c, 0xb8, 0x6b));
    painter.drawEllipse(QPointF(80, 330), 240, 150);
    painter.setBrush(QColor(0x5f, 0x96, 0x4b));
    painter.drawEllipse(QPointF(300, 345), 220, 130);
    painter.setBrush(QColor(0x4a, 0x3c, 0x31));
    painter.drawRect(92, 130, 16, 90);
    painter.setBrush(QColor(0x24, 0x6b, 0x3a));
    painter.drawEllipse(QPointF(100, 110), 46, 52);
    painter.setBrush(QColor(0xdc, 0x0b, 0x0b));
    for (const QPointF& apple : {QPointF(78, 100), QPointF(112, 86), QPointF(104, 128),
                                 QPointF(124, 116), QPointF(84, 134)}) {
        painter.drawEllipse(apple, 6, 6);
    }
    return picture;
}

QByteArray millWheelSvg()
{
    QByteArray paddles;
    for (int angle = 0; angle < 360; angle += 45) {
        paddles += "<g transform=\"rotate(" + QByteArray::number(angle) +
                   " 48 48)\"><path d=\"M46 14 H50 V44 H46 Z\"/>"
                   "<path d=\"M40 4 H56 V12 H40 Z\" fill=\"#005b99\"/></g>\n";
    }
    return "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"96\" height=\"96\" "
           "viewBox=\"0 0 96 96\">\n"
           "<circle cx=\"48\" cy=\"48\" r=\"34\" fill=\"none\" stroke=\"#4a3c31\" "
           "stroke-width=\"5\"/>\n" +
           paddles +
           "<circle cx=\"48\" cy=\"48\" r=\"8\" fill=\"#4a3c31\"/>\n"
           "</svg>\n";
}
