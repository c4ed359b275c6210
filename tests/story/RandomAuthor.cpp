// SPDX-License-Identifier: MIT
#include "RandomAuthor.h"

#include "catalogue/DescriptionChanges.h"
#include "catalogue/MovedPictures.h"
#include "catalogue/PictureGroup.h"
#include "catalogue/PictureLoading.h"
#include "catalogue/ValueReplacement.h"
#include "core/AlbumRepair.h"
#include "core/AlbumSets.h"
#include "core/ChapterChain.h"
#include "core/Parameters.h"
#include "core/UndoSteps.h"
#include "story/ParagraphInsertion.h"
#include "story/ParagraphLinks.h"
#include "story/ParagraphMoves.h"

#include <QDir>

using namespace GeneralModule;

namespace {

const QStringList words{"Anna", "anna", "Änne", "Bob",   "Lake", "lake",
                        "",     "-",    "!",    "It's;", "Zoë"};
const QStringList folders{"a", "b", "b/deep"};

QStringList AllFiles()
{
    QStringList files;
    const RecordSet::Walk walk(*ImageSet);
    for (ImageSet->MoveFirst(); !ImageSet->AtEnd(); ImageSet->MoveNext())
        files += ImageSet->TextOrEmpty(u"File");
    return files;
}

void AddValue(QByteArray& line, const Statement& row, int column)
{
    const std::string_view text = row.GetUtf8(column);
    line += row.IsNull(column) ? "NULL" : row.IsBlob(column) ? "blob " : "'";
    line += QByteArray(text.data(), qsizetype(text.size())) + '|';
}

} // namespace

QByteArrayList StateOfOpenAlbum()
{
    QByteArrayList state;
    sqlite3* engine = AlbumDatabase->GetEngine();
    Statement tables(engine, "SELECT name FROM main.sqlite_master WHERE type='table' AND name NOT "
                             "LIKE 'sqlite%' ORDER BY name");
    while (tables.Step()) {
        const QByteArray table = tables.GetUtf8(0).data();
        const TableLayout layout(engine, table);
        state += table;
        Statement rows(engine, "SELECT rowid,* FROM main." + QuotedName(table) + " ORDER BY rowid");
        while (rows.Step()) {
            state += table;
            for (int column = 0; column <= layout.Count(); ++column)
                AddValue(state.last(), rows, column);
        }
    }
    return state;
}

RandomAuthor::RandomAuthor(const AlbumFixture& album, unsigned seed) : album_(album), random_(seed)
{
    for (const QString& folder : folders) {
        for (const char* name : {"1.jpg", "2.jpg", "3.jpg", "4.png"})
            WriteFile(album.PathOf(folder + '/' + name));
    }
}

void RandomAuthor::Act()
{
    const UndoStep step("random");
    try {
        switch (Below(12)) {
        case 0:
            return ChangeChapters();
        case 1:
        case 2:
            return ChangeParagraphs();
        case 3:
        case 4:
            return Write();
        case 5:
            return ChangeLinks();
        case 6:
        case 7:
            return ChangePictures();
        case 8:
            return ChangeManyPictures();
        case 9:
            return ChangeFiles();
        case 10:
            return ChangeValues();
        default:
            return ChangeOwnFields();
        }
    } catch (const DatabaseError&) {
        // Such a name is there already, or no such row.
    }
}

QString RandomAuthor::AnyText()
{
    QString text = AnyOf(words);
    for (int more = Below(4); more > 0; --more)
        text += ' ' + AnyOf(words);
    return text;
}

QString RandomAuthor::AnyFile()
{
    const QStringList files = AllFiles();
    return files.isEmpty() ? QString() : AnyOf(files);
}

QString RandomAuthor::AnyChapter()
{
    const QStringList chapters = ChapterNames();
    return chapters.isEmpty() ? QString() : AnyOf(chapters);
}

qint32 RandomAuthor::AnyParagraph()
{
    const int count = int(ParagraphSet->RecordCount());
    ParagraphSet->MoveFirst();
    for (int i = count > 0 ? Below(count) : 0; i > 0; --i)
        ParagraphSet->MoveNext();
    return count > 0 ? ParagraphSet->Number(u"Id") : 0;
}

void RandomAuthor::ChangeChapters()
{
    const QString name = AnyChapter();
    switch (Below(6)) {
    case 0:
    case 1:
        CreateChapter(AnyText() + QString::number(Below(30)), name);
        return;
    case 2:
        RenameChapter(FindChapter(name).value_or(0), AnyText() + QString::number(Below(30)));
        return;
    case 3:
        DeleteChapter(name);
        return;
    case 4:
        if (const QString copy = Below(10) > 0 ? QString() : RepairAlbum().copy; !copy.isEmpty())
            QFile::remove(copy);
        return;
    default:
        MoveChapterBy(name, Below(7) - 3);
    }
}

void RandomAuthor::ChangeParagraphs()
{
    ParagraphPlace place{FindChapter(AnyChapter()).value_or(0), 0};
    const qint32 paragraph = AnyParagraph();
    if (paragraph == 0 || Below(4) == 0)
        return CreateFirstParagraph(place);
    const Paragraph read = ReadParagraph(paragraph).value();
    place = {read.chapter, paragraph};
    switch (Below(5)) {
    case 0:
        CreateNextParagraph(place, {read.content, {AnyText(), read.content.values}});
        return;
    case 1:
        DeleteParagraph(place);
        return;
    case 2:
        InsertParagraph(place.chapter, paragraph, read.content.values);
        return;
    default:
        MoveParagraphBy(place, Below(9) - 4);
    }
}

void RandomAuthor::Write()
{
    const qint32 paragraph = AnyParagraph();
    if (paragraph == 0)
        return;
    const Paragraph read = ReadParagraph(paragraph).value();
    ParagraphContent edited{AnyText(), read.content.values};
    edited.values[std::size_t(Below(columnCount))] = AnyOf(words) + ';' + AnyOf(words);
    SaveParagraph({read.chapter, paragraph}, {read.content, edited});
}

void RandomAuthor::ChangeLinks()
{
    const qint32 paragraph = AnyParagraph();
    const QStringList files{AnyFile(), AnyFile(), AnyFile()};
    if (Below(3) == 0)
        MoveLinks(paragraph, {files[0], files[1]}, files[2]);
    else
        SetLinked(paragraph, files, Below(3) > 0);
}

void RandomAuthor::ChangePictures()
{
    const QString file = AnyFile();
    const Picture shown = ReadPicture(file).value_or(Picture());
    Picture edited = shown;
    edited.values[std::size_t(Below(columnCount))] = AnyOf(words);
    if (Below(2) == 0)
        edited.legend = AnyText();
    if (Below(6) == 0)
        TakeOutPicture(file, false);
    else
        StorePicture(file, shown, edited);
}

void RandomAuthor::ChangeManyPictures()
{
    std::vector<qint32> ids;
    std::vector<DescriptionChange> changes;
    VisitDescriptions([&](const DescribedPicture& picture) {
        ids.push_back(picture.id);
        changes.push_back({picture.id, picture.file, picture.record, {AnyText(), {}}});
        changes.back().edited.values.fill(AnyOf(words));
        return true;
    });
    if (Below(2) == 0) {
        ApplyChanges(changes);
        return;
    }
    GroupChange change;
    change.values[std::size_t(Below(columnCount))] = AnyOf(words);
    change.legend = AnyText();
    change.legendWay =
        AnyOf(std::array{GroupChange::LegendWay::PutAfter, GroupChange::LegendWay::Replace});
    ApplyToGroup(ids, change);
}

void RandomAuthor::ChangeFiles()
{
    const QString folder = album_.PathOf(AnyOf(folders));
    if (Below(2) == 0)
        LoadPictures(folder, {"1.jpg", "2.jpg", "4.png"}, [this](int) { return Below(5) > 0; });
    else
        RepointPictures(album_.PathOf(AnyOf(folders)) + '/', folder, [](int) { return true; });
}

void RandomAuthor::ChangeValues()
{
    const int column = Below(columnCount);
    switch (Below(5)) {
    case 0:
        AddValueToTable(column, AnyText());
        return;
    case 1:
        RemoveValueFromTable(column, AnyOf(words));
        return;
    case 2:
        SetParams({{"Car3", AnyText()}, {"Caract1", AnyOf(words)}, {AnyOf(words), "own"}});
        return;
    default:
        ReplaceValue(column, AnyOf(words), AnyOf(words), [](int) { return true; });
    }
}

// What another program has put into the tables and no routine of this one knows.
void RandomAuthor::ChangeOwnFields()
{
    const QByteArray value = AnyOf(QByteArrayList{"x'00ff27'", "NULL", "7", "2.5", "'a'", "'A'"});
    Statement(AlbumDatabase->GetEngine(), "UPDATE Image SET \"own \"\"field\"=" + value +
                                              " WHERE rowid%3=" + QByteArray::number(Below(3)))
        .Run();
}
