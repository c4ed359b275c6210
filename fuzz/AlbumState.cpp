// SPDX-License-Identifier: MIT
#include "fuzz/AlbumState.h"

#include "core/AlbumSets.h"
#include "core/ChapterChain.h"
#include "platform/data/DatabaseError.h"
#include "story/ParagraphMoves.h"

#include <sqlcipher/sqlite3.h>

#include <QFileInfo>
#include <QSet>

#include <stdexcept>

using namespace GeneralModule;

namespace {

QByteArrayList Lines(sqlite3* engine, const QByteArray& sql)
{
    QByteArrayList lines;
    const auto add = [](void* target, int count, char** values, char**) {
        QByteArrayList line;
        for (int i = 0; i < count; ++i)
            line += values[i] ? QByteArray(values[i]) : QByteArray("NULL");
        static_cast<QByteArrayList*>(target)->append(line.join('|'));
        return 0;
    };
    if (sqlite3_exec(engine, sql, add, &lines, nullptr) != SQLITE_OK)
        throw std::runtime_error(sqlite3_errmsg(engine));
    return lines;
}

// For whoever looks for what went wrong.
QString Links()
{
    sqlite3* engine = AlbumDatabase->GetEngine();
    const QByteArrayList links =
        Lines(engine, "SELECT 'chapter',Id,FirstParagraph,PreviousChapter,NextChapter,"
                      "substr(Name,1,20) FROM Chapter") +
        Lines(engine, "SELECT 'paragraph',Id,Chapter,PreviousParagraph,NextParagraph,"
                      "length(Text) FROM Paragraph");
    return QString::fromUtf8(links.join("; "));
}

std::shared_ptr<Database> OpenWithAny(const QString& album, const QStringList& passwords)
{
    for (const QString& password : passwords) {
        try {
            return Database::Open(album, password);
        } catch (const DatabaseError& error) {
            if (error.GetNumber() != DatabaseError::WrongPassword)
                throw;
        }
    }
    throw std::runtime_error("no password opens it");
}

} // namespace

QByteArray StateOf(const QString& album, const QStringList& passwords)
{
    if (!QFileInfo::exists(album))
        return {};
    const std::shared_ptr<Database> database = OpenWithAny(album, passwords);
    sqlite3* engine = database->GetEngine();
    const QByteArray check = Lines(engine, "PRAGMA integrity_check").join(' ');
    if (check != "ok")
        throw std::runtime_error("damaged: " + check.toStdString());
    QByteArrayList state{"password " + database->GetPassword().toUtf8()};
    for (const QByteArray& table :
         Lines(engine, "SELECT name FROM sqlite_master WHERE type='table' ORDER BY name")) {
        state += "table " + table;
        state += Lines(engine, "SELECT rowid,* FROM \"" + table + "\" ORDER BY rowid");
    }
    return state.join('\n');
}

QString PasswordIn(const QByteArray& state)
{
    return QString::fromUtf8(state.left(state.indexOf('\n')).mid(qstrlen("password ")));
}

bool IsBetween(const QByteArray& state, const QByteArray& before, const QByteArray& after)
{
    const QByteArrayList old = before.split('\n');
    const QByteArrayList other = after.split('\n');
    const QSet<QByteArray> either =
        QSet<QByteArray>(old.begin(), old.end()) + QSet<QByteArray>(other.begin(), other.end());
    QSet<QByteArray> rows;
    for (const QByteArray& line : state.split('\n')) {
        if (!either.contains(line))
            return false;
        rows.insert(line);
    }
    for (const QByteArray& line : old) {
        if (!rows.contains(line) && other.contains(line))
            return false;
    }
    return state.count('\n') >= before.count('\n') && state.count('\n') <= after.count('\n');
}

QString FaultOfChains(int maxAside)
{
    const QStringList chapters = ChapterNames();
    if (chapters.size() != ChapterSet->RecordCount())
        return QStringLiteral("%1 of %2 chapters are listed")
            .arg(chapters.size())
            .arg(ChapterSet->RecordCount());
    QSet<qint32> reached;
    for (const QString& chapter : chapters) {
        for (const ParagraphLine& line : ListParagraphs(FindChapter(chapter).value_or(0)))
            reached.insert(line.paragraph);
    }
    int aside = 0;
    for (ParagraphSet->MoveFirst(); !ParagraphSet->AtEnd(); ParagraphSet->MoveNext()) {
        if (reached.contains(ParagraphSet->Number(u"Id")))
            continue;
        if (++aside > maxAside || !ParagraphSet->TextOrEmpty(u"Text").isEmpty())
            return QStringLiteral("paragraph %1 is not reached; %2")
                .arg(ParagraphSet->Number(u"Id"))
                .arg(Links());
    }
    return {};
}
