// SPDX-License-Identifier: MIT
#include "PictureBytes.h"
#include "platform/picture/PictureFile.h"

#include <QTest>

class TestPictureFile : public QObject
{
    Q_OBJECT

private slots:
    void JpegInScansIsTold();
    void SizeMustFitTheFile_data();
    void SizeMustFitTheFile();
};

void TestPictureFile::JpegInScansIsTold()
{
    QImage image(64, 48, QImage::Format_RGB32);
    image.fill(Qt::darkCyan);
    const QByteArray plain = Encoded(image, "jpeg");
    const QByteArray progressive = Encoded(image, "jpeg", true);
    QVERIFY(!JpegNeedsWholePicture(plain));
    QVERIFY(!JpegNeedsWholePicture(WithOrientation(plain, 6)));
    QVERIFY(JpegNeedsWholePicture(progressive));
    QVERIFY(JpegNeedsWholePicture(WithOrientation(progressive, 6)));

    QByteArray oneColourPerScan = plain;
    oneColourPerScan[plain.indexOf("\xFF\xDA") + 4] = 1;
    QVERIFY(JpegNeedsWholePicture(oneColourPerScan));

    // Wherever it ends, the walk along the header must as well.
    for (qsizetype bytes = 0; bytes < plain.size(); ++bytes) {
        QVERIFY(!JpegNeedsWholePicture(plain.left(bytes)));
    }
}

void TestPictureFile::SizeMustFitTheFile_data()
{
    QTest::addColumn<QByteArray>("format");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<qint64>("fileBytes");
    QTest::addColumn<bool>("plausible");
    const qint64 megabyte = 1 << 20;
    QTest::newRow("photograph") << QByteArray("jpeg") << QSize(6000, 4000) << 8 * megabyte << true;
    QTest::newRow("photograph cut to little")
        << QByteArray("jpeg") << QSize(6000, 4000) << qint64(900) << true;
    QTest::newRow("stitched panorama")
        << QByteArray("jpeg") << QSize(40000, 8000) << 90 * megabyte << true;
    QTest::newRow("panorama in no bytes")
        << QByteArray("jpeg") << QSize(40000, 8000) << qint64(900) << false;
    QTest::newRow("too large for any patience")
        << QByteArray("jpeg") << QSize(65500, 65500) << 900 * megabyte << false;
    QTest::newRow("scan by line") << QByteArray("png") << QSize(16000, 16000) << megabyte << true;
    QTest::newRow("scan held whole")
        << QByteArray("bmp") << QSize(16000, 16000) << 768 * megabyte << false;
    QTest::newRow("product beyond 64 bits of nothing")
        << QByteArray("png") << QSize(INT_MAX, INT_MAX) << megabyte << false;
    QTest::newRow("no width") << QByteArray("gif") << QSize(0, 10) << megabyte << false;
}

void TestPictureFile::SizeMustFitTheFile()
{
    QFETCH(QByteArray, format);
    QFETCH(QSize, size);
    QFETCH(qint64, fileBytes);
    QTEST(IsPlausibleSize(format, size, fileBytes), "plausible");
}

QTEST_GUILESS_MAIN(TestPictureFile)
#include "test_picture_file.moc"
