// SPDX-License-Identifier: MIT
#include "platform/metadata/MetadataReader.h"

#include <QFile>
#include <QFileInfo>

#include <utility>

MetadataReader::MetadataReader(QStringList paths)
    : paths_(std::move(paths)),
      queue_(QStringLiteral("lumenark-metadata"), {QStringLiteral("read")}, int(paths_.size()),
             [this](int number) {
                 return QFile::encodeName(QFileInfo(paths_[number]).absoluteFilePath());
             })
{
}

bool MetadataReader::Work(std::chrono::milliseconds time, const Visit& visit)
{
    return queue_.Work(time, [&visit](int number, std::optional<QByteArrayView> contents) {
        visit(number, MetadataFrom(contents));
    });
}
