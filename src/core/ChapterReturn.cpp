// SPDX-License-Identifier: MIT
#include "core/AlbumChains.h"
#include "core/AlbumSets.h"
#include "core/ChainMending.h"
#include "core/ChapterChain.h"
#include "core/EarlierStates.h"
#include "core/StateKeeping.h"
#include "core/StateReturn.h"
#include "core/UndoSteps.h"
#include "platform/data/Identifiers.h"
#include "platform/data/TableLayout.h"
#include "platform/data/WriteBatch.h"

#include <QDateTime>
#include <QFileInfo>
#include <QLocale>

#include <algorithm>

namespace {

using namespace GeneralModule;

// Copies rows of a table from one album to another, in all fields that both have but some.
class RowCopy
{
public:
    RowCopy(const Database& from, const Database& into, const char* table,
            const QByteArrayList& newFields, const QByteArray& condition)
        : count_(0), first_(int(newFields.size()) + 1)
    {
        const QString name = QString::fromLatin1(table);
        const TableLayout known(into.GetEngine(), name);
        const TableLayout source(from.GetEngine(), name);
        QByteArrayList fields;
        for (int i = 0; i < source.Count(); ++i) {
            const QByteArray& field = source.At(i).name;
            if (known.Find(source.At(i).text) >= 0 && !newFields.contains(field))
                fields += QuotedName(field);
        }
        count_ = int(fields.size());
        QByteArrayList targets;
        QByteArrayList values;
        for (const QByteArray& field : newFields)
            targets += QuotedName(field);
        targets += fields;
        for (int i = 1; i <= targets.size(); ++i)
            values += '?' + QByteArray::number(i);
        const QByteArray quoted = QuotedName(table);
        reading_ = Statement(from.GetEngine(), "SELECT " + fields.join(',') + " FROM " + quoted +
                                                   " WHERE " + condition + " ORDER BY rowid");
        writing_ = Statement(into.GetEngine(), "INSERT INTO " + quoted + " (" + targets.join(',') +
                                                   ") VALUES (" + values.join(',') + ')');
    }

    // The rows for which the condition's parameter is that value; the new fields get the others.
    // Returns how many there were.
    template<typename Key>
    int Copy(const Key& key, const std::vector<qint64>& newValues)
    {
        int copied = 0;
        reading_.Bind(1, key);
        while (reading_.Step()) {
            for (std::size_t i = 0; i < newValues.size(); ++i)
                writing_.Bind(int(i) + 1, newValues[i]);
            for (int i = 0; i < count_; ++i)
                writing_.Bind(first_ + i, reading_.GetValue(i));
            writing_.Run();
            ++copied;
        }
        return copied;
    }

private:
    Statement reading_;
    Statement writing_;
    int count_;
    int first_;
};

class ChapterReturn
{
public:
    ChapterReturn(const OpenState& state, ReturnPlace place)
        : state_(*state.GetDatabase()),
          place_(place),
          paragraphs_(state_, *AlbumDatabase, "Paragraph",
                      {"Id", "Chapter", "PreviousParagraph", "NextParagraph"}, "Id=?1"),
          links_(state_, *AlbumDatabase, "LinkedImages", {"ParagraphId"}, "ParagraphId=?1"),
          pictures_(state_, *AlbumDatabase, "Image", {}, "File=?1")
    {
    }

    void TakeBack(const StateChapter& chapter)
    {
        std::vector<qint64> added{0};
        const qint32 into = ChapterFor(chapter);
        NewIdentifiers identifiers(AlbumDatabase->GetEngine(), "Paragraph");
        const std::vector<qint32> taken = ParagraphsOf(chapter.id);
        for (std::size_t i = 0; i < taken.size(); ++i)
            added.push_back(identifiers.Next());
        added.push_back(0);
        for (std::size_t i = 0; i < taken.size(); ++i) {
            paragraphs_.Copy(qint64(taken[i]), {added[i + 1], into, added[i], added[i + 2]});
            report_.links += links_.Copy(qint64(taken[i]), {added[i + 1]});
            TakePicturesOf(taken[i]);
        }
        SetFirstParagraph(into, qint32(added[1]));
        report_.paragraphs += int(taken.size());
        ++report_.chapters;
    }

    const ChapterReturnReport& GetReport() const { return report_; }

private:
    // The album's chapter that gets the paragraphs, with none left in it.
    qint32 ChapterFor(const StateChapter& chapter)
    {
        const QString name = chapter.name.isEmpty()
                                 ? QCoreApplication::translate("ChapterChain", "(no name)")
                                 : chapter.name;
        const std::optional<qint32> same = FindChapter(name);
        if (same && place_ == ReturnPlace::InPlaceOfSame) {
            Empty(*same);
            return *same;
        }
        const QStringList names = ChapterNames();
        return CreateChapter(FreeName(name), names.isEmpty() ? QString() : names.last());
    }

    QString FreeName(const QString& name) const
    {
        if (!IsTaken(name))
            return name;
        const QDateTime kept = StateTime(state_.GetPath());
        const QString dated = QStringLiteral("%1 (%2)").arg(
            name, QLocale().toString(kept.date(), QLocale::ShortFormat));
        QString free = dated;
        for (int number = 2; IsTaken(free); ++number)
            free = QStringLiteral("%1 %2").arg(dated, QString::number(number));
        return free;
    }

    // Also by a chapter that is not listed.
    static bool IsTaken(const QString& name)
    {
        Statement taken(AlbumDatabase->GetEngine(), "SELECT 1 FROM Chapter WHERE Name=?1");
        taken.Bind(1, name);
        return taken.Step();
    }

    static void Empty(qint32 chapter)
    {
        for (const char* sql : {"DELETE FROM LinkedImages WHERE ParagraphId IN "
                                "(SELECT Id FROM Paragraph WHERE Chapter=?1)",
                                "DELETE FROM Paragraph WHERE Chapter=?1"}) {
            Statement removing(AlbumDatabase->GetEngine(), sql);
            removing.Bind(1, qint64(chapter));
            removing.Run();
        }
    }

    std::vector<qint32> ParagraphsOf(qint32 chapter) const
    {
        std::vector<ChainLink> links;
        Statement head(state_.GetEngine(), "SELECT FirstParagraph FROM Chapter WHERE Id=?1");
        head.Bind(1, qint64(chapter));
        const qint32 first = head.Step() ? qint32(head.GetInteger(0)) : 0;
        Statement reading(state_.GetEngine(), "SELECT Id, PreviousParagraph, NextParagraph FROM "
                                              "Paragraph WHERE Chapter=?1");
        reading.Bind(1, qint64(chapter));
        while (reading.Step())
            links.push_back({qint32(reading.GetInteger(0)), qint32(reading.GetInteger(1)),
                             qint32(reading.GetInteger(2))});
        std::vector<qint32> ids;
        for (const ChainLink& link : MendChain(links, first))
            ids.push_back(link.id);
        return ids;
    }

    void TakePicturesOf(qint32 paragraph)
    {
        Statement linked(state_.GetEngine(),
                         "SELECT DISTINCT File FROM LinkedImages WHERE ParagraphId=?1");
        linked.Bind(1, qint64(paragraph));
        while (linked.Step()) {
            const FieldValue file = linked.GetValue(0);
            Statement known(AlbumDatabase->GetEngine(), "SELECT 1 FROM Image WHERE File=?1");
            known.Bind(1, file);
            if (!known.Step())
                report_.pictures += pictures_.Copy(file, {});
        }
    }

    const Database& state_;
    ReturnPlace place_;
    RowCopy paragraphs_;
    RowCopy links_;
    RowCopy pictures_;
    ChapterReturnReport report_;
};

} // namespace

namespace GeneralModule {

ChapterReturnReport TakeBackChapters(const OpenState& state, const std::vector<qint32>& chapters,
                                     ReturnPlace place)
{
    KeepState(true);
    const UndoStep step(UndoStep::tr("Take Back Chapters"), StepCounts::Shown);
    WriteBatch batch(AlbumDatabase, WriteBatch::Commits::AtItsEnd);
    ChapterReturn work(state, place);
    for (const StateChapter& chapter : state.Chapters())
        if (std::find(chapters.begin(), chapters.end(), chapter.id) != chapters.end())
            work.TakeBack(chapter);
    batch.Finish();
    return work.GetReport();
}

} // namespace GeneralModule
