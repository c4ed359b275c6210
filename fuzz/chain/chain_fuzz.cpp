// SPDX-License-Identifier: MIT
// The chains of chapters and paragraphs: whatever is done to them one after the other, the album
// holds what an ordered list would; and a repair makes any links whole and loses nothing.
#include "core/AlbumRepair.h"
#include "core/AlbumSets.h"
#include "core/ChainMending.h"
#include "core/ChapterChain.h"
#include "fuzz/RunStatements.h"
#include "fuzz/Trials.h"
#include "fuzz/chain/StoryModel.h"
#include "platform/data/WriteBatch.h"
#include "support/AlbumFixture.h"

#include <QCoreApplication>
#include <QDir>

#include <algorithm>
#include <map>
#include <set>

using namespace GeneralModule;

namespace {

constexpr int maxChapters = 7;
constexpr int maxParagraphs = 8; // in a chapter

ParagraphDraft Edited(const ParagraphPlace& place, const QString& text)
{
    ParagraphContent content;
    content.text = text;
    content.values.fill(anyValue);
    return {LoadParagraph(place.paragraph), content};
}

void RemoveCopy(const RepairReport& report)
{
    if (!report.copy.isEmpty())
        QFile::remove(report.copy);
}

// Does random things to the open album and to a model of it.
class Author
{
public:
    Author(Trials& trials, const AlbumFixture& album) : trials_(trials), album_(album) {}

    // False after a fault.
    bool Work()
    {
        if (model_.unsaved != 0)
            Write();
        else if (model_.chapters.empty() || trials_.OneIn(2))
            ChangeChapters();
        else
            Write();
        if (trials_.OneIn(25) && model_.unsaved == 0)
            Repair();
        const QString fault = model_.FaultOfAlbum();
        if (!fault.isEmpty())
            trials_.Fault(fault);
        return fault.isEmpty() && !hasFailed_;
    }

private:
    void Expect(bool isRight, const char* what)
    {
        if (isRight)
            return;
        trials_.Fault(QString::fromLatin1(what));
        hasFailed_ = true;
    }

    void Note(const char* what, qint64 which)
    {
        trials_.AddInput(what + (' ' + QByteArray::number(which)));
    }

    QString NewText() { return QStringLiteral("t%1 ").arg(++count_); }

    // One in a while is a name that signs of a pattern make hard to find.
    QString NewName()
    {
        static const QStringList odd{"", "", "", " [2", "'s", " *", " [a]", "#", "?", " \"b\""};
        return QStringLiteral("%1").arg(++count_) + trials_.AnyOf(odd);
    }

    std::size_t AnyChapter()
    {
        return std::size_t(trials_.Below(qsizetype(model_.chapters.size())));
    }

    void ChangeChapters()
    {
        if (model_.chapters.empty())
            return CreateChapterAfter(0);
        const std::size_t at = AnyChapter();
        switch (trials_.Below(6)) {
        case 0:
        case 1:
            if (model_.chapters.size() < maxChapters)
                CreateChapterAfter(at);
            break;
        case 2:
            Delete(at);
            break;
        case 3:
            Rename(at);
            break;
        default:
            Move(at, trials_.OneIn(2));
        }
    }

    void CreateChapterAfter(std::size_t at)
    {
        auto& chapters = model_.chapters;
        const QString after = chapters.empty() ? QString() : chapters[at].name;
        if (!chapters.empty() && trials_.OneIn(6)) {
            const QString taken = chapters[AnyChapter()].name;
            Note("create again after", qint64(at));
            Expect(ErrorOf([&] { CreateChapter(taken, after); }) == DatabaseError::DuplicateKey,
                   "a chapter's name was given twice");
            return;
        }
        const QString name = NewName();
        Note("create after", qint64(at));
        const qint32 id = CreateChapter(name, after);
        chapters.insert(chapters.begin() + std::ptrdiff_t(chapters.empty() ? 0 : at + 1),
                        {id, name, {}});
    }

    void Delete(std::size_t at)
    {
        Note("delete chapter", qint64(at));
        const bool isEmpty = model_.chapters[at].paragraphs.empty();
        const ChapterDeletion done = DeleteChapter(model_.chapters[at].name);
        Expect(done == (isEmpty ? ChapterDeletion::Deleted : ChapterDeletion::HasParagraphs),
               "another answer to a deletion");
        if (isEmpty)
            model_.chapters.erase(model_.chapters.begin() + std::ptrdiff_t(at));
    }

    void Rename(std::size_t at)
    {
        Note("rename", qint64(at));
        const QString name = NewName();
        Expect(RenameChapter(model_.chapters[at].id, name), "a chapter was not renamed");
        model_.chapters[at].name = name;
    }

    void Move(std::size_t at, bool isDown)
    {
        Note(isDown ? "move chapter down" : "move chapter up", qint64(at));
        auto& chapters = model_.chapters;
        const bool moves = isDown ? at + 1 < chapters.size() : at > 0;
        const QString name = chapters[at].name;
        Expect((isDown ? MoveChapterDown(name) : MoveChapterUp(name)) == moves,
               "another answer to a chapter's move");
        if (moves)
            std::swap(chapters[at], chapters[isDown ? at + 1 : at - 1]);
    }

    // As the editor does it, in any chapter or on with the paragraph that was just created.
    void Write()
    {
        StoryModel::Chapter& chapter = model_.unsaved != 0 ? model_.OfParagraph(model_.unsaved)
                                                           : model_.chapters[AnyChapter()];
        ParagraphPlace place{chapter.id, model_.unsaved};
        if (chapter.paragraphs.empty() || (model_.unsaved == 0 && trials_.OneIn(12))) {
            Note("first paragraph in", place.chapter);
            CreateFirstParagraph(place);
            if (chapter.paragraphs.empty())
                chapter.paragraphs.push_back({place.paragraph, {}});
            Expect(place.paragraph == chapter.paragraphs.front().id, "another first paragraph");
            return;
        }
        if (place.paragraph == 0)
            place.paragraph = trials_.AnyOf(chapter.paragraphs).id;
        switch (trials_.Below(model_.unsaved != 0 ? 4 : 7)) {
        case 0:
            return CreateNext(chapter, place);
        case 1:
            return Delete(place);
        case 2:
        case 3:
            return Step(place);
        default:
            return Move(place, trials_.OneIn(2));
        }
    }

    void CreateNext(StoryModel::Chapter& chapter, ParagraphPlace place)
    {
        if (chapter.paragraphs.size() >= maxParagraphs)
            return Step(place);
        Note("create after paragraph", place.paragraph);
        const QString text = NewText();
        model_.Save(place.paragraph, text);
        const std::size_t at = StoryModel::IndexOf(chapter, place.paragraph);
        CreateNextParagraph(place, Edited(place, text));
        chapter.paragraphs.insert(chapter.paragraphs.begin() + std::ptrdiff_t(at) + 1,
                                  {place.paragraph, {}});
        model_.unsaved = place.paragraph;
        Expect(known_.insert(place.paragraph).second, "an identifier was used twice");
    }

    void Delete(ParagraphPlace place)
    {
        Note("delete paragraph", place.paragraph);
        const qint32 expected = model_.Delete(place.paragraph);
        DeleteParagraph(place);
        Expect(place.paragraph == expected, "another place after a deletion");
    }

    void Step(ParagraphPlace place)
    {
        const auto step = ChainStep(trials_.Below(4));
        Note("save and step from", place.paragraph);
        const QString text = NewText();
        model_.Save(place.paragraph, text);
        const qint32 expected = model_.Step(place.paragraph, step);
        SaveAndStep(place, Edited(place, text), step);
        Expect(place.paragraph == expected, "another place after a step");
    }

    void Move(ParagraphPlace place, bool isDown)
    {
        Note(isDown ? "move paragraph down" : "move paragraph up", place.paragraph);
        const bool moves = model_.Move(place.paragraph, isDown);
        const qint32 paragraph = place.paragraph;
        Expect((isDown ? MoveParagraphDown(place) : MoveParagraphUp(place)) == moves &&
                   place.paragraph == paragraph &&
                   place.chapter == model_.OfParagraph(paragraph).id,
               "another answer to a paragraph's move");
    }

    // Created chapters are linked forward only until then.
    void Repair()
    {
        Note("repair", 0);
        const RepairReport report = RepairAlbum();
        Expect(report.firstParagraphs + report.paragraphLinks + report.adopted == 0,
               "sound paragraphs were repaired");
        Expect(album_.Story() == model_.Told(), "another story after a repair");
        RemoveCopy(report);
    }

    Trials& trials_;
    const AlbumFixture& album_;
    StoryModel model_;
    std::set<qint32> known_;
    int count_ = 0;
    bool hasFailed_ = false;
};

// Links at random, most of them to rows that are there.
QString AnyStory(Trials& trials, int chapters, int paragraphs)
{
    const auto any = [&trials](int most) { return trials.Below(most + 3) - 1; };
    QString sql = QStringLiteral("BEGIN;");
    for (int i = 1; i <= chapters; ++i)
        sql += QStringLiteral("INSERT INTO Chapter VALUES (%1,%2,%3,%4,'C%1');")
                   .arg(i)
                   .arg(any(paragraphs))
                   .arg(any(chapters))
                   .arg(any(chapters));
    for (int i = 1; i <= paragraphs; ++i)
        sql += QStringLiteral("INSERT INTO Paragraph (Id,Chapter,PreviousParagraph,NextParagraph,"
                              "Text) VALUES (%1,%2,%3,%4,'t%1');")
                   .arg(i)
                   .arg(any(chapters))
                   .arg(any(paragraphs))
                   .arg(any(paragraphs));
    return sql + QStringLiteral("COMMIT");
}

// Everything ends on links that lead anywhere, and a row is lost only where one is deleted.
void WorkOnBrokenLinks(Trials& trials, int chapters, int paragraphs)
{
    for (int i = trials.Below(6); i > 0; --i) {
        ParagraphPlace place{1 + trials.Below(chapters + 1), 1 + trials.Below(paragraphs + 1)};
        const QString name = QStringLiteral("C%1").arg(place.chapter);
        const int work = trials.Below(6);
        trials.AddInput("work " + QByteArray::number(work) + " at " +
                        QByteArray::number(place.chapter) + ' ' +
                        QByteArray::number(place.paragraph));
        if (work == 0)
            MoveChapterUp(name);
        else if (work == 1)
            MoveChapterDown(name);
        else if (work == 2)
            MoveParagraphUp(place);
        else if (work == 3)
            MoveParagraphDown(place);
        else if (FindById(*ParagraphSet, place.paragraph)) {
            const ParagraphContent content = LoadParagraph(place.paragraph);
            SaveAndStep(place, {content, content}, ChainStep(trials.Below(4)));
        }
        ChapterNames();
        ListParagraphs(place.chapter);
    }
}

void TryRepair(Trials& trials, const AlbumFixture& album)
{
    const int chapters = trials.Below(6);
    const int paragraphs = trials.Below(14);
    const QString sql = AnyStory(trials, chapters, paragraphs);
    trials.AddInput(sql.toUtf8());
    RunStatements(sql.toUtf8());
    const QString textSql = QStringLiteral("SELECT Id,Text FROM Paragraph ORDER BY Id");
    const QStringList texts = album.Rows(textSql);
    WorkOnBrokenLinks(trials, chapters, paragraphs);
    const RepairReport report = RepairAlbum();
    if (album.Story() == u"broken")
        trials.Fault(QStringLiteral("not whole after a repair"));
    else if (album.Rows(textSql) != texts)
        trials.Fault(QStringLiteral("other texts after a repair"));
    else if (!RepairAlbum().IsEmpty() || report.IsEmpty() != report.copy.isEmpty())
        trials.Fault(QStringLiteral("once was not enough, or a copy too many or too few"));
    RemoveCopy(report);
}

// The rows from the head on along the forward links, as a reader goes.
std::vector<qint32> ReadersWay(const std::vector<ChainLink>& rows, qint32 head)
{
    std::map<qint32, qint32> next;
    for (const ChainLink& row : rows)
        next[row.id] = row.next;
    std::vector<qint32> way;
    for (qint32 id = head; next.contains(id); id = next.extract(id).mapped())
        way.push_back(id);
    return way;
}

void TryMending(Trials& trials)
{
    std::vector<ChainLink> rows;
    QByteArray input;
    const int count = 1 + trials.Below(9);
    for (qint32 id = 1; id <= count; ++id) {
        rows.push_back({id, trials.Below(count + 3) - 1, trials.Below(count + 3) - 1});
        input += QByteArray::number(rows.back().previous) + '<' + QByteArray::number(id) + '>' +
                 QByteArray::number(rows.back().next) + ' ';
    }
    trials.SetInput(input);
    const std::vector<ChainLink> mended = MendChain(rows, trials.Below(count + 2));
    std::vector<qint32> order;
    bool isWhole = mended.size() == rows.size();
    for (std::size_t i = 0; i < mended.size(); ++i) {
        order.push_back(mended[i].id);
        isWhole = isWhole && mended[i].previous == (i == 0 ? 0 : mended[i - 1].id) &&
                  mended[i].next == (i + 1 == mended.size() ? 0 : mended[i + 1].id);
    }
    if (!isWhole || std::set<qint32>(order.begin(), order.end()).size() != rows.size())
        return trials.Fault(QStringLiteral("not a chain of all rows"));
    auto at = order.begin();
    for (const qint32 id : ReadersWay(rows, order.front())) {
        at = std::find(at, order.end(), id);
        if (at == order.end())
            return trials.Fault(QStringLiteral("%1 is read at another place").arg(id));
    }
    if (MendChain(mended, order.front()) != mended)
        trials.Fault(QStringLiteral("a whole chain was mended"));
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const AlbumFixture album;
    AlbumDatabase->Execute("PRAGMA synchronous=OFF");
    Trials trials(argc, argv, 30);
    return trials.Run([&] {
        RunStatements("DELETE FROM Chapter; DELETE FROM Paragraph");
        const int kind = trials.Below(4);
        if (kind == 0) {
            TryRepair(trials, album);
        } else if (kind == 1) {
            for (int i = 0; i < 200; ++i)
                TryMending(trials);
        } else {
            Author author(trials, album);
            for (int i = trials.Below(80); i >= 0 && author.Work(); --i) {
            }
        }
        trials.CountAccepted();
    });
}
