// SPDX-License-Identifier: MIT
#include "BookReading.h"

#include <qpdf/QPDF.hh>

#include <QFile>
#include <QRegularExpression>

#include <algorithm>

namespace {

using Object = QPDFObjectHandle;
using TextMap = QMap<int, QString>; // of a font, by the glyph's number

QByteArray BytesOf(Object stream, bool isDecoded = true)
{
    const auto data = isDecoded ? stream.getStreamData(qpdf_dl_all) : stream.getRawStreamData();
    return {reinterpret_cast<const char*>(data->getBuffer()), qsizetype(data->getSize())};
}

TextMap MapOf(Object font)
{
    static const QRegularExpression range("<(\\w{4})> <\\w{4}> \\[(.*?)\\]");
    static const QRegularExpression unit("<(\\w+)>");
    TextMap map;
    const QString text = BytesOf(font.getKey("/ToUnicode"));
    for (auto match = range.globalMatch(text); match.hasNext();) {
        const auto found = match.next();
        int glyph = found.captured(1).toInt(nullptr, 16);
        for (auto units = unit.globalMatch(found.captured(2)); units.hasNext(); ++glyph) {
            const QString digits = units.next().captured(1);
            for (qsizetype at = 0; at < digits.size(); at += 4)
                map[glyph] += QChar(digits.mid(at, 4).toInt(nullptr, 16));
        }
    }
    return map;
}

QString TextOf(Object page, const QByteArray& contents)
{
    static const QRegularExpression part("/(F\\d+) [\\d.]+ Tf|<(\\w{4})> Tj|(ET)");
    QMap<QString, TextMap> maps;
    Object fonts = page.getKey("/Resources").getKey("/Font");
    TextMap map;
    QString text;
    for (auto match = part.globalMatch(contents); match.hasNext();) {
        const auto found = match.next();
        const QString font = found.captured(1);
        if (!font.isEmpty()) {
            if (!maps.contains(font))
                maps[font] = MapOf(fonts.getKey("/" + font.toStdString()));
            map = maps[font];
        } else if (found.hasCaptured(3)) {
            text += '\n';
        } else {
            text += map.value(found.captured(2).toInt(nullptr, 16));
        }
    }
    return text;
}

void AddPictures(FoundBook& book, int number, Object page, const QByteArray& contents)
{
    static const QRegularExpression drawing("q((?: [-\\d.]+){6}) cm (/\\w+) Do Q");
    for (auto match = drawing.globalMatch(contents); match.hasNext();) {
        const auto found = match.next();
        const QStringList m = found.captured(1).trimmed().split(' ');
        Object picture =
            page.getKey("/Resources").getKey("/XObject").getKey(found.captured(2).toStdString());
        Object dictionary = picture.getDict();
        book.pictures.push_back(
            {number,
             {dictionary.getKey("/Width").getIntValueAsInt(),
              dictionary.getKey("/Height").getIntValueAsInt()},
             QByteArray::fromStdString(dictionary.getKey("/ColorSpace").unparseResolved()),
             BytesOf(picture, false),
             {m[0].toDouble(), m[1].toDouble(), m[2].toDouble(), m[3].toDouble(), m[4].toDouble(),
              m[5].toDouble()}});
    }
}

} // namespace

FoundBook ReadBook(const QString& path)
{
    QPDF pdf;
    pdf.processFile(QFile::encodeName(path).constData());
    const std::vector<Object> pages = pdf.getAllPages();
    const auto numberOf = [&pages](Object destination) {
        const auto isIt = [&](const Object& page) {
            return page.getObjGen() == destination.getArrayItem(0).getObjGen();
        };
        return int(std::find_if(pages.begin(), pages.end(), isIt) - pages.begin());
    };
    FoundBook book;
    Object root = pdf.getRoot();
    book.title =
        QString::fromStdString(pdf.getTrailer().getKey("/Info").getKey("/Title").getUTF8Value());
    for (const std::string& key : pdf.getTrailer().getKey("/Info").getKeys())
        book.properties += QString::fromStdString(key);
    book.language = QString::fromStdString(root.getKey("/Lang").getUTF8Value());
    for (int i = 0; i < int(pages.size()); ++i) {
        Object page = pages[std::size_t(i)];
        Object contents = page.getKey("/Contents");
        QByteArray bytes;
        for (Object each : contents.isArray() ? contents.getArrayAsVector() : std::vector{contents})
            bytes += BytesOf(each);
        book.pages += TextOf(page, bytes);
        AddPictures(book, i, page, bytes);
        for (Object& link : page.getKey("/Annots").getArrayAsVector())
            book.links.push_back({i, numberOf(link.getKey("/Dest"))});
    }
    for (Object item = root.getKey("/Outlines").getKey("/First"); item.isDictionary();
         item = item.getKey("/Next"))
        book.outline +=
            QString("%1:%2").arg(QString::fromStdString(item.getKey("/Title").getUTF8Value()),
                                 QString::number(numberOf(item.getKey("/Dest"))));
    return book;
}
