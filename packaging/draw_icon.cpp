#include <QImage>
#include <QPainter>
#include <QString>
#include <QSvgRenderer>

/// Draws a square icon: crewmark-icon DRAWING.svg SIZE ICON.png
int main(int argc, char* argv[])
{
    if (argc != 4)
        return 2;
    QSvgRenderer drawing(QString::fromLocal8Bit(argv[1]));
    const int size = QString::fromLocal8Bit(argv[2]).toInt();
    QImage icon(size, size, QImage::Format_ARGB32_Premultiplied);
    icon.fill(Qt::transparent);
    QPainter painter(&icon);
    drawing.render(&painter);
    painter.end();
    return drawing.isValid() && icon.save(QString::fromLocal8Bit(argv[3])) ? 0 : 1;
}
