// SPDX-License-Identifier: MIT
#include "publish/PublishReport.h"

#include <QCoreApplication>
#include <QDir>

#include <algorithm>

namespace {

constexpr qsizetype mostNamed = 100;

struct ReportTexts
{
    Q_DECLARE_TR_FUNCTIONS(PublishReport)
};

void AddNames(QStringList& lines, const QString& heading, const QStringList& files)
{
    if (files.isEmpty())
        return;
    lines += heading;
    for (const QString& file : files.first(std::min(files.size(), mostNamed)))
        lines += QStringLiteral("    ") + QDir::toNativeSeparators(file);
    if (files.size() > mostNamed)
        lines += QStringLiteral("    ") +
                 ReportTexts::tr("and %Ln more", nullptr, int(files.size() - mostNamed));
}

} // namespace

QString DescribePublishReport(const PublishReport& report)
{
    if (report.isStopped)
        return ReportTexts::tr("Stopped. What was there before is as it was.");
    QStringList lines{ReportTexts::tr("%Ln pictures were published", nullptr, report.pictures) +
                      QStringLiteral(", ") +
                      ReportTexts::tr("%Ln of them made anew.", nullptr, report.made)};
    AddNames(lines,
             ReportTexts::tr("%Ln pictures are missing:", nullptr, int(report.missing.size())),
             report.missing);
    AddNames(lines,
             ReportTexts::tr("%Ln pictures cannot be read:", nullptr, int(report.damaged.size())),
             report.damaged);
    return (lines + report.troubles).join(u'\n');
}
