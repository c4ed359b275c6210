// SPDX-License-Identifier: MIT
#include "Descriptions.h"

#include "CommandLine.h"
#include "Translations.h"
#include "catalogue/ColumnTitles.h"
#include "catalogue/DescriptionCsv.h"
#include "catalogue/DescriptionSidecars.h"
#include "core/AlbumSets.h"

#include <QCommandLineParser>
#include <QCoreApplication>

namespace {

using namespace GeneralModule;

constexpr std::chrono::milliseconds sliceOfWork(100); // between two looks at signals

struct DescriptionsTexts
{
    Q_DECLARE_TR_FUNCTIONS(Descriptions)
};

struct TransferOptions
{
    QString toSidecars = QStringLiteral("sidecars");
    QString exports = QStringLiteral("export-descriptions");
    QString imports = QStringLiteral("import-descriptions");
    QString to = QStringLiteral("to");
    QString from = QStringLiteral("from");
    QString dryRun = QStringLiteral("dry-run");
    QString force = QStringLiteral("force");
};

template<typename SidecarWork>
void WorkToTheEnd(SidecarWork& work)
{
    while (work.Work(sliceOfWork))
        CheckSignals();
}

bool GoesOn(int)
{
    return !HasSignal();
}

int ExportSidecars()
{
    SidecarExport work;
    WorkToTheEnd(work);
    for (const QString& trouble : work.GetTroubles())
        Print(stderr, QStringLiteral("lumenark: ") + trouble);
    Print(stdout, DescriptionsTexts::tr("%n sidecar(s) written.", nullptr, work.GetWritten()));
    return work.GetTroubles().isEmpty() ? Whole : InPart;
}

int ExportTable(const QCommandLineParser& parser)
{
    const TransferOptions options;
    const auto count =
        ExportDescriptionTable(parser.value(options.to), parser.isSet(options.force), GoesOn);
    if (!count)
        throw Interrupted();
    Print(stdout, DescriptionsTexts::tr("%n picture(s) written.", nullptr, *count));
    return Whole;
}

// Says which titles of the table stand for nothing.
std::vector<ImportedDescription> ReadTable(const QString& path, bool& isWhole)
{
    const DescriptionTable table = ReadDescriptionTable(path);
    for (const QString& title : table.leftOut)
        Complain(path,
                 DescriptionsTexts::tr("The column \"%1\" fits none of the album.").arg(title));
    isWhole = isWhole && table.leftOut.isEmpty();
    return table.rows;
}

std::vector<ImportedDescription> ReadSidecars()
{
    SidecarImport work;
    WorkToTheEnd(work);
    return work.GetDescriptions();
}

void PrintCounts(const DescriptionComparison& comparison)
{
    const ChangeCounts counts = CountChanges(comparison.changes);
    Print(stdout, DescriptionsTexts::tr("%n picture(s) are described so already.", nullptr,
                                        comparison.same));
    Print(stdout, DescriptionsTexts::tr("%n picture(s) differ.", nullptr, counts.pictures));
    if (counts.legends > 0)
        Print(stdout, QStringLiteral("  ") +
                          DescriptionsTexts::tr("%n legend(s)", nullptr, counts.legends));
    for (int column = 0; column < columnCount; ++column) {
        const int number = counts.values[std::size_t(column)];
        if (number > 0)
            Print(stdout,
                  QStringLiteral("  ") + DescriptionsTexts::tr("%1: %n value(s)", nullptr, number)
                                             .arg(DistinctTitle(column)));
    }
    for (const auto& [column, value] : counts.newValues)
        Print(stdout,
              QStringLiteral("  ") +
                  DescriptionsTexts::tr("%1: new value \"%2\"").arg(DistinctTitle(column), value));
}

int ImportDescriptions(const QCommandLineParser& parser)
{
    const TransferOptions options;
    bool isWhole = true;
    const std::vector<ImportedDescription> imported =
        parser.isSet(options.toSidecars) ? ReadSidecars()
                                         : ReadTable(parser.value(options.from), isWhole);
    const DescriptionComparison comparison = CompareDescriptions(imported);
    for (const QString& file : comparison.unknown)
        Complain(file, DescriptionsTexts::tr("The album does not hold this picture."));
    for (const QString& file : comparison.repeated)
        Complain(file, DescriptionsTexts::tr("It comes a second time, which does not count."));
    PrintCounts(comparison);
    isWhole = isWhole && comparison.unknown.isEmpty() && comparison.repeated.isEmpty();
    if (!parser.isSet(options.dryRun) && !comparison.changes.empty()) {
        const auto result = ApplyChanges(comparison.changes, GoesOn);
        if (!result)
            throw Interrupted();
        Print(stdout, DescriptionsTexts::tr("%n picture(s) changed.", nullptr, result->pictures));
    }
    return isWhole ? Whole : InPart;
}

int Transfer(const QString& album, const QCommandLineParser& parser)
{
    const TransferOptions options;
    OpenWithGivenPassword(album, parser, [&album](const QString& password) {
        SetOpenedAlbum(std::make_unique<Album>(album, password));
    });
    if (parser.isSet(options.imports))
        return ImportDescriptions(parser);
    return parser.isSet(options.toSidecars) ? ExportSidecars() : ExportTable(parser);
}

// One album, one direction, and one place.
bool IsSound(const QCommandLineParser& parser)
{
    const TransferOptions options;
    const bool isExport = parser.isSet(options.exports);
    const QString& file = isExport ? options.to : options.from;
    const QString& otherFile = isExport ? options.from : options.to;
    return parser.positionalArguments().size() == 1 && isExport != parser.isSet(options.imports) &&
           parser.isSet(file) != parser.isSet(options.toSidecars) && !parser.isSet(otherFile) &&
           !(isExport && parser.isSet(options.dryRun));
}

// "--to --sidecars" is how many will read the usage; it must not make a file of that name.
QStringList ArgumentsAsMeant()
{
    QStringList arguments = QCoreApplication::arguments();
    for (const char* place : {"--to", "--from"}) {
        const qsizetype at = arguments.indexOf(QLatin1String(place));
        if (at >= 0 && arguments.value(at + 1) == QLatin1String("--sidecars"))
            arguments.removeAt(at);
    }
    return arguments;
}

} // namespace

bool IsDescriptionTransfer(int argc, char** argv)
{
    return HasOption(argc, argv, {"--export-descriptions", "--import-descriptions"});
}

void AddDescriptionOptions(QCommandLineParser& parser)
{
    const TransferOptions options;
    parser.addOption(
        {options.exports, DescriptionsTexts::tr(
                              "Write the legends and characteristics of the album's pictures, with "
                              "--to or --sidecars, without windows.")});
    parser.addOption(
        {options.imports,
         DescriptionsTexts::tr("Take legends and characteristics into the album, with --from or "
                               "--sidecars, without windows. Only what differs is changed. The "
                               "exit status is 3 when something was left out.")});
    parser.addOption(
        {options.to, DescriptionsTexts::tr("The table to write, as CSV."), QStringLiteral("FILE")});
    parser.addOption({options.from, DescriptionsTexts::tr("The table to read, as CSV."),
                      QStringLiteral("FILE")});
    parser.addOption({options.toSidecars,
                      DescriptionsTexts::tr("XMP files beside the pictures instead of a table.")});
    parser.addOption(
        {options.dryRun,
         DescriptionsTexts::tr("With --import-descriptions: only say what would change.")});
}

int RunDescriptionTransfer(int& argc, char** argv)
{
    QCoreApplication application(argc, argv);
    InstallTranslations(application);
    const TransferOptions options;
    QCommandLineParser parser;
    AddDescriptionOptions(parser);
    AddPasswordOption(parser);
    parser.addOption({options.force, DescriptionsTexts::tr("Replace a table that exists.")});
    const QCommandLineOption help = parser.addHelpOption();
    parser.addPositionalArgument(QStringLiteral("ALBUM"), DescriptionsTexts::tr("The album."));
    const bool isUnderstood = parser.parse(ArgumentsAsMeant());
    if (isUnderstood && parser.isSet(help))
        parser.showHelp(Whole);
    if (!isUnderstood || !IsSound(parser)) {
        Print(stderr,
              QStringLiteral("lumenark: ") +
                  (isUnderstood ? DescriptionsTexts::tr("descriptions need an album and one place")
                                : parser.errorText()));
        Print(stderr, DescriptionsTexts::tr(
                          "usage: lumenark --export-descriptions ALBUM --to FILE|--sidecars "
                          "[--password-file FILE] [--force]\n       lumenark "
                          "--import-descriptions ALBUM --from FILE|--sidecars [--password-file "
                          "FILE] [--dry-run]"));
        return BadUse;
    }
    const QString album = parser.positionalArguments().constFirst();
    return RunCommand(album, [&] { return Transfer(album, parser); });
}
