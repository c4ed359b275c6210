// SPDX-License-Identifier: MIT
#include "PictureBytes.h"
#include "PngBytes.h"
#include "platform/picture/GifFile.h"
#include "platform/picture/JpegFile.h"
#include "platform/picture/PictureFile.h"
#include "platform/picture/PictureReader.h"
#include "platform/picture/PictureScaling.h"
#include "platform/picture/PngDevice.h"
#include "support/TestFiles.h"

#include <QBuffer>
#include <QDataStream>
#include <QTemporaryDir>
#include <QTest>

#include <cstdlib>
#include <functional>
#include <new>

namespace {

thread_local bool isMemoryGone = false;

} // namespace

void* operator new(std::size_t bytes)
{
    void* memory = isMemoryGone ? nullptr : std::malloc(std::max<std::size_t>(bytes, 1));
    if (!memory)
        throw std::bad_alloc();
    return memory;
}
void operator delete(void* memory) noexcept
{
    std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept
{
    std::free(memory);
}

namespace {

constexpr qint64 mebibyte = 1 << 20;
constexpr qint64 largestFile = 512 * mebibyte;

// As the kernel counts this process, in MiB; 0 where it does not.
qint64 StatusMebibytes(const char* name)
{
    for (const QByteArray& line : ReadFile("/proc/self/status").split('\n')) {
        if (line.startsWith(name))
            return line.mid(qstrlen(name)).simplified().split(' ').first().toLongLong() / 1024;
    }
    return 0;
}

// How far the memory in use rose while work was done.
qint64 PeakMebibytesOf(const std::function<void()>& work)
{
    QFile reset(QStringLiteral("/proc/self/clear_refs"));
    if (!reset.open(QIODevice::WriteOnly) || reset.write("5") != 1)
        return 0;
    reset.close();
    const qint64 before = StatusMebibytes("VmRSS:");
    work();
    return StatusMebibytes("VmHWM:") - before;
}

QByteArray LittleEndian(quint32 number)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setByteOrder(QDataStream::LittleEndian);
    stream << number;
    return bytes;
}

struct TiffEntry
{
    quint16 type; // 3: two bytes, 4: four bytes, 1: one byte
    quint32 count;
    quint32 value; // or where the values lie
};
using TiffEntries = QMap<quint16, TiffEntry>; // by tag

// That claims to have 1.9 GB.
QByteArray HugeProfile()
{
    return DeflatedText(QByteArray("\x70\0\0\0", 4) + QByteArray(124, 'p'));
}

// A gray picture of 100x100, with entries that come beside or take the place of its own.
QByteArray Tiff(const TiffEntries& changes)
{
    TiffEntries entries{{256, {4, 1, 100}}, {257, {4, 1, 100}},  {258, {3, 1, 8}},
                        {259, {3, 1, 1}},   {262, {3, 1, 1}},    {273, {4, 1, 400}},
                        {278, {4, 1, 100}}, {279, {4, 1, 10000}}};
    entries.insert(changes);
    QByteArray tiff = QByteArray("II*\0\x08\0\0\0", 8) + char(entries.size()) + '\0';
    for (auto entry = entries.cbegin(); entry != entries.cend(); ++entry)
        tiff += LittleEndian(entry.key() | quint32(entry->type) << 16) +
                LittleEndian(entry->count) + LittleEndian(entry->value);
    return tiff.leftJustified(400, '\0') + QByteArray(10000, '\x80');
}

// Eight bits a pixel, with fewer colours, all white, than the pixels name.
QByteArray IndexedBitmap(QSize size, quint32 colours, char index)
{
    QByteArray bytes = Bitmap(size, QByteArray(colours * 4, '\xFF') +
                                        QByteArray(size.width() * size.height(), index));
    bytes.replace(10, 4, LittleEndian(54 + colours * 4)).replace(46, 4, LittleEndian(colours));
    bytes[28] = 8;
    return bytes;
}

} // namespace

// Files that are made to take the reader's memory and time.
class TestHostilePictures : public QObject
{
    Q_OBJECT

private slots:
    void TextsOfPngNeverReachTheDecoder()
    {
        // As large as the decoder takes a single one.
        const QByteArray bomb = DeflatedText(QByteArray(7 * mebibyte, 'x'));
        const QByteArray international = "key" + QByteArray("\0\1\0\0\0", 5) + bomb.mid(5);
        const std::tuple<QByteArray, bool> rows[] = {
            {PngChunk("zTXt", "x", 0x7FFFFFFF), false}, // the file's end
            {PngChunk("sPLT", "x", 0x60000000), false},
            {PngChunk("zTXt", bomb).repeated(20), true},
            {PngChunk("iTXt", international).repeated(20), true},
            {PngChunk("iCCP", HugeProfile()), true},
            {PngChunk("iCCP", bomb), true}};
        for (const auto& [chunks, isReadable] : rows) {
            for (const char* before : {"IDAT", "IEND"}) {
                QByteArray bytes = png_;
                const QString path = Save(bytes.insert(PngChunkAt(bytes, before), chunks));
                const qint64 peak = PeakMebibytesOf([&] {
                    const bool isExpected = isReadable || qstrcmp(before, "IEND") == 0;
                    QCOMPARE(ReadPictureInfo(path).IsReadable(), isExpected);
                    QCOMPARE(!ReadPicture(path, {20, 15}).isNull(), isExpected);
                });
                QVERIFY2(peak < 48, qPrintable(QString::number(peak)));
            }
        }
    }

    void PngKeepsWhatPixelsNeed()
    {
        const QByteArray header = png_.left(PngChunkAt(png_, "pHYs"));
        const QByteArray resolution = PngChunk("pHYs", QByteArray(9, '\1'));
        const QByteArray profile =
            PngChunk("iCCP", DeflatedText(QByteArray("\0\0\1\0", 4) + QByteArray(252, 'p')));
        const QByteArray pixels = PngChunk("IDAT", "pixels");
        const QByteArray end = PngChunk("IEND", {});
        const QByteArray text = PngChunk("tEXt", QByteArray("a\0b", 3));
        QCOMPARE(Given(header + text + profile + resolution + text + profile + pixels + text +
                       resolution + pixels + end + text),
                 header + profile + resolution + pixels + pixels + end);
        QCOMPARE(Given(header + pixels + end.chopped(4)), header + pixels + end);
        // Cut off: what is there can be shown.
        QCOMPARE(Given(header + pixels.chopped(6)), header + pixels.chopped(6));
        QCOMPARE(Given(header + PngChunk("pHYs", "x", 9)), header + end);
        QCOMPARE(Given(header + PngChunk("iCCP", HugeProfile()) + pixels), header + pixels + end);
        QCOMPARE(Given(header + pixels), header + pixels + end);
        // A million of empty pieces are enough.
        const QByteArray empty = PngChunk("IDAT", {});
        QVERIFY(Given(header + empty.repeated(1100000)).size() < empty.size() * 1050000);
    }

    void NothingIsReadAfterThePicture()
    {
        for (const char* format : {"png", "webp", "jpeg", "gif", "bmp", "ppm"}) {
            const QByteArray bytes =
                qstrcmp(format, "gif") == 0 ? TwoFrameGif() : Encoded(picture_, format);
            const QString path = Save(bytes, 300 * mebibyte);
            const qint64 peak = PeakMebibytesOf([&] {
                QVERIFY2(!ReadPicture(path, {20, 15}).isNull(), format);
            });
            // A JPEG is in memory until its end is found.
            const bool isLoaded = qstrcmp(format, "jpeg") == 0;
            QVERIFY2(peak < (isLoaded ? 450 : 48), format);
            const QString tooLarge = Save(bytes, largestFile + 1);
            QVERIFY2(ReadPicture(tooLarge, {20, 15}).isNull(), format);
        }
        QVERIFY(
            !ReadPictureInfo(Save("P6 #" + QByteArray(5000, 'x') + "\n1 1 255\n123")).IsReadable());
        QVERIFY(ReadPictureInfo(Save("P6 #1 2 3\n1 1 255\n123")).IsReadable());
    }

    // Its decoder loads the file before it tells the size.
    void WebpThatClaimsAllIsNone()
    {
        const QByteArray bytes("RIFF\xF0\xFF\xFF\xFFWEBPVP8X\x0A\0\0\0", 20);
        const QString path = Save(bytes + QByteArray("\x12\0\0\0?\0\0?\0\0", 10), 400 * mebibyte);
        const qint64 peak = PeakMebibytesOf([&] { QVERIFY(!ReadPictureInfo(path).IsReadable()); });
        QVERIFY2(peak < 48, qPrintable(QString::number(peak)));
    }

    void SegmentsOfJpegStayOut()
    {
        const QByteArray comment = QByteArray("\xFF\xFE\xFF\xFF", 4) + QByteArray(0xFFFD, 'x');
        const QByteArray program = QByteArray("\xFF\xE5\xFF\xFF", 4) + QByteArray(0xFFFD, 'x');
        const QByteArray many = (comment + program).repeated(200);
        for (const bool progressive : {false, true}) {
            const QByteArray jpeg = WithOrientation(Encoded(picture_, "jpeg", progressive), 6);
            QByteArray bytes = jpeg;
            bytes.insert(bytes.lastIndexOf("\xFF\xD9"), many);
            bytes.insert(bytes.indexOf("\xFF\xDB"), many);
            QBuffer file(&bytes);
            QVERIFY(file.open(QIODevice::ReadOnly));
            QByteArray kept = ReadJpegHead(file);
            AppendJpegScans(kept, file);
            QVERIFY2(kept.size() <= jpeg.size(), qPrintable(QString::number(kept.size())));
            QCOMPARE(ReadPicture(Save(bytes), {30, 40}), ReadPicture(Save(jpeg), {30, 40}));
        }
    }

    void JpegInScansTellsItsCost()
    {
        QByteArray plain = Encoded(picture_, "jpeg");
        QByteArray jpeg = Encoded(picture_, "jpeg", true);
        QCOMPARE(JpegWholeBytes(plain), 0);
        plain[plain.indexOf("\xFF\xDA") + 4] = 1; // one colour in a scan
        // 40x30, colours at half the size: 3x2 units of 4 + 1 + 1 blocks.
        for (const QByteArray& inScans : {jpeg, plain, WithOrientation(jpeg, 6)})
            QCOMPARE(JpegWholeBytes(inScans), 3 * 2 * 6 * 128);
        for (const int side : {9000, 20000})
            QCOMPARE(ReadPictureInfo(Save(WithClaimedJpegSize(jpeg, {side, side}), 100 * mebibyte))
                         .IsReadable(),
                     side == 9000);
        QVERIFY(HasSensibleScans(jpeg));
        const qsizetype scan = jpeg.lastIndexOf("\xFF\xDA");
        jpeg = WithClaimedJpegSize(jpeg, {8000, 8000});
        jpeg.insert(scan, jpeg.mid(scan, 10).repeated(400));
        QVERIFY(!HasSensibleScans(jpeg));
        QVERIFY(ReadPicture(Save(jpeg), {20, 15}).isNull());
    }

    void TiffTellsItsCost()
    {
        QVERIFY(ReadPictureInfo(Save(Tiff({}))).IsReadable());
        TiffEntries overlapping;
        for (const quint16 tag : {700, 33723, 34377, 34675, 37724})
            overlapping[tag] = {1, quint32(250 * mebibyte), 1000};
        const TiffEntries largeTile{{322, {4, 1, 30000}}, {323, {4, 1, 30000}}, {324, {4, 1, 400}}};
        const TiffEntries manySamples{{259, {3, 1, 8}}, {277, {3, 1, 65535}}};
        for (const TiffEntries& changes : {overlapping, largeTile, manySamples}) {
            const QString path = Save(Tiff(changes), 300 * mebibyte);
            const qint64 peak = PeakMebibytesOf([&] {
                QVERIFY(!ReadPictureInfo(path).IsReadable());
                QVERIFY(ReadPicture(path, {20, 15}).isNull());
            });
            QVERIFY2(peak < 48, qPrintable(QString::number(peak)));
        }
    }

    void GifEndsAfterItsFirstPicture()
    {
        constexpr int headBytes = 19;
        const QByteArray transparency("\x21\xF9\x04\0\0\0\0\0", 8);
        const QByteArray first = TwoFrameGif().insert(headBytes, transparency);
        QByteArray bytes = first;
        QBuffer file(&bytes.insert(headBytes, "!\xFE" + ("\xFF" + QByteArray(255, 'x')) + '\0'));
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(ReadFirstOfGif(file), first.chopped(16) + ';'); // without the other and the end
    }

    // Never what the memory held before.
    void MissingColoursAndPixelsAreFilled()
    {
        // Drawn as it is, and much smaller: two ways through the decoder.
        for (const QSize size : {QSize(64, 60), QSize(8, 8)})
            QCOMPARE(ReadPicture(Save(IndexedBitmap({64, 60}, 1, '\xFE')), size).pixelColor(4, 4),
                     QColor(Qt::black));
        QByteArray bytes = IndexedBitmap({64, 60}, 1, '\0').replace(30, 4, LittleEndian(1));
        bytes = bytes.left(58) + QByteArray("\0\1", 2); // run lengths, of which none comes
        QCOMPARE(ReadPicture(Save(bytes), {64, 60}).pixelColor(9, 9), QColor(Qt::white));
    }

    void LargePicturesScaleInBands()
    {
        QImage image(4000, 5003, QImage::Format_Grayscale8);
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x)
                image.scanLine(y)[x] = uchar((x < 2000 ? y : 5002 - y) / 20);
        }
        const QSize size(301, 207);
        QImage scaled;
        const qint64 peak = PeakMebibytesOf([&] { scaled = ScaledToDraw(image, size); });
        QVERIFY2(peak < 60, qPrintable(QString::number(peak))); // 80 when converted whole
        QCOMPARE(scaled.size(), size);
        for (int y = 0; y < size.height(); ++y)
            QVERIFY(qAbs(qRed(scaled.pixel(9, y)) - (2 * y + 1) * 5003 / size.height() / 40) <= 2);
        QCOMPARE(ScaledToDraw(image, {40, 1}).size(), QSize(40, 1));
    }

    void LackOfMemoryIsNoError()
    {
        const QString path = Save(png_);
        isMemoryGone = true;
        const bool isReadable = ReadPictureInfo(path).IsReadable();
        const bool isDrawn = !ReadPicture(path, {20, 15}).isNull();
        isMemoryGone = false;
        QVERIFY(!isReadable);
        QVERIFY(!isDrawn);
        QVERIFY(ReadPictureInfo(path).IsReadable());
    }

private:
    // Followed by zeros up to that many bytes, which take no place on the disk.
    QString Save(const QByteArray& bytes, qint64 fileBytes = 0) const
    {
        const QString path = folder_.filePath("picture");
        WriteFile(path, bytes);
        if (fileBytes > bytes.size() && !QFile::resize(path, fileBytes))
            qFatal("The file cannot be made larger");
        return path;
    }

    static QByteArray Given(QByteArray file)
    {
        QBuffer buffer(&file);
        buffer.open(QIODevice::ReadOnly);
        return PngDevice(buffer).readAll();
    }

    QTemporaryDir folder_;
    const QImage picture_ = [] {
        QImage image(40, 30, QImage::Format_RGB32);
        image.fill(QColor(200, 120, 40));
        return image;
    }();
    const QByteArray png_ = Encoded(picture_, "png");
};

QTEST_GUILESS_MAIN(TestHostilePictures)
#include "test_hostile_pictures.moc"
