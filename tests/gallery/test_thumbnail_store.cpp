// SPDX-License-Identifier: MIT
#include "gallery/ThumbnailStore.h"
#include "platform/picture/SharedThumbnails.h"
#include "support/TestFiles.h"

#include <QTemporaryDir>
#include <QtTest>

#include <stdexcept>

using State = ThumbnailStore::State;

class TestThumbnailStore : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        folder_ = std::make_unique<QTemporaryDir>();
        qputenv("XDG_CACHE_HOME", QFile::encodeName(folder_->filePath("cache")));
        mayShare_ = mayWork_ = true;
        canFind_ = true;
        store_ = MakeStore();
    }

    void DecodesWhatIsWantedAndSharesIt()
    {
        const QString seen = Picture("seen.jpg", {600, 400}, Qt::red);
        const QString other = Picture("other.jpg", {600, 400}, Qt::red);
        WantAll({seen});
        QCOMPARE(store_->StateOf(seen), State::Sharp);
        QCOMPARE(store_->Find(seen).width(), 100);
        QCOMPARE(store_->StateOf(other), State::Unknown);
        QCOMPARE(FindSharedThumbnail(seen, ModifiedOf(seen), 100).size(), QSize(128, 85));
        QVERIFY(FindSharedThumbnail(other, ModifiedOf(other), 100).isNull());

        // Another store finds it; this one sees at once that it needs no decoding.
        ShareThumbnail(seen, ModifiedOf(seen), 128, Plain({128, 85}, Qt::blue));
        store_ = MakeStore();
        WantAll({seen});
        QCOMPARE(store_->Find(seen).pixelColor(50, 30), QColor(Qt::blue));
    }

    void LeavesNothingOfAProtectedAlbum()
    {
        mayShare_ = false;
        const QString seen = Picture("seen.jpg", {600, 400}, Qt::red);
        WantAll({seen});
        QCOMPARE(store_->StateOf(seen), State::Sharp);
        QVERIFY(!QFile::exists(folder_->filePath("cache")));
    }

    void WhatScrolledAwayIsNotDecoded()
    {
        QStringList first;
        QStringList second;
        for (int i = 0; i < 40; ++i) {
            first += Picture(QString("a%1.jpg").arg(i), {1500, 1000}, Qt::red);
            second += Picture(QString("b%1.jpg").arg(i), {300, 200}, Qt::red);
        }
        bool hasScrolled = false;
        const QObject here;
        connect(store_.get(), &ThumbnailStore::Changed, &here, [&](const QString& file) {
            if (!hasScrolled && store_->StateOf(file) == State::Sharp) {
                hasScrolled = true;
                store_->Want(second);
            }
        });
        WantAll(first);
        int sharp = 0;
        for (int i = 0; i < first.size(); ++i) {
            sharp += store_->StateOf(first[i]) == State::Sharp;
            QCOMPARE(store_->StateOf(second[i]), State::Sharp);
        }
        QCOMPARE(sharp, 1);
        WantAll({first[39]}); // and is when it comes back
        QCOMPARE(store_->StateOf(first[39]), State::Sharp);
    }

    void KeepsWhatIsSeenAndNoMoreThanItsRoom()
    {
        store_->SetRoom(5 * 100 * 67 * 4);
        QStringList files;
        for (int i = 0; i < 12; ++i)
            files += Picture(QString("%1.jpg").arg(i), {600, 400}, Qt::red);
        for (int i = 0; i < 4; ++i)
            WantAll(files.mid(i * 2, 2));
        QVERIFY(store_->Find(files[0]).isNull() && !store_->Find(files[7]).isNull());
        QVERIFY(!store_->Find(files[5]).isNull());
        WantAll(files);
        for (const QString& file : files)
            QVERIFY(!store_->Find(file).isNull());
    }

    void FilesThatChangeAreSeenAgain()
    {
        const QString path = Picture("a.jpg", {600, 400}, Qt::red);
        const QString broken = folder_->filePath("b.jpg");
        const QString missing = folder_->filePath("c.jpg");
        WriteFile(broken, "no picture");
        WantAll({path, broken, missing});
        QCOMPARE(store_->StateOf(broken), State::Unreadable);
        QCOMPARE(store_->StateOf(missing), State::Missing);
        QFile::remove(path);
        Picture("b.jpg", {400, 600}, Qt::blue);
        Picture("c.jpg", {600, 400}, Qt::blue);
        store_->Recheck();
        WantAll({path, broken, missing});
        QCOMPARE(store_->StateOf(path), State::Missing);
        QVERIFY(store_->Find(path).isNull());
        QCOMPARE(store_->Find(broken).height(), 100);
        QCOMPARE(store_->StateOf(missing), State::Sharp);
    }

    void AnotherSizeIsDecodedAnewAndShownBlurredMeanwhile()
    {
        const QString path = Picture("a.jpg", {600, 400}, Qt::red);
        WantAll({path});
        store_->SetSide(300);
        QCOMPARE(store_->StateOf(path), State::Blurred);
        QVERIFY(!store_->Find(path).isNull());
        WantAll({path});
        QCOMPARE(store_->Find(path).width(), 300);
        store_->SetSide(700); // more than others share, and than the picture has
        WantAll({path});
        QCOMPARE(store_->Find(path).size(), QSize(600, 400));
    }

    void RestsWhileNobodyLooksAndTriesAgainLater()
    {
        const QString path = Picture("a.jpg", {600, 400}, Qt::red);
        mayWork_ = false;
        WantAll({path});
        QCOMPARE(store_->StateOf(path), State::Unknown);
        mayWork_ = true;
        canFind_ = false;
        store_->Want({path});
        QTRY_VERIFY(failures_ > 0);
        QVERIFY(store_->IsWorking());
        canFind_ = true;
        QTRY_VERIFY(!store_->IsWorking());
        QCOMPARE(store_->StateOf(path), State::Sharp);
    }

private:
    std::unique_ptr<ThumbnailStore> MakeStore()
    {
        auto store = std::make_unique<ThumbnailStore>(
            ThumbnailStore::Surroundings{.findPath =
                                             [this](const QString& file) {
                                                 if (!canFind_ && ++failures_ > 0)
                                                     throw std::runtime_error("locked");
                                                 return file;
                                             },
                                         .mayShare = [this] { return mayShare_; },
                                         .mayWork = [this] { return mayWork_; }});
        store->SetSide(100);
        return store;
    }

    void WantAll(const QStringList& files)
    {
        store_->Want(files);
        QTRY_VERIFY(!store_->IsWorking());
    }

    static QImage Plain(QSize size, const QColor& color)
    {
        QImage image(size, QImage::Format_RGB32);
        image.fill(color);
        return image;
    }

    QString Picture(const QString& name, QSize size, const QColor& color) const
    {
        const QString path = folder_->filePath(name);
        PaintPicture(path, size, color);
        return path;
    }

    static qint64 ModifiedOf(const QString& path)
    {
        return QFileInfo(path).lastModified().toSecsSinceEpoch();
    }

    std::unique_ptr<QTemporaryDir> folder_;
    std::unique_ptr<ThumbnailStore> store_;
    bool mayShare_ = true;
    bool mayWork_ = true;
    bool canFind_ = true;
    int failures_ = 0;
};

QTEST_GUILESS_MAIN(TestThumbnailStore)
#include "test_thumbnail_store.moc"
