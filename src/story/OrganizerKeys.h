// SPDX-License-Identifier: MIT
#pragma once

#include "platform/widgets/WindowKeys.h"

// The keys of the paragraph organiser.
const WindowKeyTable& OrganizerKeys();
