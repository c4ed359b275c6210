// SPDX-License-Identifier: MIT
#include "publish/PublishList.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStringList>

#include <algorithm>
#include <cmath>

namespace {

constexpr int listFormat = 1;
constexpr qsizetype fingerprintLength = 32; // hexadecimal digits
constexpr qint64 timeStep = 2000;           // milliseconds

const QString formatKey = QStringLiteral("format");
const QString kindKey = QStringLiteral("kind");
const QString filesKey = QStringLiteral("files");
const QString nameKey = QStringLiteral("name");
const QString fromKey = QStringLiteral("from");
const QString sizeKey = QStringLiteral("size");
const QString timeKey = QStringLiteral("time");

} // namespace

QByteArray WritePublishList(const PublishList& list)
{
    QJsonArray files;
    for (const PublishedFile& file : list.files) {
        files += QJsonObject{
            {nameKey, file.name}, {fromKey, file.from}, {sizeKey, file.size}, {timeKey, file.time}};
    }
    return QJsonDocument(
               QJsonObject{{formatKey, listFormat}, {kindKey, list.kind}, {filesKey, files}})
        .toJson();
}

std::optional<PublishList> ReadPublishList(const QByteArray& text)
{
    const QJsonObject object = QJsonDocument::fromJson(text).object();
    if (object[formatKey].toInt() != listFormat || !object[filesKey].isArray())
        return {};
    PublishList list{object[kindKey].toString()};
    for (const auto& value : object[filesKey].toArray()) {
        const QJsonObject file = value.toObject();
        list.files.push_back({file[nameKey].toString(), file[fromKey].toString(),
                              file[sizeKey].toInteger(-1), file[timeKey].toInteger(-1)});
        if (!IsInnerName(list.files.back().name))
            return {};
    }
    return list;
}

QString FingerprintOf(const QString& madeFrom)
{
    const QByteArray hash =
        QCryptographicHash::hash(madeFrom.toUtf8(), QCryptographicHash::Sha256).toHex();
    return QString::fromLatin1(hash.first(fingerprintLength));
}

bool IsInnerName(const QString& name)
{
    const QStringList parts = name.split(u'/');
    const auto leadsElsewhere = [](const QString& part) {
        return part.isEmpty() || part == QLatin1String(".") || part == QLatin1String("..");
    };
    const bool hasForeign =
        name.contains(u'\\') || name.contains(QChar(0)) || (name.size() > 1 && name[1] == u':');
    return !hasForeign && std::none_of(parts.begin(), parts.end(), leadsElsewhere);
}

QString FoldedName(const QString& name)
{
    return name.normalized(QString::NormalizationForm_C).toCaseFolded();
}

std::optional<PublishedFile> LookAtFile(const QString& path)
{
    const QFileInfo file(path);
    if (!file.isFile() || file.isSymLink())
        return {};
    return PublishedFile{path, {}, file.size(), file.lastModified().toMSecsSinceEpoch()};
}

bool IsAsMade(const PublishedFile& made, const std::optional<PublishedFile>& now)
{
    return now && now->size == made.size && std::abs(now->time - made.time) <= timeStep;
}
