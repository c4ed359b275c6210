// SPDX-License-Identifier: MIT
#include "Data.h"

#include <QFile>

#include <stdexcept>

QByteArray ReadData(const QString& name)
{
    QFile file(QStringLiteral(":/sample/") + name);
    if (!file.open(QIODevice::ReadOnly))
        throw std::runtime_error(qPrintable(name + QStringLiteral(": ") + file.errorString()));
    return file.readAll();
}

void ReadElements(const QString& name, const std::function<void(const QXmlStreamReader&)>& read)
{
    QXmlStreamReader reader(ReadData(name));
    reader.readNextStartElement();
    while (reader.readNextStartElement()) {
        read(reader);
        reader.skipCurrentElement();
    }
    if (reader.hasError())
        throw std::runtime_error(qPrintable(name + QStringLiteral(": ") + reader.errorString()));
}
