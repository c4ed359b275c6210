// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArrayView>
#include <QString>

// UTF-8 where the bytes are valid UTF-8, else Windows-1252, whose five unused bytes stand for
// themselves.
QString DecodeUtf8OrWindows1252(QByteArrayView bytes);
