// SPDX-License-Identifier: MIT
#pragma once

#include "platform/widgets/WindowKeys.h"

const WindowKeyTable& LinkedPicturesKeys();
