// SPDX-License-Identifier: MIT
// large_album_benchmark [--repetitions N] [--only TEXT] [PICTURES...]
// Everything that a user can do and that might take longer in a larger album, in albums of 10,000,
// 100,000 and 1,000,000 pictures unless other sizes are given. The albums are made in the temporary
// folder, and want 4 GB of it at the largest size.
#include "LargeAlbum.h"
#include "Measurement.h"

#include "platform/dialogs/Dialogs.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QSettings>

#include <cstdio>
#include <cstdlib>

namespace {

// Confirms messages; work runs in the caller's thread.
class Confirming : public Dialogs
{
public:
    Answer Ask(const Box&) override { return Answer::Ok; }
    QString AskText(const Input&) override { return {}; }
    QString AskOpenFile(const FileChoice&) override { return {}; }
    QString AskSaveFile(const FileChoice&) override { return {}; }
};

int RunAll(const QCommandLineParser& parser)
{
    QStringList sizes = parser.positionalArguments();
    if (sizes.isEmpty())
        sizes = QStringList{QStringLiteral("10000"), QStringLiteral("100000"),
                            QStringLiteral("1000000")};
    Measurement measurement(std::max(1, parser.value(QStringLiteral("repetitions")).toInt()));
    const std::string named = parser.value(QStringLiteral("only")).toStdString();
    for (const QString& size : sizes) {
        const int pictures = size.toInt();
        if (pictures < 10'000 || pictures % 10'000 != 0) {
            std::fprintf(stderr, "not a multiple of 10000: %s\n", qPrintable(size));
            return EXIT_FAILURE;
        }
        LargeAlbum album(pictures);
        for (const auto& actions :
             {AlbumActions(), WindowActions(), StoryActions(), CatalogueActions()})
            measurement.Run(actions, album, named);
    }
    measurement.Print();
    return EXIT_SUCCESS;
}

} // namespace

int main(int argc, char** argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QTemporaryDir settings;
    qputenv("XDG_CACHE_HOME", QFile::encodeName(settings.path()));
    qputenv("XDG_DATA_HOME", QFile::encodeName(settings.path()));
    const QApplication application(argc, argv);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, settings.path());
    Confirming dialogs;
    Dialogs::Install(&dialogs);
    QCommandLineParser parser;
    parser.addOption({QStringLiteral("repetitions"), {}, QStringLiteral("N"), QStringLiteral("3")});
    parser.addOption({QStringLiteral("only"), {}, QStringLiteral("TEXT")});
    parser.process(application);
    return RunAll(parser);
}
