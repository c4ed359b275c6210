// SPDX-License-Identifier: MIT
#include "PictureBytes.h"
#include "platform/picture/LookAhead.h"
#include "support/TestFiles.h"

#include <QImage>
#include <QTemporaryDir>
#include <QtTest>

#include <ctime>
#include <random>
#include <stdexcept>

using namespace std::chrono_literals;

// That the same pictures are shown with readiness and without is for readiness_fuzz to see.
class TestReadyPictures : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        folder_ = std::make_unique<QTemporaryDir>();
        pictures_.emplace();
        pictures_->SetRoom(size_, 4);
    }

    void PausesBetweenSlices()
    {
        const PictureRequest noise = Noise("noise.jpg");
        QVERIFY(pictures_->Want({noise}));
        QVERIFY(pictures_->Work(1ms)); // far too short for it
        const std::clock_t before = std::clock();
        QTest::qSleep(100);
        QVERIFY2(std::clock() - before < CLOCKS_PER_SEC / 50, "a thread runs on");
        while (pictures_->Work(1ms))
            QVERIFY(!pictures_->IsReady(noise));
        QVERIFY(pictures_->IsReady(noise));
        QCOMPARE(pictures_->Take({noise}).front(), ReadPicture(noise.path, noise.size));
        QVERIFY(pictures_->Want({Noise("left.jpg")}));
        QVERIFY(pictures_->Work(1ms)); // and is given up half-way
    }

    void FinishesWhatIsAskedFor()
    {
        const std::vector<PictureRequest> noises{Noise("a.jpg"), Noise("b.png"), Noise("c.jpg")};
        QVERIFY(pictures_->Want(noises));
        QVERIFY(pictures_->Work(1ms)); // has begun two of them
        const std::vector<PictureRequest> asked{noises[1], noises[2], Plain("d.png"), noises[1]};
        const std::vector<QImage> images = pictures_->Take(asked);
        for (std::size_t i = 0; i < asked.size(); ++i)
            QCOMPARE(images[i], ReadPicture(asked[i].path, asked[i].size));
        while (pictures_->Work(50ms))
            ;
        QVERIFY(pictures_->IsReady(noises[0]));
    }

    void LeavesWhatItCannotPause()
    {
        const QString path = folder_->filePath("endless.bmp");
        WriteFile(path, Bitmap({INT_MAX, INT_MAX}, {}));
        const std::vector<PictureRequest> requests{{path, size_}, {"/nowhere.jpg", size_}};
        QVERIFY(pictures_->Want(requests));
        QVERIFY(!pictures_->Work(10s));
        for (const PictureRequest& request : requests)
            QVERIFY(!pictures_->IsReady(request) && pictures_->Take({request}).front().isNull());
    }

    void HoldsNoMoreThanItsRoom()
    {
        const std::vector<PictureRequest> requests{Plain("a.png"), Plain("b.png"), Plain("c.png"),
                                                   Plain("d.png"), Plain("e.png")};
        QVERIFY(!pictures_->Want(requests));
        for (const PictureRequest& request : requests)
            QCOMPARE(pictures_->Want({request}), request.path != requests[4].path);
        QVERIFY(!pictures_->Work(10s));
        QVERIFY(pictures_->IsReady(requests[3]) && !pictures_->IsReady(requests[4]));
        pictures_->Take({requests[0]}); // is on show now, and leaves its room
        QVERIFY(pictures_->Want({requests[4]}));
        pictures_->WantNothing();
        QVERIFY(pictures_->Want({requests[3], requests[4]}));
        QVERIFY(pictures_->IsReady(requests[1]) && pictures_->IsReady(requests[3]));
        pictures_->DropUnwanted();
        QVERIFY(!pictures_->IsReady(requests[1]) && pictures_->IsReady(requests[0]));
    }

    void ForgetsAChangedFile()
    {
        const PictureRequest request = Plain("a.png");
        const PictureRequest gone = Plain("b.png");
        QVERIFY(pictures_->Want({request, gone}));
        QVERIFY(!pictures_->Work(10s));
        PaintPicture(request.path, {300, 200}, Qt::red);
        QFile::remove(gone.path);
        QVERIFY(!pictures_->IsReady(request) && !pictures_->IsReady(gone));
        const std::vector<QImage> images = pictures_->Take({request, gone});
        QCOMPARE(images[0].pixelColor(5, 5), QColor(Qt::red));
        QVERIFY(images[1].isNull());
        QFile::remove(request.path); // which it has on show
        QVERIFY(pictures_->Take({request}).front().isNull());
    }

    void RestsWhenNothingIsLeft()
    {
        bool mayWork = false;
        LookAhead ahead([&mayWork] { return mayWork; });
        ahead.SetRoom(size_, 2);
        int plans = 0;
        const auto begin = [&] {
            ahead.Begin({[&]() -> std::vector<PictureRequest> { throw std::runtime_error("gone"); },
                         [&]() -> std::vector<PictureRequest> {
                             ++plans;
                             return {Plain("a.png")};
                         }});
        };
        begin();
        QTRY_VERIFY(!ahead.IsWorking());
        QCOMPARE(plans, 0);
        mayWork = true;
        begin();
        QTRY_VERIFY(!ahead.IsWorking());
        QCOMPARE(plans, 1);
    }

private:
    static constexpr QSize size_{150, 100};

    PictureRequest Plain(const QString& name) const
    {
        const QString path = folder_->filePath(name);
        PaintPicture(path, {300, 200}, Qt::darkCyan);
        return {path, size_};
    }

    // Takes much longer than a slice.
    PictureRequest Noise(const QString& name) const
    {
        QImage image(2000, 1500, QImage::Format_RGB32);
        std::mt19937 random;
        for (int y = 0; y < image.height(); ++y) {
            auto* line = reinterpret_cast<std::uint32_t*>(image.scanLine(y));
            std::generate(line, line + image.width(), std::ref(random));
        }
        const QString path = folder_->filePath(name);
        image.save(path);
        return {path, size_};
    }

    std::unique_ptr<QTemporaryDir> folder_;
    std::optional<ReadyPictures> pictures_;
};

QTEST_GUILESS_MAIN(TestReadyPictures)
#include "test_ready_pictures.moc"
