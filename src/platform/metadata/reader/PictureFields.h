// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "platform/helper/child/FrameWriter.h"
#include "platform/metadata/MetadataStream.h"

#include <string>

// Writes the status of a picture and its entries, those of its sidecars first. language: that of
// the user, as RFC 3066 begins it ("fr"). Throws what the library throws, of which not all are its
// own errors.
void WritePictureFields(const std::string& path, const std::string& language, FrameWriter& stream);
