// SPDX-License-Identifier: MIT
#include "platform/metadata/MetadataReader.h"

#include <QFile>
#include <QFileInfo>
#include <QLocale>

namespace {

QString UsersLanguage()
{
    return QLocale().bcp47Name().section(u'-', 0, 0);
}

} // namespace

MetadataReader::MetadataReader(const QStringList& paths)
    : MetadataReader(int(paths.size()), [paths](int number) { return paths[number]; })
{
}

MetadataReader::MetadataReader(int count, const PathOf& pathOf)
    : queue_(QStringLiteral("lumenark-metadata"), {QStringLiteral("read"), UsersLanguage()}, count,
             [pathOf](int number) {
                 return QFile::encodeName(QFileInfo(pathOf(number)).absoluteFilePath());
             })
{
}

bool MetadataReader::Work(std::chrono::milliseconds time, const Visit& visit)
{
    return queue_.Work(time, [&visit](int number, std::optional<QByteArrayView> contents) {
        visit(number, MetadataFrom(contents));
    });
}
