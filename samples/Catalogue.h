// SPDX-License-Identifier: MIT
#pragma once

#include "SamplePictures.h"
#include "Scenes.h"

using Scene = void (*)(Canvas&);

// What is painted on the picture; null when there is no such picture.
Scene SceneOf(const QString& fileName);
