// SPDX-License-Identifier: MIT
// Draws an icon at one size: render_icon DRAWING.svg SIZE PICTURE.png
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <QTextStream>

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QGuiApplication::arguments();
    if (arguments.size() != 4) {
        QTextStream(stderr) << "usage: render_icon DRAWING.svg SIZE PICTURE.png\n";
        return 2;
    }
    QSvgRenderer drawing(arguments[1]);
    const int size = arguments[2].toInt();
    QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
    if (!drawing.isValid() || image.isNull()) {
        QTextStream(stderr) << "render_icon: cannot draw " << arguments[1] << '\n';
        return 1;
    }
    image.fill(Qt::transparent);
    QPainter painter(&image);
    drawing.render(&painter);
    painter.end();
    return image.save(arguments[3]) ? 0 : 1;
}
