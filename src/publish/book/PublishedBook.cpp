// SPDX-License-Identifier: MIT
#include "publish/book/PublishedBook.h"

#include "platform/files/FileReplacement.h"
#include "publish/book/BookFile.h"

#include <QCoreApplication>
#include <QDir>
#include <QPageLayout>

#include <system_error>

namespace {

struct BookTexts
{
    Q_DECLARE_TR_FUNCTIONS(PublishedBook)
};

QPageLayout LayoutOf(const BookOptions& options)
{
    return {QPageSize(options.paper),
            options.isLandscape ? QPageLayout::Landscape : QPageLayout::Portrait, QMarginsF()};
}

PublishReport MakeBook(const PublishedStory& story, const BookOptions& options,
                       const QString& target, BookProgress& progress)
{
    FileReplacement replacement(target); // finds out at once whether it can be written
    BookPictures pictures;
    BookPainting painting(LayoutOf(options));
    const BookPageSink sink = [&painting](const BookPage& page) { painting.Add(page); };
    const QSizeF paper = LayoutOf(options).fullRect(QPageLayout::Point).size();
    const LaidOutBook laidOut = LayOutBook(story, paper, pictures, sink, progress);
    const BookFacts facts = WriteBookFile(replacement.GetPath(), story, painting.Finish(), laidOut,
                                          pictures, options.resolution, progress);
    CheckBook(replacement.GetPath(), facts, progress);
    replacement.Commit();
    PublishReport report;
    pictures.Report(report);
    report.troubles = story.troubles;
    return report;
}

} // namespace

PublishReport PublishBook(const PublishedStory& story, const BookOptions& options,
                          const QString& target, const PublishProgress& progress)
{
    const auto fail = [&target](const QString& reason) -> PublishReport {
        throw PublishError(BookTexts::tr("The book \"%1\" cannot be written: %2")
                               .arg(QDir::toNativeSeparators(target), reason));
    };
    try {
        BookProgress counted(progress, story.CountPictures());
        return MakeBook(story, options, target, counted);
    } catch (const BookStopped&) {
        PublishReport report;
        report.isStopped = true;
        return report;
    } catch (const PublishError& error) {
        return fail(error.GetText());
    } catch (const std::system_error& error) {
        return fail(QString::fromLocal8Bit(error.code().message().c_str()));
    } catch (const std::bad_alloc&) {
        return fail(BookTexts::tr("There is not enough memory."));
    } catch (const std::exception& error) {
        return fail(QString::fromUtf8(error.what()));
    }
}
