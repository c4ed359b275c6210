// SPDX-License-Identifier: MIT
#pragma once

#include <QXmlStreamReader>

#include <functional>

// The contents of a file that lies in the library; throws when there is no such file.
QByteArray ReadData(const QString& name);

// Goes through the elements inside the outermost one of an XML file of the library. Throws when
// it is not well formed.
void ReadElements(const QString& name, const std::function<void(const QXmlStreamReader&)>& read);
