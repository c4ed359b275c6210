// SPDX-License-Identifier: MIT
#include "PictureBytes.h"
#include "platform/picture/PictureFile.h"
#include "platform/picture/PictureReader.h"
#include "support/Rows.h"
#include "support/TestFiles.h"

#include <QColorSpace>
#include <QPainter>
#include <QTemporaryDir>

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
            const QString path = Save(format, bytes);
            QCOMPARE(ReadPictureInfo(path).size, QSize(300, 200));
            for (const QSize asked :
                 {QSize(300, 200), QSize(101, 67), QSize(299, 11), QSize(1, 1), QSize(450, 300)}) {
                const QImage image = ReadPicture(path, asked);
                QVERIFY2(image.size() == asked && IsQuickToDraw(image), format);
                const QColor middle = image.pixelColor(asked.width() / 2, asked.height() / 2);
                QVERIFY2(Distance(middle, QColor(200, 120, 40)) <= 4, format);
            }
            for (const QSize none :
                 {QSize(), QSize(5, 0), QSize(INT_MAX, INT_MAX), QSize(1, 1 << 20)})
                QVERIFY2(ReadPicture(path, none).isNull(), format);
        }
    }

    void ColoursFollowTheProfile()
    {
        const QColor stored(180, 90, 60);
        for (const auto profile :
             {QColorSpace::AdobeRgb, QColorSpace::DisplayP3, QColorSpace::SRgb}) {
            QImage image = Filled({64, 64}, stored);
            image.setColorSpace(profile);
            const QColor expected =
                QColorSpace(profile).transformationToColorSpace(QColorSpace::SRgb).map(stored);
            const bool isPng = profile == QColorSpace::DisplayP3;
            const QImage read =
                ReadPicture(Save("profile", Encoded(image, isPng ? "png" : "jpeg")), {32, 32});
            QVERIFY(IsQuickToDraw(read));
            QVERIFY(Distance(read.pixelColor(16, 16), expected) <= 3);
            QCOMPARE(Distance(expected, stored) > 8, profile != QColorSpace::SRgb);
        }
    }

    // All of them beyond what the decoders allow by themselves.
    void LargePicturesAreRead()
    {
        for (const char* format : {"jpeg", "progressive", "png"}) {
            const InRow row(format);
            const bool isPng = *format == 'p' && format[1] == 'n'; // with a palette
            QImage image(7000, 5000, isPng ? QImage::Format_Mono : QImage::Format_Grayscale8);
            image.fill(isPng ? 1 : 255);
            const QString path =
                Save("large", Encoded(image, isPng ? "png" : "jpeg", format[1] == 'r'));
            QCOMPARE(ReadPictureInfo(path).size, QSize(7000, 5000));
            QCOMPARE(LettersOfQuarters(ReadPicture(path, {70, 50})), "WWWW");
        }
    }

    // A cut JPEG shows its beginning, a top-down bitmap stands upright, an animation shows its
    // first frame, and contents decide, not names.
    void ReadsOddFiles()
    {
        const QByteArray jpeg = Encoded(FourQuarters({640, 400}), "jpeg");
        QImage image = ReadPicture(Save("cut.jpg", jpeg.left(jpeg.size() * 2 / 3)), {320, 200});
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
        QVERIFY(qAbs(qAlpha(read.pixel(5, 5)) - 128) <= 2 && qAlpha(read.pixel(45, 5)) == 0);
    }

    void ManyKeepTheirOrder()
    {
        std::vector<PictureRequest> requests;
        for (int i = 0; i < 24; ++i) {
            const QByteArray bytes = Encoded(
                Filled({300 + i, 200}, QColor::fromHsv(i * 10, 255, 255)), i % 2 ? "png" : "jpeg");
            requests.push_back(
                {Save(QString::number(i), i % 5 == 3 ? "bad" : bytes), {30 + i, 20}});
        }
        const std::vector<QImage> images = ReadPictures(requests);
        QCOMPARE(images.size(), requests.size());
        for (int i = 0; i < 24; ++i) {
            const QImage& image = images[std::size_t(i)];
            QCOMPARE(image.size(), i % 5 == 3 ? QSize(0, 0) : QSize(30 + i, 20));
            QVERIFY(image.isNull() ||
                    Distance(image.pixelColor(9, 9), QColor::fromHsv(i * 10, 255, 255)) <= 4);
        }
    }

    void UnreadableFiles()
    {
        QStringList paths{"", folder_.filePath("missing.jpg"), folder_.path(),
                          Save("empty.jpg", {}), Save("byte.jpg", "\xFF")};
        paths += Save("text.jpg", "BMX is not a bitmap, only a text about bicycles.");
        paths +=
            Save("drawing.jpg", "<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'/>");
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

    void SizeMustFitTheFile()
    {
        constexpr qint64 megabyte = 1 << 20;
        QVERIFY(IsPlausibleSize("jpeg", {6000, 4000}, 900)); // cut to little
        QVERIFY(IsPlausibleSize("jpeg", {40000, 8000}, 90 * megabyte));
        QVERIFY(!IsPlausibleSize("jpeg", {40000, 8000}, 900));
        QVERIFY(!IsPlausibleSize("jpeg", {65500, 65500}, 900 * megabyte));
        QVERIFY(IsPlausibleSize("png", {16000, 16000}, megabyte));        // read line by line
        QVERIFY(!IsPlausibleSize("bmp", {16000, 16000}, 768 * megabyte)); // held whole
        QVERIFY(!IsPlausibleSize("png", {INT_MAX, INT_MAX}, megabyte));
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
