// SPDX-License-Identifier: MIT
// Undo: whatever was done to an album by the program's own routines, taking it back leads through
// each state that the album had, to the first one, and making it again leads to the last one. A
// trial is one album; half of them have a password.
#include "core/AlbumPassword.h"
#include "core/AlbumSets.h"
#include "core/UndoHistory.h"
#include "fuzz/Trials.h"
#include "tests/story/RandomAuthor.h"

#include "support/ScriptedDialogs.h"

#include <QCoreApplication>
#include <QCryptographicHash>

using namespace GeneralModule;

namespace {

// Actions of one trial; a whole album's life when asked for.
int actions = 500;

constexpr int lookEvery = 10; // steps taken back between two looks at the album

QByteArray Digest()
{
    return QCryptographicHash::hash(StateOfOpenAlbum().join('\n'), QCryptographicHash::Md5);
}

std::size_t CountSteps()
{
    return OpenedAlbum().history->Of(UndoHistory::Direction::Undo).size();
}

class Life
{
public:
    explicit Life(Trials& trials) : trials_(trials)
    {
        if (trials.OneIn(2))
            SetAlbumPassword(QStringLiteral("secret"));
    }

    void Live()
    {
        Write();
        for (int turn = 0; turn < 3 && !hasFailed_; ++turn)
            GoBackAndForth(trials_.Below(qsizetype(states_.size())));
        GoBackAndForth(int(states_.size()) - 1);
        trials_.CountAccepted();
    }

private:
    void Write()
    {
        RandomAuthor author(album_, trials_.Random()());
        states_ = {Digest()};
        for (int i = 0; i < actions; ++i) {
            author.Act();
            if (CountSteps() == states_.size())
                states_.push_back(Digest());
        }
        trials_.AddInput("steps " + QByteArray::number(qulonglong(states_.size())));
    }

    void GoBackAndForth(int steps)
    {
        trials_.AddInput("back " + QByteArray::number(steps));
        for (int done = 0; done < steps; ++done) {
            Undo();
            if (done % lookEvery == 0 || done == steps - 1)
                Expect(states_.size() - 2 - std::size_t(done), "another state after an undo");
        }
        if (steps > 0)
            Redo(steps);
        Expect(states_.size() - 1, "another state after a redo");
    }

    void Expect(std::size_t state, const char* what)
    {
        if (hasFailed_ || Digest() == states_[state])
            return;
        trials_.Fault(QString::fromLatin1(what));
        hasFailed_ = true;
    }

    Trials& trials_;
    PatientDialogs dialogs_;
    AlbumFixture album_;
    std::vector<QByteArray> states_;
    bool hasFailed_ = false;
};

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    constexpr int longestTrial = 1200; // seconds, for the longest life
    Trials trials(argc, argv, longestTrial);
    if (!trials.GetFiles().isEmpty())
        actions = trials.GetFiles().first().toInt();
    return trials.Run([&] { Life(trials).Live(); });
}
