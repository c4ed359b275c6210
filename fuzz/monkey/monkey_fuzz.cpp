// SPDX-License-Identifier: MIT
// Random keys and clicks over all windows, with albums of many kinds and without one; boxes are
// answered at random. No crash, no hang, no error that a window does not catch, and the albums are
// whole afterwards.
#include "core/Album.h"
#include "core/RandomNumbers.h"
#include "core/StartUp.h"
#include "fuzz/AlbumState.h"
#include "fuzz/Trials.h"
#include "fuzz/monkey/Confinement.h"
#include "fuzz/monkey/Monkey.h"
#include "fuzz/monkey/MonkeyAlbums.h"
#include "fuzz/monkey/RandomDialogs.h"
#include "platform/widgets/HeldEscape.h"
#include "platform/widgets/HelpWindow.h"
#include "publish/frmPublish.h"
#include "support/AlbumFixture.h"
#include "ui/main/frmEarlierStates.h"
#include "ui/main/frmOpenChapter.h"

#include <QApplication>
#include <QDir>
#include <QTemporaryDir>

#include <cstdio>

#include <sys/wait.h>
#include <unistd.h>

using namespace GeneralModule;

namespace {

constexpr int skipped = 77; // as CTest knows it
constexpr int maxActions = 250;

// As the program's own, but an error that comes up here is a fault.
class Program : public QApplication
{
public:
    Program(int& argc, char** argv, Trials& trials) : QApplication(argc, argv), trials_(trials) {}

    bool notify(QObject* receiver, QEvent* event) override
    {
        try {
            return QApplication::notify(receiver, event);
        } catch (const std::exception& error) {
            trials_.Fault(QStringLiteral("uncaught: ") + QString::fromUtf8(error.what()));
            return true;
        }
    }

private:
    Trials& trials_;
};

void CopyFiles(const QString& from, const QString& to)
{
    QDir(to).removeRecursively();
    QDir().mkpath(to);
    for (const QString& name : QDir(from).entryList(QDir::Files))
        QFile::copy(from + '/' + name, to + '/' + name);
}

void LookAtAlbums(Trials& trials, const QString& folder, const QStringList& passwords)
{
    for (const QString& name : QDir(folder).entryList({QStringLiteral("*.alb")}, QDir::Files)) {
        const QString path = folder + '/' + name;
        if (QFileInfo(path).size() < 1024)
            continue; // never was one
        try {
            const QByteArray state = StateOf(path, passwords);
            if (!IsWhole(name) || !OpenAlbum(path, PasswordIn(state)))
                continue;
            const QString fault = FaultOfChains(0);
            if (!fault.isEmpty())
                trials.Fault(name + QStringLiteral(": ") + fault);
        } catch (const std::exception& error) {
            trials.Fault(name + QStringLiteral(": ") + QString::fromUtf8(error.what()));
        }
        ReleaseAlbum();
    }
}

void Play(Trials& trials, Monkey& monkey, RandomDialogs& dialogs, const QString& folder,
          const QString& album)
{
    const World world;
    SeedRandom(std::uint32_t(trials.Random()()));
    frmOpenChapter window(album.isEmpty() ? QString() : folder + '/' + album);
    window.show();
    monkey.Play(window, 1 + trials.Below(maxActions));
    if (monkey.GetVisits().size() > 1)
        trials.CountAccepted();
    window.close();
    ReleaseAlbum();
    LookAtAlbums(trials, folder, dialogs.TakeTexts() + QStringList(albumPassword));
}

// Everything that the program would look for elsewhere lies in the folder.
void LiveIn(const QString& folder)
{
    QDir().mkpath(folder);
    QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    for (const char* place : {"TMPDIR", "HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME",
                              "XDG_CACHE_HOME", "XDG_RUNTIME_DIR"})
        qputenv(place, QFile::encodeName(folder));
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
}

int PlayIn(const QString& root, int argc, char** argv)
{
    Trials trials(argc, argv, 120);
    LiveIn(root + "/home");
    if (!ConfineWritingTo(root)) {
        std::printf("This system cannot keep the program's writing within a folder.\n");
        return skipped;
    }
    Program program(argc, argv, trials);
    InstallHelpKey(HelpFile());
    InstallHeldEscapeFilter();
    // A second program would outlive this one.
    frmPublish::Show = [](const QString&) {};
    frmEarlierStates::LookInto = [](const QString&) { return true; };
    RandomDialogs dialogs(trials);
    // Pictures are named by where they lie, so the albums are played with where they were made.
    const QString made = root + "/made";
    const QString kept = root + "/kept";
    const QStringList albums = MakeAlbums(made) + QStringList({"", "text.alb", "empty.alb"});
    LookAtAlbums(trials, made, {albumPassword}); // sound to begin with
    CopyFiles(made, kept);
    dialogs.SetFolder(made);

    Monkey monkey(trials);
    while (trials.Next()) {
        CopyFiles(kept, made);
        const QString album = trials.AnyOf(albums);
        trials.AddInput("with " + album.toUtf8());
        Play(trials, monkey, dialogs, made, album);
    }
    for (auto visit = monkey.GetVisits().cbegin(); visit != monkey.GetVisits().cend(); ++visit)
        std::printf("%-24s %8d actions\n", qPrintable(visit.key()), visit.value());
    return trials.Finish();
}

} // namespace

// The folder is made and removed by a process that may do so.
int main(int argc, char** argv)
{
    const QTemporaryDir root;
    const pid_t player = fork();
    if (player == 0) {
        const int status = PlayIn(root.path(), argc, argv);
        std::fflush(stdout);
        _exit(status);
    }
    int status = 0;
    if (player < 0 || waitpid(player, &status, 0) < 0 || !WIFEXITED(status))
        return 1;
    return WEXITSTATUS(status);
}
