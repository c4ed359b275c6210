// SPDX-License-Identifier: MIT
// Writes a picture at another width: scale_picture PICTURE.png WIDTH PICTURE.jpg
// One that is narrower already keeps its size.
#include <QGuiApplication>
#include <QImage>
#include <QTextStream>

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QGuiApplication::arguments();
    if (arguments.size() != 4) {
        QTextStream(stderr) << "usage: scale_picture PICTURE.png WIDTH PICTURE.jpg\n";
        return 2;
    }
    QImage image(arguments[1]);
    const int width = arguments[2].toInt();
    if (image.isNull() || width < 1) {
        QTextStream(stderr) << "scale_picture: cannot scale " << arguments[1] << '\n';
        return 1;
    }
    if (image.width() > width)
        image = image.scaledToWidth(width, Qt::SmoothTransformation);
    return image.convertToFormat(QImage::Format_RGB32).save(arguments[3], "JPG", 88) ? 0 : 1;
}
