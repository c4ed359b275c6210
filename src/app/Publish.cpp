// SPDX-License-Identifier: MIT
#include "Publish.h"

#include "CommandLine.h"
#include "Translations.h"
#include "core/AlbumSets.h"
#include "core/PictureList.h"
#include "publish/Publication.h"

#include <QCommandLineParser>
#include <QFileInfo>
#include <QGuiApplication>

#include <chrono>
#include <map>

#include <unistd.h>

namespace {

using namespace GeneralModule;

struct PublishTexts
{
    Q_DECLARE_TR_FUNCTIONS(Publish)
};

struct PublishOptions
{
    QString publish = QStringLiteral("publish");
    QString as = QStringLiteral("as");
    QString to = QStringLiteral("to");
    QString chapter = QStringLiteral("chapter");
    QString size = QStringLiteral("size");
    QString most = QStringLiteral("most");
    QString force = QStringLiteral("force");
};

const std::map<QString, PublishAs> kinds{{QStringLiteral("web"), PublishAs::Pages},
                                         {QStringLiteral("page"), PublishAs::SinglePage},
                                         {QStringLiteral("pdf"), PublishAs::Book},
                                         {QStringLiteral("album"), PublishAs::Album}};

constexpr int smallestSize = 64; // pixels, or dots per inch of a book
constexpr int largestSize = 20'000;

// Tells on a terminal how far it is, ten times a second.
class TerminalProgress
{
public:
    bool Advance(PublishStage stage, int done, int total)
    {
        using namespace std::chrono_literals;
        const auto now = std::chrono::steady_clock::now();
        if (isTerminal_ && now - shown_ > 100ms) {
            shown_ = now;
            const QString line = stage == PublishStage::Reading
                                     ? PublishTexts::tr("Reading paragraph %1 of %2")
                                     : PublishTexts::tr("Picture %1 of %2");
            std::fprintf(stderr, "\r%s\033[K",
                         line.arg(std::min(done + 1, total)).arg(total).toLocal8Bit().constData());
            std::fflush(stderr);
        }
        return !HasSignal();
    }

    ~TerminalProgress()
    {
        if (isTerminal_)
            std::fputs("\r\033[K", stderr);
    }

private:
    bool isTerminal_ = isatty(STDERR_FILENO) != 0;
    std::chrono::steady_clock::time_point shown_;
};

// The number that an option gives, or the proposal without the option; throws Trouble.
int NumberOf(const QCommandLineParser& parser, const QString& option, int proposal, int smallest,
             int largest)
{
    if (!parser.isSet(option))
        return proposal;
    bool isNumber = false;
    const int number = parser.value(option).toInt(&isNumber);
    if (!isNumber || number < smallest || number > largest)
        throw Trouble{
            QStringLiteral("--") + option,
            PublishTexts::tr("It takes a number from %1 to %2.").arg(smallest).arg(largest)};
    return number;
}

Publication PublicationOf(const QCommandLineParser& parser)
{
    const PublishOptions options;
    Publication publication;
    publication.as = kinds.at(parser.value(options.as));
    publication.place = QFileInfo(parser.value(options.to)).absoluteFilePath();
    publication.story.chapters = parser.values(options.chapter);
    publication.story.mostPictures =
        NumberOf(parser, options.most, proposedMostPictures, 0, maxListed);
    const int size = NumberOf(parser, options.size, 0, smallestSize, largestSize);
    publication.pages.size = size > 0 ? size : proposedWebSize;
    publication.book.resolution = size;
    publication.travel.longestEdge = size;
    return publication;
}

int PublishAlbum(const QString& album, const QCommandLineParser& parser)
{
    const Publication publication = PublicationOf(parser);
    if (!publication.IsFolder() && !parser.isSet(PublishOptions().force) &&
        QFileInfo::exists(publication.place))
        throw Trouble{publication.place,
                      PublishTexts::tr("It exists already; --force replaces it.")};
    OpenWithGivenPassword(album, parser, [&album](const QString& password) {
        SetOpenedAlbum(std::make_unique<Album>(QFileInfo(album).absoluteFilePath(), password));
    });
    TerminalProgress progress;
    const PublishReport report = Publish(publication, [&](PublishStage stage, int done, int total) {
        return progress.Advance(stage, done, total);
    });
    if (report.isStopped)
        throw Interrupted();
    Print(stdout, DescribePublishReport(report));
    return report.IsWhole() ? Whole : InPart;
}

// One album, one kind that there is, and one place; an album is taken along with all chapters.
bool IsSoundPublishing(const QCommandLineParser& parser)
{
    const PublishOptions options;
    const auto kind = kinds.find(parser.value(options.as));
    return parser.positionalArguments().size() == 1 && kind != kinds.end() &&
           !parser.value(options.to).isEmpty() &&
           (kind->second != PublishAs::Album ||
            (!parser.isSet(options.chapter) && !parser.isSet(options.most))) &&
           (kind->second != PublishAs::SinglePage || !parser.isSet(options.size));
}

} // namespace

bool IsPublishing(int argc, char** argv)
{
    return HasOption(argc, argv, {"--publish"});
}

void AddPublishOptions(QCommandLineParser& parser)
{
    const PublishOptions options;
    parser.addOption(
        {options.publish,
         PublishTexts::tr("Publish the album's story, with --as and --to, without windows. The "
                          "exit status is 3 when the result lacks pictures.")});
    parser.addOption(
        {options.as,
         PublishTexts::tr("With --publish: \"web\" for pages in a folder, \"page\" for one page in "
                          "a file, \"pdf\" for a book, \"album\" for a copy of the album with its "
                          "pictures in a folder."),
         QStringLiteral("KIND")});
    parser.addOption({options.chapter,
                      PublishTexts::tr("With --publish: only this chapter; may be given again."),
                      QStringLiteral("NAME")});
    parser.addOption({options.size,
                      PublishTexts::tr("With --publish: longest edge of the largest pictures in "
                                       "pixels; of a book their dots per inch."),
                      QStringLiteral("N")});
    parser.addOption({options.most,
                      PublishTexts::tr("With --publish: how many pictures a paragraph shows at "
                                       "most; %1 when it is not given.")
                          .arg(proposedMostPictures),
                      QStringLiteral("N")});
}

int RunPublishing(int& argc, char** argv)
{
    // Texts of a book need fonts, which need a platform; this one needs no display.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv);
    InstallTranslations(application);
    const PublishOptions options;
    QCommandLineParser parser;
    AddPublishOptions(parser);
    AddPasswordOption(parser);
    parser.addOption({options.to, PublishTexts::tr("The folder or file to publish into."),
                      QStringLiteral("PLACE")});
    parser.addOption({options.force, PublishTexts::tr("Replace a file that exists.")});
    const QCommandLineOption help = parser.addHelpOption();
    parser.addPositionalArgument(QStringLiteral("ALBUM"), PublishTexts::tr("The album."));
    const bool isUnderstood = parser.parse(QCoreApplication::arguments());
    if (isUnderstood && parser.isSet(help))
        parser.showHelp(Whole);
    if (!isUnderstood || !IsSoundPublishing(parser)) {
        Print(stderr,
              QStringLiteral("lumenark: ") +
                  (isUnderstood ? PublishTexts::tr("--publish needs an album, a kind and a place")
                                : parser.errorText()));
        Print(stderr,
              PublishTexts::tr("usage: lumenark --publish ALBUM --as web|page|pdf|album --to PLACE "
                               "[--chapter NAME]... [--size N] [--most N] [--password-file FILE] "
                               "[--force]"));
        return BadUse;
    }
    const QString album = parser.positionalArguments().constFirst();
    return RunCommand(album, [&] {
        try {
            return PublishAlbum(album, parser);
        } catch (const PublishError& error) {
            throw Trouble{parser.value(options.to), error.GetText()};
        }
    });
}
