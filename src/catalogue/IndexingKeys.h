// SPDX-License-Identifier: MIT
#pragma once

#include "platform/widgets/KeyRows.h"

// The keys of the indexing window.
KeyRows IndexingKeyRows();
