// SPDX-License-Identifier: MIT
#include "PictureBytes.h"
#include "platform/picture/PictureFile.h"
#include "platform/picture/PictureReader.h"
#include "support/AlbumFixture.h"

#include <QTemporaryDir>
#include <QTest>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

class TestPictureRefusal : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QImage image(64, 64, QImage::Format_RGB32);
        image.fill(Qt::red);
        jpeg_ = Encoded(image, "jpeg");
        QVERIFY(ReadPictureInfo(Save("good.jpg", jpeg_)).IsReadable());
    }

    void SizesOfNothingGiveNothing()
    {
        const QString path = Save("small.jpg", jpeg_);
        for (const QSize size : {QSize(), QSize(0, 5), QSize(5, 0), QSize(-3, 4),
                                 QSize(INT_MAX, INT_MAX), QSize(1, 1 << 20)}) {
            QVERIFY(ReadPicture(path, size).isNull());
        }
    }

    void UnreadableFiles()
    {
        QStringList paths{"", Path("missing.jpg"), folder_.path(), Save("empty.jpg", {}),
                          Save("byte.jpg", "\xFF")};
        paths += Save("text.jpg", "BMX is not a bitmap, only a text about bicycles.");
        // Drawings and sources named as photographs.
        paths +=
            Save("drawing.jpg", "<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'/>");
        paths += Save("pixmap.png",
                      "/* XPM */ static char *a[] = {\"1 1 1 1\", \"x c #FF0000\", \"x\"};");
        paths += Save("cut.jpg", jpeg_.left(60));
        // Sizes that would take all memory.
        paths += Save("absurd.png", AbsurdPng());
        paths += Save("absurd.bmp", Bitmap({100000, 100000}, "x"));
        paths += Save("absurd-top.bmp", Bitmap({100000, INT_MIN}, "x"));
        paths += Save("absurd.jpg", WithClaimedJpegSize(jpeg_, {65500, 65500}));
#ifdef Q_OS_UNIX
        QCOMPARE(mkfifo(QFile::encodeName(Path("pipe.jpg")).constData(), 0600), 0);
        paths += {Path("pipe.jpg"), "/dev/zero"}; // nobody writes; there is no end
#endif
        for (const QString& path : paths) {
            QVERIFY2(!ReadPictureInfo(path).IsReadable(), qPrintable(path));
            QVERIFY2(ReadPicture(path, {64, 64}).isNull(), qPrintable(path));
        }
    }

    void JpegInScansIsTold()
    {
        const QByteArray progressive = Encoded(QImage::fromData(jpeg_), "jpeg", true);
        QVERIFY(!JpegNeedsWholePicture(jpeg_));
        QVERIFY(!JpegNeedsWholePicture(WithOrientation(jpeg_, 6)));
        QVERIFY(JpegNeedsWholePicture(progressive));
        QVERIFY(JpegNeedsWholePicture(WithOrientation(progressive, 6)));
        const QImage large = QImage::fromData(jpeg_).scaled(1600, 1200);
        QVERIFY(JpegNeedsWholePicture(Encoded(large, "jpeg", true)));
        QVERIFY(!JpegNeedsWholePicture(Encoded(large, "jpeg")));

        QByteArray oneColourPerScan = jpeg_;
        oneColourPerScan[jpeg_.indexOf("\xFF\xDA") + 4] = 1;
        QVERIFY(JpegNeedsWholePicture(oneColourPerScan));

        // Wherever it ends, the walk along the header must as well.
        for (qsizetype bytes = 0; bytes < jpeg_.size(); ++bytes)
            QVERIFY(!JpegNeedsWholePicture(jpeg_.left(bytes)));
    }

    void SizeMustFitTheFile()
    {
        const qint64 megabyte = 1 << 20;
        const std::tuple<const char*, QSize, qint64, bool> rows[] = {
            {"jpeg", {6000, 4000}, 900, true}, // cut to little
            {"jpeg", {40000, 8000}, 90 * megabyte, true},
            {"jpeg", {40000, 8000}, 900, false},
            {"jpeg", {65500, 65500}, 900 * megabyte, false},
            {"png", {16000, 16000}, megabyte, true},        // read line by line
            {"bmp", {16000, 16000}, 768 * megabyte, false}, // held whole
            {"png", {INT_MAX, INT_MAX}, megabyte, false},
            {"gif", {0, 10}, megabyte, false}};
        for (const auto& [format, size, fileBytes, plausible] : rows)
            QCOMPARE(IsPlausibleSize(format, size, fileBytes), plausible);
    }

private:
    QString Path(const QString& name) const
    {
        return folder_.filePath(name);
    }
    QString Save(const QString& name, const QByteArray& bytes) const
    {
        WriteFile(Path(name), bytes);
        return Path(name);
    }

    QTemporaryDir folder_;
    QByteArray jpeg_;
};

QTEST_GUILESS_MAIN(TestPictureRefusal)
#include "test_picture_refusal.moc"
