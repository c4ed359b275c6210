// SPDX-License-Identifier: MIT
#include "PictureBytes.h"
#include "platform/picture/PictureReader.h"

#include <QColorSpace>
#include <QPainter>
#include <QTemporaryDir>
#include <QTest>

class TestPictureReader : public QObject
{
    Q_OBJECT

private slots:
    void TurnsAsTheFileAsks_data();
    void TurnsAsTheFileAsks();
    void GivesExactlyTheSizeAsked_data();
    void GivesExactlyTheSizeAsked();
    void TransparencyStays();
    void ColoursFollowTheProfile_data();
    void ColoursFollowTheProfile();
    void LargePicturesAreRead_data();
    void LargePicturesAreRead();
    void CutJpegShowsItsBeginning();
    void TopDownBitmapIsUpright();
    void AnimationShowsItsFirstFrame();
    void ContentsDecide();
    void ManyKeepTheirOrder();

private:
    QString Save(const QString& name, const QByteArray& bytes) const
    {
        QFile file(folder_.filePath(name));
        const bool written = file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
        return written ? file.fileName() : QString();
    }

    QTemporaryDir folder_;
};

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

QChar LetterOf(const QColor& colour)
{
    const auto high = [](int level) { return level > 200; };
    if (high(colour.red()) && high(colour.green()) && high(colour.blue())) {
        return 'W';
    }
    return high(colour.red()) ? 'R' : high(colour.green()) ? 'G' : high(colour.blue()) ? 'B' : '?';
}

QString LettersOfQuarters(const QImage& image)
{
    const int right = image.width() - 3;
    const int bottom = image.height() - 3;
    QString letters;
    for (const QPoint at :
         {QPoint(2, 2), QPoint(right, 2), QPoint(2, bottom), QPoint(right, bottom)}) {
        letters += LetterOf(image.pixelColor(at));
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

void TestPictureReader::TurnsAsTheFileAsks_data()
{
    QTest::addColumn<char>("orientation");
    QTest::addColumn<QString>("quarters");
    QTest::addColumn<bool>("swapped");
    QTest::newRow("out of range below") << '\0' << "RGBW" << false;
    QTest::newRow("as stored") << '\1' << "RGBW" << false;
    QTest::newRow("mirrored left to right") << '\2' << "GRWB" << false;
    QTest::newRow("upside down") << '\3' << "WBGR" << false;
    QTest::newRow("mirrored top to bottom") << '\4' << "BWRG" << false;
    QTest::newRow("mirrored and turned left") << '\5' << "RBGW" << true;
    QTest::newRow("turned right") << '\6' << "BRWG" << true;
    QTest::newRow("mirrored and turned right") << '\7' << "WGBR" << true;
    QTest::newRow("turned left") << '\10' << "GWRB" << true;
    QTest::newRow("out of range above") << '\11' << "RGBW" << false;
}

void TestPictureReader::TurnsAsTheFileAsks()
{
    QFETCH(char, orientation);
    QFETCH(QString, quarters);
    QFETCH(bool, swapped);
    const QByteArray jpeg = Encoded(FourQuarters({640, 400}), "jpeg");
    const QString path = Save("turned.jpg", WithOrientation(jpeg, orientation));
    QCOMPARE(ReadPictureInfo(path).size, swapped ? QSize(400, 640) : QSize(640, 400));
    const QSize asked = swapped ? QSize(50, 80) : QSize(80, 50);
    const QImage image = ReadPicture(path, asked);
    QCOMPARE(image.size(), asked);
    QCOMPARE(LettersOfQuarters(image), quarters);
}

void TestPictureReader::GivesExactlyTheSizeAsked_data()
{
    QTest::addColumn<QByteArray>("format");
    QTest::addColumn<QSize>("asked");
    for (const char* format : {"jpeg", "png", "bmp", "ppm", "tiff", "webp"}) {
        for (const QSize asked :
             {QSize(300, 200), QSize(101, 67), QSize(299, 11), QSize(1, 1), QSize(450, 300)}) {
            QTest::addRow("%s to %dx%d", format, asked.width(), asked.height())
                << QByteArray(format) << asked;
        }
    }
}

void TestPictureReader::GivesExactlyTheSizeAsked()
{
    QFETCH(QByteArray, format);
    QFETCH(QSize, asked);
    const QByteArray bytes = Encoded(Filled({300, 200}, QColor(200, 120, 40)), format);
    if (bytes.isEmpty()) {
        QSKIP("The plug-in for this format is not installed");
    }
    const QString path = Save("plain", bytes);
    QCOMPARE(ReadPictureInfo(path).size, QSize(300, 200));
    const QImage image = ReadPicture(path, asked);
    QCOMPARE(image.size(), asked);
    QVERIFY(IsQuickToDraw(image));
    const QColor middle = image.pixelColor(asked.width() / 2, asked.height() / 2);
    QVERIFY2(Distance(middle, QColor(200, 120, 40)) <= 4, qPrintable(middle.name()));
}

void TestPictureReader::TransparencyStays()
{
    QImage image = Filled({100, 80}, Qt::transparent, QImage::Format_ARGB32);
    QPainter(&image).fillRect(0, 0, 50, 80, QColor(255, 0, 0, 128));
    const QImage read = ReadPicture(Save("clear.png", Encoded(image, "png")), {50, 40});
    QCOMPARE(read.format(), QImage::Format_ARGB32_Premultiplied);
    QVERIFY(qAbs(qAlpha(read.pixel(5, 5)) - 128) <= 2);
    QCOMPARE(qAlpha(read.pixel(45, 5)), 0);
}

void TestPictureReader::ColoursFollowTheProfile_data()
{
    QTest::addColumn<QByteArray>("format");
    QTest::addColumn<QColorSpace>("profile");
    QTest::addColumn<bool>("changes");
    QTest::addColumn<char>("orientation");
    QTest::newRow("wide JPEG") << QByteArray("jpeg") << QColorSpace(QColorSpace::AdobeRgb) << true
                               << '\0';
    for (const char orientation : {'\2', '\3', '\6', '\7'}) {
        QTest::addRow("wide JPEG turned by %d", orientation)
            << QByteArray("jpeg") << QColorSpace(QColorSpace::AdobeRgb) << true << orientation;
    }
    QTest::newRow("wide PNG") << QByteArray("png") << QColorSpace(QColorSpace::DisplayP3) << true
                              << '\0';
    QTest::newRow("usual JPEG") << QByteArray("jpeg") << QColorSpace(QColorSpace::SRgb) << false
                                << '\0';
    QTest::newRow("JPEG without") << QByteArray("jpeg") << QColorSpace() << false << '\0';
}

void TestPictureReader::ColoursFollowTheProfile()
{
    QFETCH(QByteArray, format);
    QFETCH(QColorSpace, profile);
    QFETCH(bool, changes);
    QFETCH(char, orientation);
    const QColor stored(180, 90, 60);
    QImage image = Filled({64, 64}, stored);
    image.setColorSpace(profile);
    QColor expected = stored;
    if (profile.isValid()) {
        expected = profile.transformationToColorSpace(QColorSpace::SRgb).map(stored);
    }
    QByteArray bytes = Encoded(image, format);
    if (orientation != 0) {
        bytes = WithOrientation(bytes, orientation);
    }
    const QImage read = ReadPicture(Save("profile", bytes), {32, 32});
    QVERIFY(IsQuickToDraw(read));
    QVERIFY(Distance(read.pixelColor(16, 16), expected) <= 3);
    QCOMPARE(Distance(read.pixelColor(16, 16), stored) > 8, changes);
}

// All of them beyond what the decoders allow by themselves.
void TestPictureReader::LargePicturesAreRead_data()
{
    QTest::addColumn<QByteArray>("format");
    QTest::addColumn<bool>("progressive");
    QTest::addColumn<QImage::Format>("pixels");
    QTest::newRow("JPEG") << QByteArray("jpeg") << false << QImage::Format_Grayscale8;
    QTest::newRow("progressive JPEG") << QByteArray("jpeg") << true << QImage::Format_Grayscale8;
    QTest::newRow("PNG with a palette") << QByteArray("png") << false << QImage::Format_Mono;
}

void TestPictureReader::LargePicturesAreRead()
{
    QFETCH(QByteArray, format);
    QFETCH(bool, progressive);
    QFETCH(QImage::Format, pixels);
    const QSize size(7000, 5000);
    QImage image(size, pixels);
    image.fill(pixels == QImage::Format_Mono ? 1 : 255);
    const QString path = Save("large", Encoded(image, format, progressive));
    QCOMPARE(ReadPictureInfo(path).size, size);
    const QImage read = ReadPicture(path, {70, 50});
    QCOMPARE(read.size(), QSize(70, 50));
    QCOMPARE(LettersOfQuarters(read), "WWWW");
}

void TestPictureReader::CutJpegShowsItsBeginning()
{
    const QByteArray jpeg = Encoded(FourQuarters({640, 400}), "jpeg");
    const QString path = Save("cut.jpg", jpeg.left(jpeg.size() * 2 / 3));
    QCOMPARE(ReadPictureInfo(path).size, QSize(640, 400));
    const QImage image = ReadPicture(path, {320, 200});
    QCOMPARE(image.size(), QSize(320, 200));
    QCOMPARE(LettersOfQuarters(image).left(2), "RG");
}

void TestPictureReader::TopDownBitmapIsUpright()
{
    const QByteArray red = QByteArray("\0\0\xFF\0\0\xFF", 6) + QByteArray(2, '\0');
    const QByteArray blue = QByteArray("\xFF\0\0\xFF\0\0", 6) + QByteArray(2, '\0');
    const QString path = Save("topdown.bmp", Bitmap({2, -2}, red + blue));
    QCOMPARE(ReadPictureInfo(path).size, QSize(2, 2));
    const QImage image = ReadPicture(path, {2, 2});
    QCOMPARE(image.size(), QSize(2, 2));
    QCOMPARE(image.pixelColor(0, 0), QColor(Qt::red));
    QCOMPARE(image.pixelColor(0, 1), QColor(Qt::blue));
}

void TestPictureReader::AnimationShowsItsFirstFrame()
{
    const QImage image = ReadPicture(Save("moving.gif", TwoFrameGif()), {1, 1});
    QVERIFY(!image.isNull());
    QCOMPARE(image.pixelColor(0, 0), QColor(Qt::red));
}

void TestPictureReader::ContentsDecide()
{
    const QByteArray png = Encoded(FourQuarters({40, 40}), "png");
    for (const char* name : {"png.jpg", "png.svg", "no extension", "name.txt"}) {
        const QImage image = ReadPicture(Save(name, png), {20, 20});
        QCOMPARE(LettersOfQuarters(image), "RGBW");
    }
}

void TestPictureReader::ManyKeepTheirOrder()
{
    constexpr int count = 24;
    std::vector<PictureRequest> requests;
    for (int i = 0; i < count; ++i) {
        const QImage image = Filled({300 + i, 200}, QColor::fromHsv(i * 10, 255, 255));
        const bool bad = i % 5 == 3;
        const QByteArray bytes = bad ? QByteArray("bad") : Encoded(image, i % 2 ? "png" : "jpeg");
        requests.push_back({Save(QString::number(i), bytes), {30 + i, 20}});
    }
    const std::vector<QImage> images = ReadPictures(requests);
    QCOMPARE(images.size(), requests.size());
    for (int i = 0; i < count; ++i) {
        const QImage& image = images[std::size_t(i)];
        QCOMPARE(image.isNull(), i % 5 == 3);
        if (!image.isNull()) {
            QCOMPARE(image.size(), requests[std::size_t(i)].size);
            QVERIFY(Distance(image.pixelColor(9, 9), QColor::fromHsv(i * 10, 255, 255)) <= 4);
        }
    }
    QVERIFY(ReadPictures({}).empty());
}

QTEST_GUILESS_MAIN(TestPictureReader)
#include "test_picture_reader.moc"
