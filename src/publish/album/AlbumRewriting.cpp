// SPDX-License-Identifier: MIT
#include "publish/album/AlbumRewriting.h"

#include "core/AlbumSets.h"
#include "core/ChapterChain.h"
#include "core/PictureList.h"
#include "platform/data/Statement.h"
#include "platform/data/WriteBatch.h"
#include "publish/album/TravelPatterns.h"
#include "story/PictureFilter.h"

#include <QCoreApplication>
#include <QSet>

#include <exception>

using namespace GeneralModule;

namespace {

constexpr int rowsAtOnce = 500; // between two looks at the user

// A pattern that no picture's name fits: it lies in no folder.
const QString noPicture = QStringLiteral("-");

struct RewritingTexts
{
    Q_DECLARE_TR_FUNCTIONS(AlbumRewriting)
};

class StoppedRewriting : public std::exception
{
};

class Rewriter
{
public:
    Rewriter(const AlbumRewriting& rewriting, const PublishProgress& progress)
        : rewriting_(rewriting),
          progress_(progress),
          database_(Database::Open(rewriting.copy, AlbumDatabase->GetPassword()))
    {
        for (int i = 0; i < int(rewriting.names.size()); ++i)
            numbers_.insert(rewriting.names[i], i);
    }

    QStringList Run()
    {
        // Nothing that is taken out can be found in the file's free pages.
        database_->Execute("PRAGMA secure_delete=ON");
        WriteBatch batch(database_, WriteBatch::Commits::AtItsEnd);
        Rename("Image", "UPDATE Image SET File=?1 WHERE rowid=?2");
        database_->Execute("UPDATE Image SET SourceFile='' WHERE SourceFile<>''");
        Rename("LinkedImages", "UPDATE LinkedImages SET File=?1 WHERE rowid=?2");
        database_->Execute("UPDATE Params SET Value='' WHERE Param='LastFileSelection'");
        for (const TravelParagraph& paragraph : rewriting_.contents.paragraphs)
            SetPattern(paragraph, TravelPattern(paragraph.query.fileSelection, rewriting_.folders));
        RecordSet images(database_, QStringLiteral("Image"));
        for (const TravelParagraph& paragraph : rewriting_.contents.paragraphs) {
            GoOn();
            Prove(paragraph, images);
            ++done_;
        }
        GoOn();
        batch.Finish();
        return troubles_;
    }

private:
    void GoOn() const
    {
        if (!progress_(done_, int(rewriting_.contents.paragraphs.size())))
            throw StoppedRewriting();
    }

    // Rows of pictures that do not go along are taken out; so are links that no paragraph has.
    void Rename(const QByteArray& table, const QByteArray& sql)
    {
        std::vector<std::pair<qint64, QString>> rows;
        Statement reading(database_->GetEngine(), "SELECT rowid, File FROM " + table);
        while (reading.Step())
            rows.emplace_back(reading.GetInteger(0), QString::fromUtf8(reading.GetUtf8(1)));
        Statement naming(database_->GetEngine(), sql);
        Statement removing(database_->GetEngine(), "DELETE FROM " + table + " WHERE rowid=?1");
        int written = 0;
        for (const auto& [row, file] : rows) {
            const int number = rewriting_.contents.numbers.value(file, -1);
            if (number >= 0) {
                naming.Bind(1, rewriting_.names[number]);
                naming.Bind(2, row);
                naming.Run();
            } else if (!file.isEmpty()) {
                removing.Bind(1, row);
                removing.Run();
            }
            if (++written % rowsAtOnce == 0)
                GoOn();
        }
    }

    void SetPattern(const TravelParagraph& paragraph, const QString& pattern)
    {
        if (pattern == paragraph.query.fileSelection)
            return;
        Statement writing(database_->GetEngine(),
                          "UPDATE Paragraph SET FileSelection=?1 WHERE Id=?2");
        writing.Bind(1, pattern);
        writing.Bind(2, qint64(paragraph.id));
        writing.Run();
    }

    void Prove(const TravelParagraph& paragraph, RecordSet& images)
    {
        if (!paragraph.isReadable || Shown(paragraph, images) == paragraph.pictures)
            return;
        LinkFound(paragraph);
        SetPattern(paragraph, noPicture);
        const bool isKept = Shown(paragraph, images) == paragraph.pictures;
        const QString text =
            isKept ? RewritingTexts::tr("Chapter \"%1\", paragraph %2: the file pattern cannot go "
                                        "along, so its pictures are linked by hand in the copy.")
                   : RewritingTexts::tr(
                         "Chapter \"%1\", paragraph %2: it shows other pictures in the copy.");
        troubles_ += text.arg(ChapterTitle(paragraph.chapter), QString::number(paragraph.id));
    }

    // What the paragraph shows in the copy, by the pictures' numbers: as BuildPictureList makes it,
    // for an album that is not the open one.
    std::vector<int> Shown(const TravelParagraph& paragraph, RecordSet& images) const
    {
        PictureQuery query = paragraph.query;
        Statement stored(database_->GetEngine(), "SELECT FileSelection FROM Paragraph WHERE Id=?1");
        stored.Bind(1, qint64(paragraph.id));
        if (stored.Step())
            query.fileSelection = QString::fromUtf8(stored.GetUtf8(0));
        std::vector<int> shown;
        QSet<QString> linked;
        Statement links(database_->GetEngine(),
                        "SELECT File FROM LinkedImages WHERE ParagraphId=?1 ORDER BY rowid");
        links.Bind(1, qint64(paragraph.id));
        while (links.Step()) {
            const QString file = QString::fromUtf8(links.GetUtf8(0));
            linked.insert(file);
            shown.push_back(numbers_.value(file, -1));
        }
        const QString filter = BuildPictureFilter(query);
        const RecordSet::Walk walk(images);
        for (images.FindFirst(filter); !images.NoMatch() && shown.size() < maxListed;
             images.FindNext(filter)) {
            const QString file = images.TextOrEmpty(u"File");
            if (!linked.contains(file))
                shown.push_back(numbers_.value(file, -1));
            if (shown.size() % rowsAtOnce == 0)
                GoOn();
        }
        return shown;
    }

    void LinkFound(const TravelParagraph& paragraph)
    {
        Statement linking(database_->GetEngine(),
                          "INSERT INTO LinkedImages (ParagraphId, File) VALUES (?1, ?2)");
        for (std::size_t i = paragraph.linked; i < paragraph.pictures.size(); ++i) {
            const int number = paragraph.pictures[i];
            linking.Bind(1, qint64(paragraph.id));
            linking.Bind(2, number < 0 ? QString() : rewriting_.names[number]);
            linking.Run();
        }
    }

    const AlbumRewriting& rewriting_;
    const PublishProgress& progress_;
    std::shared_ptr<Database> database_;
    QHash<QString, int> numbers_; // by the names in the copy
    QStringList troubles_;
    int done_ = 0;
};

} // namespace

std::optional<QStringList> RewriteAlbum(const AlbumRewriting& rewriting,
                                        const PublishProgress& progress)
{
    try {
        return Rewriter(rewriting, progress).Run();
    } catch (const StoppedRewriting&) {
        return {};
    }
}
