// SPDX-License-Identifier: MIT
#include "platform/metadata/SidecarWriter.h"

#include "platform/metadata/MetadataStream.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

namespace {

struct SidecarTexts
{
    Q_DECLARE_TR_FUNCTIONS(SidecarWriter)
};

bool IsXmlCharacter(char32_t character)
{
    return character >= 0x20 ? character != 0xFFFE && character != 0xFFFF
                             : character == '\t' || character == '\n';
}

// Without what no XML text can hold, and with one kind of line end, as XML reads it.
QString XmlText(QString text)
{
    text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    text.replace(u'\r', u'\n');
    for (QChar& character : text) {
        if (!IsXmlCharacter(character.unicode()))
            character = u' ';
    }
    return text;
}

QByteArray RequestFor(const SidecarContent& content)
{
    RequestBytes request;
    request.Bytes(QFile::encodeName(QFileInfo(content.picture).absoluteFilePath()));
    request.Text(XmlText(content.caption));
    request.Number(quint32(content.keywords.size()));
    for (const QString& keyword : content.keywords)
        request.Text(XmlText(keyword));
    for (auto field = content.ownFields.begin(); field != content.ownFields.end(); ++field)
        request.Text(field.key()).Text(field.value());
    return request.Get();
}

// Why the file could not be written; empty when it was, or held that already.
QString Replace(const QString& path, QByteArrayView packet)
{
    QFile present(path);
    if (present.open(QIODevice::ReadOnly) && present.size() == packet.size() &&
        present.readAll() == packet)
        return {};
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) ||
        file.write(packet.data(), packet.size()) != packet.size() || !file.commit())
        return file.errorString();
    return {};
}

} // namespace

SidecarWriter::SidecarWriter(int count, const Content& content)
    : queue_(QStringLiteral("lumenark-metadata"), {QStringLiteral("sidecar")}, count,
             [content](int number) { return RequestFor(content(number)); })
{
}

bool SidecarWriter::Work(std::chrono::milliseconds time, const Visit& visit)
{
    return queue_.Work(time, [&visit](int number, std::optional<QByteArrayView> contents) {
        FrameContents answer(contents.value_or(QByteArrayView()));
        const bool isSound = contents && answer.Number() == MetadataStream::Done;
        const QString path = QFile::decodeName(answer.Bytes().toByteArray());
        visit(number, path,
              isSound ? Replace(path, answer.Bytes())
                      : SidecarTexts::tr("The present sidecar cannot be taken over whole, so it is "
                                         "left as it is."));
    });
}
