// SPDX-License-Identifier: MIT
#include "support/TestFiles.h"

#include <QDir>
#include <QImage>
#include <QtTest>

QByteArray ReadFile(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void WriteFile(const QString& path, const QByteArray& contents)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(contents) != contents.size())
        QTest::qFail(qPrintable("cannot write " + path), __FILE__, __LINE__);
}

void PaintPicture(const QString& path, QSize size, const QColor& color)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(color);
    if (!image.save(path))
        QTest::qFail(qPrintable("cannot write " + path), __FILE__, __LINE__);
}
