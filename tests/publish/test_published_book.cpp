// SPDX-License-Identifier: MIT
// The book as a file: what it says, which bytes of the pictures it holds, and what happens when it
// cannot be made.
#include "BookReading.h"
#include "publish/book/BookFile.h"
#include "publish/book/PublishedBook.h"
#include "support/Rows.h"
#include "support/TestFiles.h"

#include <QBuffer>
#include <QColorSpace>
#include <QTemporaryDir>
#include <QtTest>

#include <array>
#include <csignal>
#include <map>
#include <random>
#include <thread>
#include <utility>

#include <sys/resource.h>

namespace {

constexpr auto goOn = [](int, int) { return true; };

PublishedParagraph Paragraph(const QString& text, const QStringList& files = {},
                             const QString& legend = {})
{
    PublishedParagraph paragraph{1, text, {}, int(files.size())};
    for (const QString& file : files)
        paragraph.pictures.push_back({file, file, legend, text});
    return paragraph;
}

// With smooth changes and fine ones, so that no scan is trivial.
QByteArray MakeJpeg(QSize size, QImage::Format format = QImage::Format_RGB32)
{
    QImage image(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x)
            image.setPixel(x, y, qRgb(x * 255 / size.width(), y * 255 / size.height(), x * y % 97));
    }
    QByteArray bytes;
    QBuffer buffer(&bytes);
    image.convertToFormat(format).save(&buffer, "jpeg", 90);
    return bytes;
}

QByteArray Segment(char marker, const QByteArray& body)
{
    const auto length = body.size() + 2;
    return QByteArray("\xFF") + marker + char(length >> 8) + char(length & 0xff) + body;
}

// What cameras and programs add: EXIF with a turn, a camera and a small picture, XMP, a comment,
// and a second picture after the end.
QByteArray WithMetadata(const QByteArray& jpeg, char turn)
{
    const QByteArray exif =
        QByteArray("Exif\0\0II*\0\x08\0\0\0\x01\0\x12\x01\x03\0\x01\0\0\0", 24) + turn +
        QByteArray(7, '\0') + "SECRET camera";
    const qsizetype afterJfif = 2 + 2 + 16;
    const QByteArray withSmallPicture = jpeg.mid(6, 12) + QByteArray("\2\1SECRET", 8);
    return jpeg.first(2) + Segment('\xE0', withSmallPicture) + Segment('\xE1', exif) +
           Segment('\xE1', "http://ns.adobe.com/xap/1.0/ SECRET place") +
           Segment('\xED', "Photoshop SECRET") + Segment('\xFE', "SECRET") + jpeg.mid(afterJfif) +
           "SECRET" + jpeg;
}

} // namespace

class TestPublishedBook : public QObject
{
    Q_OBJECT

private:
    QString PathOf(const QString& name) const { return folder_->filePath(name); }

    QString Write(const QString& name, const QByteArray& bytes) const
    {
        WriteFile(PathOf(name), bytes);
        return PathOf(name);
    }

    QString Paint(const QString& name, QSize size = {300, 200}) const
    {
        PaintPicture(PathOf(name), size, Qt::darkCyan);
        return PathOf(name);
    }

    static PublishedStory Story(std::vector<PublishedParagraph> paragraphs)
    {
        return {"My Story", QLocale("en"), {{1, "One", std::move(paragraphs)}}, {}};
    }

    FoundBook Publish(const PublishedStory& story, const BookOptions& options = {},
                      PublishReport* report = nullptr) const
    {
        const PublishReport made = PublishBook(story, options, PathOf("book.pdf"), goOn);
        if (report)
            *report = made;
        return ReadBook(PathOf("book.pdf"));
    }

    std::unique_ptr<QTemporaryDir> folder_;

private slots:
    void init() { folder_ = std::make_unique<QTemporaryDir>(); }

    void TellsTheStoryInItsOrder()
    {
        const QString picture = Paint("a.png");
        const QString hostile = "<b>&amp;</b> \\(x\\) %PDF endobj " + QString(3000, 'w');
        PublishedStory story = Story({Paragraph("Officially first", {picture}, "A legend"),
                                      Paragraph(hostile), Paragraph("Third", {picture})});
        story.title = QString::fromUtf8("Die (Größe) \\ 水");
        story.language = QLocale("fr_CA");
        story.chapters.push_back({2, QString::fromUtf8("Été <i>"), {}});
        story.chapters.push_back(
            {3, QString::fromUtf8("שנה"), {Paragraph(QString::fromUtf8("ماء"))}});
        const FoundBook book = Publish(story);
        QCOMPARE(book.title, story.title);
        QCOMPARE(book.language, "fr-CA");
        QCOMPARE(book.properties, QStringList({"/Creator", "/Title"}));
        QVERIFY(book.pages[0].startsWith("Die (Größe) \\ "));
        QVERIFY(!book.pages[0].contains('1'));
        const int last = int(book.pages.size()) - 1;
        QVERIFY(book.pages[1].startsWith(QString::fromUtf8("2\nContents\nOne\nÉté <i>\n")));
        QVERIFY(book.pages[1].endsWith(QString("\n3\n%1\n%2\n").arg(last).arg(last + 1)));
        const QString text = book.pages.mid(2).join("");
        const QStringList expected{"One",
                                   "A legend",
                                   "Officially first",
                                   "<b>&amp;</b> \\(x\\) %PDF",
                                   "Third",
                                   QString::fromUtf8("Été <i>")};
        qsizetype at = 0;
        for (const QString& each : expected) {
            const InRow row(each);
            at = text.indexOf(each, at);
            QVERIFY(at >= 0);
        }
        QVERIFY(text.count('w') == 3000 && !text.contains(QString(100, 'w')));
        QCOMPARE(book.outline, QStringList({"One:2", QString::fromUtf8("Été <i>:%1").arg(last - 1),
                                            QString::fromUtf8("שנה:%1").arg(last)}));
        QCOMPARE(book.links.size(), 3);
        QCOMPARE(book.links[1].from, 1);
        QCOMPARE(book.links[1].to, last - 1);
        QCOMPARE(book.pictures.size(), 2);
        QCOMPARE(book.pictures[0].bytes, book.pictures[1].bytes);
        const QByteArray bytes = ReadFile(PathOf("book.pdf"));
        std::thread([&] { Publish(story); }).join();
        QCOMPARE(ReadFile(PathOf("book.pdf")), bytes);
        QVERIFY(Publish({}).pages[0].contains("This story has no chapters."));
    }

    void OriginalsKeepTheirBytesAndLoseTheirSecrets()
    {
        const QSize size(90, 60);
        for (int turn = 1; turn <= 8; ++turn) {
            const InRow row(QString::number(turn));
            const QByteArray plain =
                MakeJpeg(size, turn == 2 ? QImage::Format_Grayscale8 : QImage::Format_RGB32);
            const FoundBook book =
                Publish(Story({Paragraph("", {Write("a.jpg", WithMetadata(plain, char(turn)))})}),
                        {.resolution = turn == 3 ? 300 : 0});
            QCOMPARE(book.pictures.size(), 1);
            const FoundPicture& picture = book.pictures[0];
            QCOMPARE(picture.bytes, plain);
            QCOMPARE(picture.size, size);
            QCOMPARE(picture.space, turn == 2 ? "/DeviceGray" : "/DeviceRGB");
            QVERIFY(!ReadFile(PathOf("book.pdf")).contains("SECRET"));
            // Where the first pixel of the file stands, and in which direction its line runs.
            const QRectF place = picture.matrix.mapRect(QRectF(0, 0, 1, 1));
            const QPointF corner = picture.matrix.map(QPointF(0, 1));
            QCOMPARE(place.size(), turn < 5 ? QSizeF(90, 60) : QSizeF(60, 90));
            QCOMPARE(picture.matrix.m11() == 0, turn >= 5);
            QCOMPARE(corner.x() == place.left(), turn % 4 < 2);
            QCOMPARE(corner.y() == place.bottom(), turn % 4 == 1 || turn % 4 == 2);
        }
    }

    void WhatCannotBePassedIsMadeAnew()
    {
        const QByteArray plain = MakeJpeg({400, 300});
        const auto only = [this](const QByteArray& bytes, int resolution = 0) {
            const QString path = Write("a.jpg", bytes);
            return Publish(Story({Paragraph("", {path})}), {.resolution = resolution})
                .pictures.at(0);
        };
        const FoundPicture scaled = only(plain, 36);
        QCOMPARE(scaled.size.width(), qRound(scaled.matrix.m11() / 2));
        QCOMPARE(QImage::fromData(scaled.bytes).size(), scaled.size);
        // Viewers would disagree about the colours.
        const QByteArray adobe = Segment('\xEE', QByteArray("Adobe\0\x64\0\0\0\0\0", 12));
        QVERIFY(!only(plain.first(20) + adobe + plain.mid(20)).bytes.contains("Adobe"));
        // The profile goes with the bytes; one whose parts are not all there counts for nothing.
        QImage image = QImage::fromData(plain);
        image.setColorSpace(QColorSpace::AdobeRgb);
        QVERIFY(image.save(PathOf("profile.jpg")));
        QByteArray withProfile = ReadFile(PathOf("profile.jpg"));
        const FoundPicture coloured = only(withProfile);
        QCOMPARE(coloured.bytes, withProfile);
        QVERIFY(coloured.space.contains("/ICCBased"));
        withProfile[withProfile.indexOf("ICC_PROFILE") + 13] = 2;
        QCOMPARE(only(withProfile).space, "/DeviceRGB");
        image = QImage(80, 40, QImage::Format_ARGB32);
        image.fill(Qt::transparent);
        QVERIFY(image.save(PathOf("clear.png")));
        const QImage clear = QImage::fromData(only(ReadFile(PathOf("clear.png"))).bytes);
        QCOMPARE(clear.size(), image.size());
        QCOMPARE(clear.pixelColor(40, 20), QColor(Qt::white));
    }

    void WhatIsMissingOrDamagedIsNamedAndHasAPlace()
    {
        const QByteArray whole = MakeJpeg({120, 90});
        const QString cut = Write("cut.jpg", WithMetadata(whole, 6).first(whole.size() * 3 / 4));
        const QString text = Write("text.jpg", "no picture");
        const QByteArray png = ReadFile(Paint("whole.png"));
        const QString half = Write("half.png", png.first(png.size() / 2));
        const QString gone = PathOf("gone.jpg");
        PublishReport report;
        const FoundBook book =
            Publish(Story({Paragraph("Text", {gone, cut, text, half, gone})}), {}, &report);
        QCOMPARE(report.missing, QStringList(gone));
        QCOMPARE(report.damaged, QStringList({text, half}));
        QCOMPARE(report.pictures, 1);
        QVERIFY(book.pages[2].contains("This picture is missing.\ngone.jpg"));
        QVERIFY(book.pages[2].contains("This picture cannot be read.\ntext.jpg"));
        // What can be seen of the one that is cut off stands turned as it was, in a sound file.
        QCOMPARE(book.pictures.size(), 2);
        const QImage seen = QImage::fromData(book.pictures[0].bytes);
        QCOMPARE(seen.size(), QSize(120, 90));
        QVERIFY(book.pictures[0].bytes.endsWith("\xFF\xD9"));
        const QColor wanted = QImage::fromData(whole).pixelColor(100, 4);
        const QColor found = seen.pixelColor(100, 4);
        QVERIFY(qAbs(wanted.red() - found.red()) < 30 && qAbs(wanted.green() - found.green()) < 30);
    }

    void AStopLeavesWhatWasThere()
    {
        const PublishedStory story =
            Story({Paragraph("Text", {Paint("a.png"), Write("b.jpg", MakeJpeg({90, 60})),
                                      Paint("c.png", {900, 700}), PathOf("gone.png")})});
        const QStringList before = QDir(folder_->path()).entryList(QDir::Files) << "book.pdf";
        WriteFile(PathOf("book.pdf"), "old");
        int stopped = 0;
        for (bool isWhole = false; !isWhole; ++stopped) {
            int calls = 0;
            int counted = 0;
            const auto progress = [&](int done, int) {
                counted = done;
                return calls++ < stopped;
            };
            isWhole = !PublishBook(story, {}, PathOf("book.pdf"), progress).isStopped;
            QVERIFY(!isWhole || counted == 4);
            QCOMPARE(ReadFile(PathOf("book.pdf")) == "old", !isWhole);
            QCOMPARE(QDir(folder_->path())
                         .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot)
                         .size(),
                     before.size());
        }
        QVERIFY(stopped > 3);
    }

    void AFailureLeavesWhatWasThere()
    {
        const QString picture = Write("a.jpg", MakeJpeg({600, 400}));
        const PublishedStory story = Story({Paragraph("Text", {picture})});
        const auto fails = [&](const QString& target, const QString& reason) {
            const InRow row(reason);
            QString text;
            try {
                PublishBook(story, {}, target, goOn);
            } catch (const PublishError& error) {
                text = error.GetText();
            }
            QCOMPARE(text, QString("The book \"%1\" cannot be written: %2").arg(target, reason));
        };
        WriteFile(PathOf("book.pdf"), "old");
        fails(PathOf("none/book.pdf"), "No such file or directory");
        fails(PathOf(QString(300, 'n')), "File name too long");
        fails(folder_->path(), "Is a directory");
        QFile::setPermissions(PathOf("book.pdf"), QFile::ReadOwner);
        fails(PathOf("book.pdf"), "Permission denied");
        QFile::setPermissions(PathOf("book.pdf"), QFile::ReadOwner | QFile::WriteOwner);
        {
            // As on a disk that becomes full.
            signal(SIGXFSZ, SIG_IGN);
            const auto limit = [](rlim_t bytes) {
                const rlimit limited{bytes, RLIM_INFINITY};
                setrlimit(RLIMIT_FSIZE, &limited);
            };
            const auto lift = qScopeGuard([&] { limit(RLIM_INFINITY); });
            limit(rlim_t(QFileInfo(picture).size()) + 1000);
            fails(PathOf("book.pdf"), "File too large");
        }
        QCOMPARE(ReadFile(PathOf("book.pdf")), "old");
        QCOMPARE(
            QDir(folder_->path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
            QStringList({"a.jpg", "book.pdf"}));
    }

    void TheCheckFindsWhatIsNotWhole()
    {
        const PublishedStory story =
            Story({Paragraph("Text", {Paint("a.png")}),
                   Paragraph("More", {Write("b.jpg", MakeJpeg({90, 60}))})});
        const PublishProgress none;
        BookProgress progress(none, 0);
        BookPictures pictures;
        BookPainting painting({QPageSize(QPageSize::A5), QPageLayout::Portrait, {}});
        const LaidOutBook laidOut = LayOutBook(
            story, {420, 595}, pictures, [&](const BookPage& page) { painting.Add(page); },
            progress);
        const QString path = Write("book.pdf", {});
        const BookFacts facts =
            WriteBookFile(path, story, painting.Finish(), laidOut, pictures, 0, progress);
        CheckBook(path, facts, progress);
        const QByteArray whole = ReadFile(path);
        const auto refuses = [&](const QByteArray& bytes, BookFacts expected) {
            WriteFile(path, bytes);
            expected.bytes = bytes.size();
            QVERIFY_THROWS_EXCEPTION(PublishError, CheckBook(path, expected, progress));
        };
        WriteFile(path, whole + "\n");
        QVERIFY_THROWS_EXCEPTION(PublishError, CheckBook(path, facts, progress));
        refuses(whole.first(whole.size() - 40), facts);
        const qsizetype picture = whole.indexOf("\xFF\xD8\xFF");
        QByteArray changed = whole;
        changed.replace(picture, 2, QByteArray(2, '\0'));
        refuses(changed, facts);
        changed = whole;
        changed.replace(whole.lastIndexOf("\xFF\xD9"), 2, QByteArray(2, '\0'));
        refuses(changed, facts);
        changed = whole;
        changed.replace("/Length ", "/Lenght ");
        refuses(changed, facts);
        changed = whole; // of which most viewers would say nothing
        changed.replace("\xFF\xD9\nendstream\nendobj", "\xFF\xD9\nendstream\nendobk");
        QVERIFY(changed != whole);
        refuses(changed, facts);
        BookFacts more = facts;
        more.pages.emplace_back();
        refuses(whole, more);
        more = facts;
        more.chapters = 0;
        refuses(whole, more);
        more = facts;
        more.pages.back().clear();
        refuses(whole, more);
    }

    // On whatever paper: nothing lies over anything else or beyond the margins, and every line of
    // every text and every picture is there, once.
    void NothingIsLostOrOverlaps()
    {
        QStringList files{PathOf("gone.jpg")};
        for (const QSize size : {QSize(300, 200), QSize(200, 300), QSize(2000, 90), QSize(30, 900),
                                 QSize(1, 1), QSize(800, 600), QSize(900, 500)})
            files += Paint(QString("%1x%2.png").arg(size.width()).arg(size.height()), size);
        std::mt19937 random(1);
        const auto upTo = [&random](int most) { return int(random() % unsigned(most + 1)); };
        for (int round = 0; round < 24; ++round) {
            const InRow row(QString::number(round));
            PublishedStory story{QString("Title ").repeated(upTo(20)), QLocale("en"), {}, {}};
            int shown = 0;
            for (int i = upTo(4); i >= 0; --i) {
                PublishedChapter chapter{i, QString("Chapter ").repeated(upTo(30)), {}};
                for (int j = upTo(8); j > 0; --j) {
                    QStringList chosen;
                    for (int k = upTo(1) * upTo(24); k > 0; --k)
                        chosen += files[upTo(int(files.size()) - 1)];
                    shown += int(chosen.size());
                    chapter.paragraphs.push_back(Paragraph(
                        QString("words of text\n").repeated(upTo(1) * upTo(1) * upTo(90)) +
                            QString("flow on ").repeated(upTo(60)),
                        chosen, QString("legend ").repeated(upTo(9))));
                }
                story.chapters.push_back(chapter);
            }
            const QSizeF paper = std::array{QSizeF(595, 842), QSizeF(842, 595), QSizeF(420, 595),
                                            QSizeF(792, 612)}[std::size_t(round % 4)];
            const PublishProgress none;
            BookProgress progress(none, 0);
            BookPictures pictures;
            std::vector<std::shared_ptr<const BookText>> kept; // no other takes their addresses
            std::map<const BookText*, int> lines;
            int covers = 0;
            LayOutBook(
                story, paper, pictures,
                [&](const BookPage& page) {
                    covers += kept.empty() ? int(page.pictures.size()) : 0;
                    std::vector<QRectF> places = page.placeholders;
                    shown -= int(page.pictures.size() + page.placeholders.size());
                    for (const BookPage::Picture& each : page.pictures)
                        places.push_back(each.place);
                    for (const BookPage::Text& text : page.texts) {
                        const QRectF place(
                            text.place,
                            QSizeF(text.text->Width(), text.text->HeightOf(text.first, text.last)));
                        const auto holds = [&place](const QRectF& each) {
                            return each.contains(place);
                        };
                        if (std::none_of(page.placeholders.begin(), page.placeholders.end(), holds))
                            places.push_back(place);
                        kept.push_back(text.text);
                        QCOMPARE(text.first, std::exchange(lines[text.text.get()], text.last));
                    }
                    for (std::size_t i = 0; i < places.size(); ++i) {
                        QVERIFY(QRectF(QPointF(9, 9), paper - QSizeF(18, 18)).contains(places[i]));
                        const QRectF inside = places[i].adjusted(0.1, 0.1, -0.1, -0.1);
                        for (std::size_t j = 0; j < i; ++j)
                            QVERIFY(!inside.isValid() || !inside.intersects(places[j]));
                    }
                },
                progress);
            QCOMPARE(shown + covers, 0);
            for (const auto& [text, last] : lines)
                QCOMPARE(last, text->CountLines());
        }
    }
};

QTEST_MAIN(TestPublishedBook)
#include "test_published_book.moc"
