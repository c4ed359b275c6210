// SPDX-License-Identifier: MIT
#include "PictureBytes.h"
#include "platform/picture/PictureReader.h"

#include <QTemporaryDir>
#include <QTest>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

class TestPictureRefusal : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void SizesOfNothingGiveNothing();
    void Unreadable_data();
    void Unreadable();

private:
    QString Path(const QString& name) const { return folder_.filePath(name); }
    QString Save(const QString& name, const QByteArray& bytes) const
    {
        QFile file(Path(name));
        const bool written = file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
        return written ? file.fileName() : QString();
    }

    QTemporaryDir folder_;
    QByteArray jpeg_;
};

void TestPictureRefusal::initTestCase()
{
    QImage image(64, 64, QImage::Format_RGB32);
    image.fill(Qt::red);
    jpeg_ = Encoded(image, "jpeg");
    QVERIFY(ReadPictureInfo(Save("good.jpg", jpeg_)).IsReadable());
}

void TestPictureRefusal::SizesOfNothingGiveNothing()
{
    const QString path = Save("small.jpg", jpeg_);
    for (const QSize size : {QSize(), QSize(0, 5), QSize(5, 0), QSize(-3, 4),
                             QSize(INT_MAX, INT_MAX), QSize(1, 1 << 20)}) {
        QVERIFY(ReadPicture(path, size).isNull());
    }
}

void TestPictureRefusal::Unreadable_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("no name") << QString();
    QTest::newRow("missing") << Path("missing.jpg");
    QTest::newRow("folder") << folder_.path();
    QTest::newRow("empty file") << Save("empty.jpg", {});
    QTest::newRow("one byte") << Save("byte.jpg", "\xFF");
    QTest::newRow("text") << Save("text.jpg", "BMX is not a bitmap, only a text about bicycles.");
    QTest::newRow("drawing named as a photograph")
        << Save("drawing.jpg", "<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'/>");
    QTest::newRow("pixmap source named as a photograph") << Save(
        "pixmap.png", "/* XPM */ static char *a[] = {\"1 1 1 1\", \"x c #FF0000\", \"x\"};");
    QTest::newRow("JPEG cut within its header") << Save("cut.jpg", jpeg_.left(60));
    QTest::newRow("absurd PNG") << Save("absurd.png", AbsurdPng());
    QTest::newRow("absurd bitmap") << Save("absurd.bmp", Bitmap({100000, 100000}, "x"));
    QTest::newRow("absurd top-down bitmap")
        << Save("absurd-top.bmp", Bitmap({100000, INT_MIN}, "x"));
    QTest::newRow("absurd JPEG") << Save("absurd.jpg", WithClaimedJpegSize(jpeg_, {65500, 65500}));
#ifdef Q_OS_UNIX
    QCOMPARE(mkfifo(QFile::encodeName(Path("pipe.jpg")).constData(), 0600), 0);
    QTest::newRow("pipe that nobody writes to") << Path("pipe.jpg");
    QTest::newRow("device without an end") << QStringLiteral("/dev/zero");
#endif
}

void TestPictureRefusal::Unreadable()
{
    QFETCH(QString, path);
    QVERIFY(!ReadPictureInfo(path).IsReadable());
    QVERIFY(ReadPicture(path, {64, 64}).isNull());
}

QTEST_GUILESS_MAIN(TestPictureRefusal)
#include "test_picture_refusal.moc"
