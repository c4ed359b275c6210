// SPDX-License-Identifier: MIT
#include "PictureBytes.h"
#include "platform/picture/EmbeddedThumbnail.h"
#include "platform/picture/PictureReader.h"
#include "platform/picture/SharedThumbnails.h"
#include "support/TestFiles.h"

#include <QImage>
#include <QPainter>
#include <QTemporaryDir>
#include <QtTest>

#include <random>

namespace {

// Four corners of different colours: no turn is like another.
QImage Corners(QSize size)
{
    QImage image(size, QImage::Format_RGB32);
    QPainter painter(&image);
    const QRect half(QPoint(), size / 2);
    painter.fillRect(image.rect(), Qt::white);
    painter.fillRect(half, Qt::red);
    painter.fillRect(half.translated(size.width() / 2, 0), Qt::green);
    painter.fillRect(half.translated(0, size.height() / 2), Qt::blue);
    return image;
}

bool IsLike(const QImage& image, const QImage& other)
{
    const QImage small = image.scaled(4, 4, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    const QImage same = other.scaled(4, 4, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    int apart = 0;
    for (const QPoint corner : {QPoint(0, 0), QPoint(3, 0), QPoint(0, 3), QPoint(3, 3)}) {
        const QColor a = small.pixelColor(corner);
        const QColor b = same.pixelColor(corner);
        apart = std::max({apart, qAbs(a.red() - b.red()), qAbs(a.green() - b.green()),
                          qAbs(a.blue() - b.blue())});
    }
    return apart < 40;
}

} // namespace

class TestThumbnails : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        folder_ = std::make_unique<QTemporaryDir>();
        qputenv("XDG_CACHE_HOME", QFile::encodeName(folder_->filePath("cache")));
    }

    void EmbeddedOnesAreTurnedLikeTheirPicture()
    {
        const QByteArray thumbnail = Encoded(Corners({160, 120}), "jpg");
        const QString path = folder_->filePath("a.jpg");
        for (char orientation = 0; orientation <= 9; ++orientation) {
            WriteFile(path,
                      WithThumbnail(Encoded(Corners({800, 600}), "jpg"), thumbnail, orientation));
            const QSize size = ReadPictureInfo(path).size;
            const QImage embedded = ReadEmbeddedThumbnail(path, size);
            QCOMPARE(embedded.size(), size / 5);
            QVERIFY2(IsLike(embedded, ReadPicture(path, size)),
                     qPrintable(QString::number(orientation)));
        }
    }

    void BlackBarsAreCutAndOtherPicturesRefused()
    {
        QImage barred(160, 120, QImage::Format_RGB32);
        barred.fill(Qt::black);
        QPainter(&barred).drawImage(0, 7, Corners({160, 107}));
        const QString path = folder_->filePath("a.jpg");
        const QByteArray picture = Encoded(Corners({900, 600}), "jpg");
        WriteFile(path, WithThumbnail(picture, Encoded(barred, "jpg"), 1));
        const QImage cut = ReadEmbeddedThumbnail(path, {900, 600});
        QVERIFY(qAbs(cut.width() - cut.height() * 3 / 2) < 6 && cut.height() > 100);
        QVERIFY(IsLike(cut, Corners({900, 600})));
        // Cropped since, by a program that left the thumbnail.
        WriteFile(path, WithThumbnail(picture, Encoded(Corners({160, 120}), "jpg"), 1));
        QVERIFY(ReadEmbeddedThumbnail(path, {900, 600}).isNull());
        QVERIFY(!ReadEmbeddedThumbnail(path, {800, 600}).isNull());
    }

    // Every number of the block may be wrong.
    void DamagedBlocksGiveAnImageOrNone()
    {
        const QString path = folder_->filePath("a.jpg");
        const QByteArray picture = Encoded(Corners({80, 60}), "jpg");
        const QByteArray thumbnail = Encoded(Corners({40, 30}), "jpg");
        const QByteArray sound = WithThumbnail(picture, thumbnail, 6);
        std::mt19937 random;
        int shown = 0;
        for (int trial = 0; trial < 4000; ++trial) {
            QByteArray bytes = sound;
            for (int i = 0; i < 1 + trial % 3; ++i)
                bytes[2 + qsizetype(random() % 90)] = char(trial % 2 ? random() : 0xFF);
            if (trial % 5 == 0)
                bytes.truncate(qsizetype(random() % 400));
            WriteFile(path, bytes);
            const QImage image = ReadEmbeddedThumbnail(path, {60, 80});
            QVERIFY(image.width() <= 640 && image.height() <= 640);
            shown += !image.isNull();
        }
        QVERIFY(shown > 100 && shown < 4000);
        for (const QByteArray& odd : {Encoded(Corners({800, 600}), "jpg"), // larger than any
                                      Encoded(Corners({40, 30}), "jpg", true),
                                      WithClaimedJpegSize(thumbnail, {60000, 45000})}) {
            WriteFile(path, WithThumbnail(picture, odd, 1));
            QVERIFY(ReadEmbeddedThumbnail(path, {80, 60}).isNull());
        }
    }

    // The names are those of GLib's g_filename_to_uri.
    void UrisAreEscapedLikeThoseOfFileManagers()
    {
        QCOMPARE(ThumbnailUri("/p/a b/é.jpg"), QByteArray("file:///p/a%20b/%C3%A9.jpg"));
        QCOMPARE(ThumbnailUri("/p//x/../[1];#?%\"<>\\^`{|}~!$&'()*+,-.:=@_Aa0"),
                 QByteArray("file:///p/%5B1%5D%3B%23%3F%25%22%3C%3E%5C%5E%60%7B%7C%7D~!$&'()*+,-.:="
                            "@_Aa0"));
    }

    void SharedOnesAreFoundWhileTheFileIsTheSame()
    {
        const QString path = "/pictures/a b.jpg";
        const QImage image = Corners({256, 192});
        QVERIFY(FindSharedThumbnail(path, 1000, 200).isNull());
        QVERIFY(ShareThumbnail(path, 1000, SharedSideFor(200), image));
        // The sum of "file:///pictures/a%20b.jpg".
        const QString stored = folder_->filePath("cache/thumbnails/large/" + Sum(path) + ".png");
        QVERIFY(QFile::exists(stored));
        QCOMPARE(FindSharedThumbnail(path, 1000, 200), image);
        QCOMPARE(FindSharedThumbnail(path, 1000, 100), image); // a larger one does
        QVERIFY(FindSharedThumbnail(path, 1000, 300).isNull());
        QVERIFY(FindSharedThumbnail(path, 1001, 200).isNull());
        QFile::rename(stored,
                      folder_->filePath("cache/thumbnails/large/" + Sum("/b.jpg") + ".png"));
        QVERIFY(FindSharedThumbnail("/b.jpg", 1000, 200).isNull()); // of another file
        QVERIFY(ShareThumbnail("/b.jpg", 1000, 256, Corners({64, 64})));
        QCOMPARE(FindSharedThumbnail("/b.jpg", 1000, 200).size(), QSize(64, 64));
    }

    void TheStoreIsTheUsersAlone()
    {
        const auto ofOthers = QFile::ReadGroup | QFile::ReadOther | QFile::WriteGroup |
                              QFile::WriteOther | QFile::ExeGroup | QFile::ExeOther;
        QVERIFY(ShareThumbnail("/a.jpg", 1, 128, Corners({128, 96})));
        const QString shelf = folder_->filePath("cache/thumbnails/normal");
        for (const QString& path :
             {folder_->filePath("cache/thumbnails"), shelf, shelf + '/' + Sum("/a.jpg") + ".png"})
            QVERIFY2(!(QFile::permissions(path) & ofOthers), qPrintable(path));
        QVERIFY(ShareThumbnail(shelf + "/x.png", 1, 128, Corners({128, 96})));
        QCOMPARE(QDir(shelf).entryList(QDir::Files).size(), 1); // none of a thumbnail, none beside
        QFile::remove(shelf + '/' + Sum("/a.jpg") + ".png");
        QVERIFY(QDir(shelf).removeRecursively());
        WriteFile(shelf, "no folder");
        QVERIFY(!ShareThumbnail("/a.jpg", 1, 128, Corners({128, 96})));
    }

private:
    static QString Sum(const QString& path)
    {
        return QCryptographicHash::hash(ThumbnailUri(path), QCryptographicHash::Md5).toHex();
    }

    std::unique_ptr<QTemporaryDir> folder_;
};

QTEST_MAIN(TestThumbnails)
#include "test_thumbnails.moc"
