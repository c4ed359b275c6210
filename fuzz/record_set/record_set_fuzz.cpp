// SPDX-License-Identifier: MIT
// Two record sets over one table, changed and read in any order, with walks and batches open or
// not: what they show and what the file holds is what a model in memory says.
#include "core/AlbumSets.h"
#include "fuzz/RunStatements.h"
#include "fuzz/record_set/Cursor.h"
#include "platform/data/WriteBatch.h"

#include <QCoreApplication>

#include <deque>

namespace {

using GeneralModule::AlbumDatabase;

// Batches inside each other, each with what it would go back to.
class Batches
{
public:
    Batches(Trials& trials, Model& model) : trials_(trials), model_(model) {}
    ~Batches()
    {
        while (!open_.empty())
            open_.pop_back();
    }

    // True when rows went with one that was given up.
    bool Act()
    {
        if (open_.size() < 3 && trials_.OneIn(2)) {
            Begin();
            return false;
        }
        return !open_.empty() && End();
    }

    bool IsOpen() const { return !open_.empty(); }

private:
    void Begin()
    {
        const bool atItsEnd = trials_.OneIn(2);
        trials_.AddInput(atItsEnd ? "batch, all or none" : "batch");
        if (open_.empty()) {
            before_ = model_;
            isAllOrNone_ = atItsEnd;
        }
        open_.push_back(
            std::make_unique<WriteBatch>(AlbumDatabase, atItsEnd ? WriteBatch::Commits::AtItsEnd
                                                                 : WriteBatch::Commits::OnItsWay));
    }

    bool End()
    {
        const bool isFinished = trials_.OneIn(2);
        trials_.AddInput(isFinished ? "finish" : "give up");
        if (isFinished)
            open_.back()->Finish();
        open_.pop_back();
        if (isFinished || !open_.empty() || !isAllOrNone_)
            return false;
        model_ = before_;
        return true;
    }

    Trials& trials_;
    Model& model_;
    Model before_;
    bool isAllOrNone_ = false;
    std::vector<std::unique_ptr<WriteBatch>> open_;
};

// What another program sees in the file.
QString FaultOfFile(const AlbumFixture& album, const Model& model)
{
    QStringList expected;
    for (const auto& [id, row] : model.rows) {
        QString line = QString::number(id);
        for (const Text& value : row)
            line += '|' + value.value_or(QStringLiteral("NULL"));
        expected += line;
    }
    const QStringList found =
        album.Rows("SELECT Id,Text,Car0,FileSelection,Chapter FROM Paragraph ORDER BY Id");
    return found == expected
               ? QString()
               : QStringLiteral("the file holds %1, not %2")
                     .arg(found.join(QLatin1String("; ")), expected.join(QLatin1String("; ")));
}

void Try(Trials& trials, const AlbumFixture& album, Model& model)
{
    for (int i = 0; i < 5; ++i) {
        RunStatements("INSERT INTO Paragraph(Text,Car0) VALUES('a',NULL)");
        model.rows[++model.lastId] = {QStringLiteral("a"), std::nullopt, std::nullopt,
                                      QStringLiteral("0")};
    }
    std::deque<Cursor> cursors;
    for (int i = 0; i < 2; ++i)
        cursors.emplace_back(trials, model);
    Batches batches(trials, model);
    for (int i = trials.Below(120); i >= 0; --i) {
        if (trials.OneIn(12)) {
            // An open walk may hold what a batch that is given up takes back.
            for (Cursor& cursor : cursors)
                cursor.EndWalk();
            if (batches.Act()) {
                for (Cursor& cursor : cursors)
                    cursor.Forget();
            }
        } else {
            trials.AnyOf(cursors);
            cursors[std::size_t(trials.Below(2))].Act();
        }
    }
    while (batches.IsOpen()) {
        for (Cursor& cursor : cursors)
            cursor.EndWalk();
        if (batches.Act()) {
            for (Cursor& cursor : cursors)
                cursor.Forget();
        }
    }
    cursors.clear(); // and with them every lock
    const QString fault = FaultOfFile(album, model);
    if (!fault.isEmpty())
        trials.Fault(fault);
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const AlbumFixture album;
    AlbumDatabase->Execute("PRAGMA synchronous=OFF");
    Trials trials(argc, argv, 20);
    return trials.Run([&] {
        // The numbers start again, so that a trial does the same alone.
        RunStatements("DELETE FROM Paragraph; DELETE FROM sqlite_sequence");
        Model model;
        Try(trials, album, model);
        trials.CountAccepted();
    });
}
