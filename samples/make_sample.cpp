// SPDX-License-Identifier: MIT
// Makes the sample story: make_sample [--relative] FOLDER ALBUM.alb
#include "SampleStory.h"

#include "platform/dialogs/Dialogs.h"

#include <QGuiApplication>
#include <QSettings>
#include <QTemporaryDir>
#include <QTextStream>

namespace {

// Nobody is there to answer; what would be said goes to the error channel.
class ConsoleDialogs : public Dialogs
{
public:
    Answer Ask(const Box& box) override
    {
        QTextStream(stderr) << box.text << '\n';
        return Answer::Ok;
    }
    QString AskText(const Input&) override { return {}; }
    QString AskOpenFile(const FileChoice&) override { return {}; }
    QString AskSaveFile(const FileChoice&) override { return {}; }
};

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    QStringList arguments = QGuiApplication::arguments();
    const bool isRelative = arguments.removeAll(QStringLiteral("--relative")) > 0;
    if (arguments.size() != 3) {
        QTextStream(stderr) << "usage: make_sample [--relative] FOLDER ALBUM.alb\n";
        return 2;
    }
    const auto paths = isRelative ? PicturePaths::Relative : PicturePaths::Absolute;
    // The user's own last album is not to be forgotten for this one.
    const QTemporaryDir settings;
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, settings.path());
    ConsoleDialogs dialogs;
    Dialogs::Install(&dialogs);
    try {
        return WriteSampleStory(arguments[1], arguments[2], paths) ? 0 : 1;
    } catch (const std::exception& error) {
        QTextStream(stderr) << "make_sample: " << error.what() << '\n';
        return 1;
    }
}
