// SPDX-License-Identifier: MIT
// A story read by random keys, twice: with idle time between the keys, in which what comes next is
// made ready, and without. The same pictures must be shown at the same places, pixel by pixel,
// whatever happens to the album, the files and the surface meanwhile.
#include "fuzz/Trials.h"
#include "support/AlbumFixture.h"
#include "tests/viewer/PaperSurface.h"
#include "viewer/StoryReader.h"
#include "viewer/ViewerFlags.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QPainter>

#include <array>

namespace {

constexpr std::array formats{"jpg", "png", "bmp", "gif"};
constexpr int maxKeys = 40;

// Of a picture that is there.
QSize SizeOf(const QString& path)
{
    const QSize size = QImage(path).size();
    return size.isEmpty() ? QSize(40, 30) : size;
}

// Blocks of random colours: a picture that is decoded at another size, or not to its end, differs.
void Paint(Trials& trials, const QString& path, QSize size)
{
    QImage image(size, QImage::Format_RGB32);
    QPainter painter(&image);
    constexpr int side = 16;
    for (int y = 0; y < size.height(); y += side) {
        for (int x = 0; x < size.width(); x += side)
            painter.fillRect(x, y, side, side, QColor::fromRgb(QRgb(trials.Random()())));
    }
    painter.end();
    if (!image.save(path) && !path.endsWith(QLatin1String("gif")))
        trials.Fault(QStringLiteral("%1 cannot be written").arg(path));
}

// An album in a world of its own, with a reader.
class Reading
{
public:
    explicit Reading(Trials& trials) : trials_(trials)
    {
        for (int i = 10 + trials.Below(30); i > 0; --i)
            AddPicture();
        for (int chapter = 1 + trials.Below(3); chapter > 0; --chapter) {
            const qint32 id = album_.AddChapter(QStringLiteral("Chapter %1").arg(chapter));
            for (int i = trials.Below(4); i > 0; --i)
                AddParagraph(id);
        }
        reader_.DrawOn(paper_);
        GeneralModule::PictureAtRandom = trials.OneIn(2);
        reader_.Position.chapter = trials.OneIn(4) ? 0 : 1;
        reader_.DisplayFromBeginning();
    }

    void Press()
    {
        constexpr std::array<void (StoryReader::*)(), 4> others{
            &StoryReader::ZoomIn, &StoryReader::ZoomOut, &StoryReader::DisplayAgain,
            &StoryReader::DisplayFromBeginning};
        constexpr std::array<void (StoryReader::*)(), 3> paging{&StoryReader::ShowNextPictures,
                                                                &StoryReader::ShowNextPictures,
                                                                &StoryReader::ShowPreviousPictures};
        using enum StoryWay;
        const std::array ways{NextParagraph, NextParagraph, PreviousParagraph,
                              NextParagraph, NextChapter,   TopOfChapter};
        if (trials_.OneIn(3))
            (reader_.*trials_.AnyOf(paging))();
        else if (trials_.OneIn(3))
            (reader_.*trials_.AnyOf(others))();
        else
            reader_.Go(trials_.AnyOf(ways));
    }

    // What readiness must notice.
    void Disturb()
    {
        const QString file = album_.PathOf(trials_.AnyOf(names_));
        switch (trials_.Below(7)) {
        case 0:
            QFile::rename(file, file + QStringLiteral(".away"));
            break;
        case 1:
            QFile::rename(file + QStringLiteral(".away"), file);
            break;
        case 2:
            Paint(trials_, file, trials_.OneIn(2) ? AnySize() : SizeOf(file));
            break;
        case 3:
            paper_.size = {400 + trials_.Below(800), 300 + trials_.Below(600)};
            reader_.DisplayAgain();
            break;
        case 4:
            paper_.pixelRatio = 1 + trials_.Below(3) / 2.0;
            reader_.DisplayAgain();
            break;
        case 5:
            AddPicture();
            break;
        default: // another program
            album_.Execute(QStringLiteral("UPDATE Paragraph SET Car0='%1' WHERE (Id & 1)=%2")
                               .arg(trials_.OneIn(2) ? "blue" : "red")
                               .arg(trials_.Below(2)));
        }
    }

    QByteArray Shown() const
    {
        QByteArray shown = NamesOf(paper_.pictures).join(u' ').toUtf8() + " | " +
                           paper_.legend.toUtf8() + " | " + paper_.place.toUtf8() + " | " +
                           paper_.title.toUtf8();
        for (std::size_t i = 0; i < paper_.pictures.size(); ++i) {
            const QRect& place = paper_.pictures[i].place;
            const QImage& image = paper_.images[i];
            QCryptographicHash hash(QCryptographicHash::Md5);
            hash.addData(QByteArrayView(image.constBits(), image.sizeInBytes()));
            shown += " (" + QByteArray::number(place.x()) + ' ' + QByteArray::number(place.y()) +
                     ' ' + QByteArray::number(place.width()) + ' ' + hash.result().toHex().left(8) +
                     ')';
        }
        return shown;
    }

    bool IsLookingAhead() const { return reader_.IsLookingAhead(); }

private:
    QSize AnySize()
    {
        return {40 + trials_.Below(trials_.OneIn(4) ? 2000 : 400),
                30 + trials_.Below(trials_.OneIn(4) ? 1500 : 300)};
    }

    void AddPicture()
    {
        const QString name =
            QStringLiteral("p%1.%2").arg(names_.size()).arg(QLatin1String(trials_.AnyOf(formats)));
        names_ += name;
        Paint(trials_, album_.PathOf(name), AnySize());
        album_.AddImageRow(album_.PathOf(name), {{"Car0", trials_.OneIn(2) ? "red" : "blue"}});
    }

    void AddParagraph(qint32 chapter)
    {
        const QString value = trials_.OneIn(3) ? "red" : "*";
        const qint32 id =
            album_.AddParagraph(chapter, QStringLiteral("<[0]> of it"), {{"Car0", value}});
        for (int i = trials_.Below(3); i > 0; --i)
            album_.Link(id, album_.PathOf(trials_.AnyOf(names_)));
    }

    Trials& trials_;
    AlbumFixture album_;
    QStringList names_;
    PaperSurface paper_;
    StoryReader reader_{[] { return true; }};
};

// Between two keys; none, some, or as long as something is made ready.
void Wait(const Reading& reading, std::mt19937& random)
{
    const int milliseconds = std::array{0, 3, 12, 10'000}[random() % 4];
    QElapsedTimer time;
    time.start();
    while (reading.IsLookingAhead() && time.elapsed() < milliseconds)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 1);
}

QList<QByteArray> Read(Trials& trials, bool isIdle)
{
    std::mt19937 pauses(7);
    Reading reading(trials);
    QList<QByteArray> shown{reading.Shown()};
    for (int i = 0; i < maxKeys; ++i) {
        if (isIdle)
            Wait(reading, pauses);
        if (trials.OneIn(6))
            reading.Disturb();
        if (isIdle)
            Wait(reading, pauses);
        reading.Press();
        shown += reading.Shown();
    }
    return shown;
}

void Try(Trials& trials)
{
    const std::mt19937 begin = trials.Random();
    const QList<QByteArray> without = Read(trials, false);
    trials.Random() = begin;
    const QList<QByteArray> with = Read(trials, true);
    for (int i = 0; i < without.size(); ++i) {
        trials.AddInput(QByteArray::number(i) + ": " + without[i]);
        if (with[i] != without[i])
            return trials.Fault(QString::fromUtf8("key %1 shows " + with[i]).arg(i));
        trials.CountAccepted();
    }
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    Trials trials(argc, argv, 120);
    return trials.Run([&trials] { Try(trials); });
}
