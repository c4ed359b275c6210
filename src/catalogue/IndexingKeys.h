// SPDX-License-Identifier: MIT
#pragma once

#include "platform/widgets/KeySheet.h"

// The keys of the indexing window.
KeySection IndexingKeySection();
