// SPDX-License-Identifier: MIT
#include "PictureBytes.h"
#include "platform/picture/JpegFile.h"
#include "platform/picture/PictureFile.h"
#include "platform/picture/PictureReader.h"
#include "support/AlbumFixture.h"

#include <QColorSpace>
#include <QPainter>
#include <QTemporaryDir>
#include <QTest>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

namespace {

QImage Filled(QSize size, const QColor& colour, QImage::Format format = QImage::Format_RGB32)
{
    QImage image(size, format);
    image.fill(colour);
    return image;
}

// Red, green, blue and white from left to right and top to bottom.
QImage FourQuarters(QSize size)
{
    QImage image = Filled(size, Qt::red);
    const int width = size.width() / 2;
    const int height = size.height() / 2;
    QPainter painter(&image);
    painter.fillRect(width, 0, width, height, QColor(0, 255, 0));
    painter.fillRect(0, height, width, height, Qt::blue);
    painter.fillRect(width, height, width, height, Qt::white);
    return image;
}

QString LettersOfQuarters(const QImage& image)
{
    const int right = image.width() - 3;
    const int bottom = image.height() - 3;
    QString letters;
    for (const QPoint at :
         {QPoint(2, 2), QPoint(right, 2), QPoint(2, bottom), QPoint(right, bottom)}) {
        const QColor colour = image.pixelColor(at);
        const int bits =
            (colour.red() > 200) + (colour.green() > 200) * 2 + (colour.blue() > 200) * 4;
        letters += QString("?RG?B??W")[bits];
    }
    return letters;
}

// The largest difference of a channel.
int Distance(const QColor& one, const QColor& other)
{
    return std::max({qAbs(one.red() - other.red()), qAbs(one.green() - other.green()),
                     qAbs(one.blue() - other.blue())});
}

bool IsQuickToDraw(const QImage& image)
{
    return image.format() == QImage::Format_RGB32 ||
           image.format() == QImage::Format_ARGB32_Premultiplied;
}

} // namespace

class TestPictureReader : public QObject
{
    Q_OBJECT

private slots:
    void TurnsAsTheFileAsks()
    {
        // By orientation; 0 and 9 are none.
        const QStringList quarters{"RGBW", "RGBW", "GRWB", "WBGR", "BWRG",
                                   "RBGW", "BRWG", "WGBR", "GWRB", "RGBW"};
        const QByteArray jpeg = Encoded(FourQuarters({640, 400}), "jpeg");
        for (char orientation = 0; orientation < 10; ++orientation) {
            const bool lies = orientation >= 5 && orientation <= 8;
            const QString path = Save("turned.jpg", WithOrientation(jpeg, orientation));
            QCOMPARE(ReadPictureInfo(path).size, lies ? QSize(400, 640) : QSize(640, 400));
            const QSize asked = lies ? QSize(50, 80) : QSize(80, 50);
            const QImage image = ReadPicture(path, asked);
            QCOMPARE(image.size(), asked);
            QCOMPARE(LettersOfQuarters(image), quarters[orientation]);
        }
    }

    void GivesExactlyTheSizeAsked()
    {
        for (const char* format : {"jpeg", "png", "bmp", "ppm", "tiff", "webp"}) {
            const QByteArray bytes = Encoded(Filled({300, 200}, QColor(200, 120, 40)), format);
            QVERIFY2(!bytes.isEmpty(), "the plug-in for this format is not installed");
            const QString path = Save(format, bytes);
            QCOMPARE(ReadPictureInfo(path).size, QSize(300, 200));
            for (const QSize asked :
                 {QSize(300, 200), QSize(101, 67), QSize(299, 11), QSize(1, 1), QSize(450, 300)}) {
                const QImage image = ReadPicture(path, asked);
                QVERIFY2(image.size() == asked && IsQuickToDraw(image), format);
                const QColor middle = image.pixelColor(asked.width() / 2, asked.height() / 2);
                QVERIFY2(Distance(middle, QColor(200, 120, 40)) <= 4, format);
            }
            for (const QSize none : {QSize(), QSize(0, 5), QSize(5, 0), QSize(-3, 4),
                                     QSize(INT_MAX, INT_MAX), QSize(1, 1 << 20)})
                QVERIFY2(ReadPicture(path, none).isNull(), format);
        }
    }

    void ColoursFollowTheProfile()
    {
        const QColorSpace wide(QColorSpace::AdobeRgb);
        const std::tuple<const char*, QColorSpace, int> rows[] = {
            {"jpeg", wide, 0},
            {"jpeg", wide, 6},
            {"png", QColorSpace(QColorSpace::DisplayP3), 0},
            {"jpeg", QColorSpace(QColorSpace::SRgb), 0},
            {"jpeg", QColorSpace(), 0}};
        const QColor stored(180, 90, 60);
        for (const auto& [format, profile, orientation] : rows) {
            QImage image = Filled({64, 64}, stored);
            image.setColorSpace(profile);
            QColor expected = stored;
            if (profile.isValid())
                expected = profile.transformationToColorSpace(QColorSpace::SRgb).map(stored);
            QByteArray bytes = Encoded(image, format);
            if (orientation != 0)
                bytes = WithOrientation(bytes, char(orientation));
            const QImage read = ReadPicture(Save("profile", bytes), {32, 32});
            QVERIFY(IsQuickToDraw(read));
            QVERIFY(Distance(read.pixelColor(16, 16), expected) <= 3);
            const bool changes = profile.isValid() && profile != QColorSpace(QColorSpace::SRgb);
            QCOMPARE(Distance(read.pixelColor(16, 16), stored) > 8, changes);
        }
    }

    // All of them beyond what the decoders allow by themselves.
    void LargePicturesAreRead()
    {
        const std::tuple<const char*, bool, QImage::Format> rows[] = {
            {"jpeg", false, QImage::Format_Grayscale8},
            {"jpeg", true, QImage::Format_Grayscale8},
            {"png", false, QImage::Format_Mono}}; // with a palette
        for (const auto& [format, progressive, pixels] : rows) {
            QImage image(7000, 5000, pixels);
            image.fill(pixels == QImage::Format_Mono ? 1 : 255);
            const QString path = Save("large", Encoded(image, format, progressive));
            QCOMPARE(ReadPictureInfo(path).size, QSize(7000, 5000));
            const QImage read = ReadPicture(path, {70, 50});
            QCOMPARE(read.size(), QSize(70, 50));
            QCOMPARE(LettersOfQuarters(read), "WWWW");
        }
    }

    // A cut JPEG shows its beginning, a top-down bitmap stands upright, an animation shows its
    // first frame, and contents decide, not names.
    void ReadsOddFiles()
    {
        const QByteArray jpeg = Encoded(FourQuarters({640, 400}), "jpeg");
        QImage image = ReadPicture(Save("cut.jpg", jpeg.left(jpeg.size() * 2 / 3)), {320, 200});
        QCOMPARE(image.size(), QSize(320, 200));
        QCOMPARE(LettersOfQuarters(image).left(2), "RG");

        const QByteArray red = QByteArray("\0\0\xFF\0\0\xFF", 6) + QByteArray(2, '\0');
        const QByteArray blue = QByteArray("\xFF\0\0\xFF\0\0", 6) + QByteArray(2, '\0');
        const QString bitmap = Save("topdown.bmp", Bitmap({2, -2}, red + blue));
        QCOMPARE(ReadPictureInfo(bitmap).size, QSize(2, 2));
        image = ReadPicture(bitmap, {2, 2});
        QCOMPARE(image.pixelColor(0, 0), QColor(Qt::red));
        QCOMPARE(image.pixelColor(0, 1), QColor(Qt::blue));

        image = ReadPicture(Save("moving.gif", TwoFrameGif()), {1, 1});
        QCOMPARE(image.pixelColor(0, 0), QColor(Qt::red));

        const QByteArray png = Encoded(FourQuarters({40, 40}), "png");
        for (const char* name : {"png.jpg", "png.svg", "no extension", "name.txt"})
            QCOMPARE(LettersOfQuarters(ReadPicture(Save(name, png), {20, 20})), "RGBW");
    }

    void TransparencyStays()
    {
        QImage image = Filled({100, 80}, Qt::transparent, QImage::Format_ARGB32);
        QPainter(&image).fillRect(0, 0, 50, 80, QColor(255, 0, 0, 128));
        const QImage read = ReadPicture(Save("clear.png", Encoded(image, "png")), {50, 40});
        QCOMPARE(read.format(), QImage::Format_ARGB32_Premultiplied);
        QVERIFY(qAbs(qAlpha(read.pixel(5, 5)) - 128) <= 2);
        QCOMPARE(qAlpha(read.pixel(45, 5)), 0);
    }

    void ManyKeepTheirOrder()
    {
        constexpr int count = 24;
        const auto isBad = [](int i) { return i % 5 == 3; };
        std::vector<PictureRequest> requests;
        for (int i = 0; i < count; ++i) {
            const QImage image = Filled({300 + i, 200}, QColor::fromHsv(i * 10, 255, 255));
            const QByteArray bytes = Encoded(image, i % 2 ? "png" : "jpeg");
            requests.push_back({Save(QString::number(i), isBad(i) ? "bad" : bytes), {30 + i, 20}});
        }
        const std::vector<QImage> images = ReadPictures(requests);
        QCOMPARE(images.size(), requests.size());
        for (int i = 0; i < count; ++i) {
            const QImage& image = images[std::size_t(i)];
            QCOMPARE(image.size(), isBad(i) ? QSize(0, 0) : QSize(30 + i, 20));
            QVERIFY(isBad(i) ||
                    Distance(image.pixelColor(9, 9), QColor::fromHsv(i * 10, 255, 255)) <= 4);
        }
    }

    void UnreadableFiles()
    {
        QStringList paths{"", folder_.filePath("missing.jpg"), folder_.path(),
                          Save("empty.jpg", {}), Save("byte.jpg", "\xFF")};
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
        paths += {folder_.filePath("pipe.jpg"), "/dev/zero"}; // nobody writes; there is no end
        QCOMPARE(mkfifo(QFile::encodeName(folder_.filePath("pipe.jpg")).constData(), 0600), 0);
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
    QString Save(const QString& name, const QByteArray& bytes) const
    {
        WriteFile(folder_.filePath(name), bytes);
        return folder_.filePath(name);
    }

    QTemporaryDir folder_;
    const QByteArray jpeg_ = Encoded(Filled({64, 64}, Qt::red), "jpeg");
};

QTEST_GUILESS_MAIN(TestPictureReader)
#include "test_picture_reader.moc"

#include <algorithm>
