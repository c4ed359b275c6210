// SPDX-License-Identifier: MIT
#include "core/ViewerFlags.h"

namespace GeneralModule {

bool AutoviewOn = false;
bool PictureAtRandom = false;

} // namespace GeneralModule
