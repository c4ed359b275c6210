// SPDX-License-Identifier: MIT
#include "ui/main/DescriptionTransfer.h"

#include "catalogue/ChangeText.h"
#include "catalogue/DescriptionCsv.h"
#include "catalogue/DescriptionSidecars.h"
#include "core/Album.h"
#include "platform/dialogs/Dialogs.h"
#include "platform/widgets/BusyPointer.h"
#include "platform/widgets/WorkProgress.h"

#include <QFileInfo>
#include <QScopeGuard>

#include <stdexcept>

namespace {

constexpr std::chrono::milliseconds slice(20); // between two looks at the stop button
constexpr qsizetype maxLines = 12;             // of a message box

QString TableFilter()
{
    return DescriptionTransfer::tr("Table|*.csv");
}

QString FirstLines(QStringList lines)
{
    const qsizetype others = lines.size() - maxLines;
    if (others > 0) {
        lines.resize(maxLines);
        lines += DescriptionTransfer::tr("and %n other(s)", nullptr, int(others));
    }
    return lines.join(u'\n');
}

// What is wrong with a table is no fault of the program's.
void TellTroubleOf(const std::function<void()>& action)
{
    try {
        action();
    } catch (const std::runtime_error& error) {
        Tell(QString::fromUtf8(error.what()), Dialogs::Icon::Warning);
    }
}

} // namespace

template<typename SidecarWork>
bool DescriptionTransfer::WorkToTheEnd(SidecarWork& work) const
{
    const BusyPointer busy;
    progress_->Begin(work.GetCount(), true);
    const auto end = qScopeGuard([this] { progress_->End(); });
    while (work.Work(slice)) {
        if (!progress_->Advance(work.GetDone()))
            return false;
    }
    return true;
}

void DescriptionTransfer::ExportTable() const
{
    const QFileInfo album(GeneralModule::OpenAlbumPath());
    const QString path =
        Dialogs::Door().AskSaveFile({tr("Export Descriptions"), TableFilter(), album.path(),
                                     album.completeBaseName() + QStringLiteral(".csv")});
    if (path.isEmpty())
        return;
    std::optional<int> written;
    {
        const BusyPointer busy;
        progress_->Begin(0, true);
        const auto end = qScopeGuard([this] { progress_->End(); });
        TellTroubleOf([&] {
            written = ExportDescriptionTable(path, true,
                                             [this](int done) { return progress_->Advance(done); });
        });
    }
    if (written)
        Tell(tr("The descriptions of %n picture(s) were written.", nullptr, *written));
}

void DescriptionTransfer::ExportSidecars() const
{
    SidecarExport work;
    if (!AgreesTo(tr("Write an XMP file beside each of %n picture(s)? What other programs have "
                     "written into such files stays.",
                     nullptr, work.GetCount())))
        return;
    const bool isWhole = WorkToTheEnd(work);
    QStringList lines{
        tr("The descriptions of %n picture(s) were written.", nullptr, work.GetWritten())};
    if (!isWhole)
        lines += tr("You stopped before the end.");
    const bool isFine = isWhole && work.GetTroubles().isEmpty();
    Tell(FirstLines(lines + work.GetTroubles()),
         isFine ? Dialogs::Icon::Information : Dialogs::Icon::Warning);
}

void DescriptionTransfer::ImportTable() const
{
    const QString folder = QFileInfo(GeneralModule::OpenAlbumPath()).path();
    const QString path =
        Dialogs::Door().AskOpenFile({tr("Import Descriptions"), TableFilter(), folder});
    if (path.isEmpty())
        return;
    std::optional<DescriptionTable> table;
    TellTroubleOf([&] { table = ReadDescriptionTable(path); });
    if (!table)
        return;
    QStringList lines;
    for (const QString& title : table->leftOut)
        lines += tr("The column \"%1\" fits none of the album.").arg(title);
    Import(table->rows, lines);
}

void DescriptionTransfer::ImportSidecars() const
{
    SidecarImport work;
    if (WorkToTheEnd(work))
        Import(work.GetDescriptions(), {});
}

void DescriptionTransfer::Import(const std::vector<ImportedDescription>& imported,
                                 QStringList lines) const
{
    const DescriptionComparison comparison = CompareDescriptions(imported);
    lines.prepend(ChangeText(comparison.changes));
    if (comparison.same > 0)
        lines += tr("%n picture(s) are described so already.", nullptr, comparison.same);
    if (!comparison.unknown.isEmpty())
        lines += tr("%n picture(s) are not in the album.", nullptr, int(comparison.unknown.size()));
    if (!comparison.repeated.isEmpty())
        lines += tr("%n picture(s) come a second time, which does not count.", nullptr,
                    int(comparison.repeated.size()));
    if (comparison.changes.empty())
        return Tell(FirstLines(lines));
    if (!AgreesTo(FirstLines(lines) + u'\n' + tr("Change the album ?")))
        return;
    std::optional<ChangeResult> result;
    {
        const BusyPointer busy;
        progress_->Begin(int(comparison.changes.size()), true);
        const auto end = qScopeGuard([this] { progress_->End(); });
        result =
            ApplyChanges(comparison.changes, [this](int done) { return progress_->Advance(done); });
    }
    Tell(result ? ResultText(*result) : tr("You stopped it, and nothing was changed."));
}
