// SPDX-License-Identifier: MIT
#pragma once

#include "platform/metadata/MetadataStream.h"

#include <QByteArrayView>
#include <QString>

// The text of bytes that a picture file holds, without blanks and zeros at its ends. Bytes that fit
// no character set give some text, never a failure.
QString EntryText(MetadataStream::Coding coding, QByteArrayView bytes);

// Whether a caption was written by a camera or a program rather than by a person.
bool IsMachineCaption(const QString& caption);
