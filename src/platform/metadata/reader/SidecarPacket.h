// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "platform/helper/child/FrameWriter.h"

#include <string_view>

// Writes what a picture's sidecar is to hold: all that the present one holds, with the description
// of the request in it. Nothing on the disk is changed. Throws what the library throws.
void WriteSidecarPacket(std::string_view request, FrameWriter& stream);
