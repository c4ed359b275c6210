// SPDX-License-Identifier: MIT
#include "SampleStory.h"

#include "SamplePictures.h"

#include "catalogue/CharacteristicModel.h"
#include "core/Album.h"
#include "core/AlbumSets.h"
#include "core/ChapterChain.h"
#include "core/Parameters.h"
#include "platform/data/WriteBatch.h"

#include <QDir>
#include <QTextStream>

#include <array>
#include <utility>
#include <vector>

using namespace GeneralModule;

namespace {

// Column of each thing that is known of a sample picture.
enum Column {
    Season,
    Place,
    Subject,
    Person,
    Activity,
    Mood,
    Person2,
    Activity2,
    Mood2,
    Light,
    Shape
};

struct Paragraph
{
    const char* text;
    std::vector<std::pair<Column, const char*>> filter = {};
    const char* fileSelection = "";
    std::vector<const char*> links = {};
};

struct Chapter
{
    const char* name;
    std::vector<Paragraph> paragraphs;
};

const std::vector<Chapter>& Story()
{
    static const std::vector<Chapter> story{
        {"Spring wakes the hills",
         {
             {"Four people, one lake and a year of walks. This is how it began.\n"
              "<[Picture Legend]>.",
              {{Season, "Spring"}, {Shape, "Panorama"}},
              "",
              {"spring-hills-dawn.jpg"}},
             {"We went out as soon as the paths were dry. <[3]>: <[4]>. Nobody looked at the "
              "clock. "
              "<[Picture Legend]>.",
              {{Season, "Spring"}, {Person, "!;-"}}},
             {"There is one tree on the hill that we visit in every season. <[0]>: <[Picture "
              "Legend]>.",
              {},
              "*-tree.jpg",
              {"spring-tree.jpg"}},
             {"Meanwhile in town. <[1]>, <[9]>: <[Picture Legend]>.",
              {{Season, "Spring"}, {Place, "Old Town;River"}}},
         }},
        {"Summer by the water",
         {
             {"In summer we live by the water. <[1]>, <[9]>: <[Picture Legend]>.",
              {{Season, "Summer"}, {Place, "Lake;Coast;Beach;Harbour"}}},
             {"Some days need no plan.\n<[Picture Legend]>.",
              {},
              "",
              {"summer-picnic.jpg", "summer-beach.jpg", "summer-tree.jpg"}},
             {"Everybody found something to do. <[3]>: <[4]>. Mood: <[5]>. <[Picture Legend]>.",
              {{Season, "Summer"}, {Person, "!;-"}}},
             {"Inland the fields stood high, and behind them the mountains kept their snow. "
              "<[Picture Legend]>.",
              {{Season, "Summer"}, {Place, "Fields;Mountains;Hills"}}},
             {"And then the day was over. <[9]>: <[Picture Legend]>.",
              {{Season, "Summer"}, {Light, "Night;Dusk"}}},
         }},
        {"Autumn comes home",
         {
             {"The first fog arrived with the ferry. <[Picture Legend]>.",
              {{Light, "Fog"}},
              "",
              {"autumn-ferry.jpg"}},
             {"Then the colours came, and the apples. <[Picture Legend]>.",
              {{Season, "Autumn"}, {Place, "Forest;Orchard;Hills"}}},
             {"Clara and Jonas walked a great deal that year, she before him or he before her. "
              "<[Picture Legend]>.",
              {{Person, "Clara"}, {Person2, "Jonas"}}},
             {"The days drew in. <[2]>, <[9]>: <[Picture Legend]>.",
              {{Season, "Autumn"}, {Light, "Dusk;Storm"}}},
         }},
        {"Winter lights",
         {
             {"One morning everything was white and nobody spoke above a whisper.\n<[Picture "
              "Legend]>.",
              {},
              "*winter-first-snow.jpg"},
             {"Snow is for the young, and for those who forget that they are not. <[3]>: <[4]>. "
              "<[Picture Legend]>.",
              {{Season, "Winter"}, {Activity, "Playing;Skating"}}},
             {"Far out it was very quiet. <[Picture Legend]>.",
              {{Season, "Winter"}, {Place, "Forest;Mountains;Hills;Coast"}}},
             {"And in town there was light in every window. <[Picture Legend]>.",
              {{Season, "Winter"}, {Place, "Old Town;Market"}, {Light, "Night"}}},
             {"That was our year: all of it, in no order at all. Press Space for more, + for many, "
              "- for few.\n<[Picture Legend]>."},
         }},
        {"Next year", {}},
    };
    return story;
}

QString MoodOf(const QString& activity)
{
    static const QHash<QString, QString> moods{
        {"Walking", "Curious"},     {"Fishing", "Patient"},     {"Rowing", "Patient"},
        {"Reading", "Calm"},        {"Resting", "Calm"},        {"Shopping", "Busy"},
        {"Picnic", "Happy"},        {"Playing", "Merry"},       {"Skating", "Merry"},
        {"Flying a kite", "Merry"}, {"Picking apples", "Busy"},
    };
    return moods.value(activity);
}

QString ShapeOf(QSize size)
{
    const double ratio = double(size.width()) / size.height();
    if (ratio >= 2)
        return QStringLiteral("Panorama");
    if (ratio == 1)
        return QStringLiteral("Square");
    return ratio > 1 ? QStringLiteral("Landscape") : QStringLiteral("Portrait");
}

std::array<QString, columnCount> ValuesOf(const SamplePicture& picture)
{
    std::array<QString, columnCount> values{
        picture.season,  picture.place,         picture.subject,
        picture.person1, picture.activity1,     MoodOf(picture.activity1),
        picture.person2, picture.activity2,     MoodOf(picture.activity2),
        picture.light,   ShapeOf(picture.size), QString()};
    for (QString& value : values) {
        if (value.isEmpty())
            value = noValue;
    }
    return values;
}

void WriteLabels()
{
    const std::array groups{"Scene", "First person", "Second person", "Picture"};
    for (int group = 0; group < groupCount; ++group)
        SetCaractLabel(group, QString::fromLatin1(groups[std::size_t(group)]));
    const std::array<std::pair<int, const char*>, 9> labels{{{0, "Season"},
                                                             {1, "Place"},
                                                             {2, "Subject"},
                                                             {3, "Person"},
                                                             {4, "Activity"},
                                                             {5, "Mood"},
                                                             {9, "Light"},
                                                             {10, "Shape"},
                                                             {11, "Camera"}}};
    for (const auto& [column, label] : labels)
        SetColumnLabel(column, QString::fromLatin1(label));
}

void AddPicture(const SamplePicture& picture, const QString& path)
{
    const std::array<QString, columnCount> values = ValuesOf(picture);
    for (int column = 0; column < columnCount; ++column)
        AddValueToTable(column, values[std::size_t(column)]);
    ImageSet->AddNew();
    ImageSet->Set(u"File", path);
    ImageSet->Set(u"Legend", picture.legend);
    for (int column = 0; column < columnCount; ++column)
        ImageSet->Set(QStringLiteral("Car%1").arg(column), values[std::size_t(column)]);
    ImageSet->Update();
}

void SetField(RecordSet& set, qint32 id, QStringView field, qint32 value)
{
    FindById(set, id);
    set.Edit();
    set.Set(field, value);
    set.Update();
}

qint32 AddParagraph(const Paragraph& paragraph, qint32 chapter, qint32 previous)
{
    ParagraphSet->AddNew();
    const qint32 id = ParagraphSet->Number(u"Id");
    ParagraphSet->Set(u"Chapter", chapter);
    ParagraphSet->Set(u"PreviousParagraph", previous);
    ParagraphSet->Set(u"NextParagraph", 0);
    ParagraphSet->Set(u"Text", QString::fromUtf8(paragraph.text));
    ParagraphSet->Set(u"FileSelection", QString::fromUtf8(paragraph.fileSelection));
    for (int column = 0; column < columnCount; ++column)
        ParagraphSet->Set(QStringLiteral("Car%1").arg(column), QStringLiteral("*"));
    for (const auto& [column, values] : paragraph.filter)
        ParagraphSet->Set(QStringLiteral("Car%1").arg(int(column)), QString::fromUtf8(values));
    ParagraphSet->Update();
    if (previous > 0)
        SetField(*ParagraphSet, previous, u"NextParagraph", id);
    else
        SetField(*ChapterSet, chapter, u"FirstParagraph", id);
    return id;
}

void AddLinks(const Paragraph& paragraph, qint32 id, const QString& pictures)
{
    for (const char* file : paragraph.links) {
        LinkedImagesSet->AddNew();
        LinkedImagesSet->Set(u"ParagraphId", id);
        LinkedImagesSet->Set(u"File", pictures + QString::fromUtf8(file));
        LinkedImagesSet->Update();
    }
}

void WriteChapters(const QString& pictures)
{
    QString previousName;
    for (const Chapter& chapter : Story()) {
        const QString name = QString::fromUtf8(chapter.name);
        const qint32 id = CreateChapter(name, previousName);
        previousName = name;
        qint32 last = 0;
        for (const Paragraph& paragraph : chapter.paragraphs) {
            last = AddParagraph(paragraph, id, last);
            AddLinks(paragraph, last, pictures);
        }
    }
}

bool Complain(const QString& text)
{
    QTextStream(stderr) << "make_sample: " << text << '\n';
    return false;
}

} // namespace

bool WriteSampleStory(const QString& folder, const QString& name, PicturePaths paths)
{
    const QString below = QStringLiteral("pictures") + QDir::separator();
    const QString pictures = QDir(folder).absoluteFilePath(below);
    if (!QDir().mkpath(pictures))
        return Complain("cannot make the folder " + pictures);
    const QStringList missing = PaintSamplePictures(pictures);
    if (!missing.isEmpty())
        return Complain("cannot write " + missing.join(QStringLiteral(", ")));
    const QString album = QDir(folder).absoluteFilePath(name);
    if (!CreateAlbumFile(album) || !OpenAlbum(album))
        return Complain("cannot make the album " + album);
    WriteBatch batch(AlbumDatabase);
    WriteLabels();
    const QString named = paths == PicturePaths::Relative ? below : pictures;
    for (const SamplePicture& picture : SamplePictures())
        AddPicture(picture, named + picture.fileName);
    WriteChapters(named);
    batch.Finish();
    return true;
}
