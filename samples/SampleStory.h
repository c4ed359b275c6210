// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

// How the album names its pictures: as every album does, or by their paths below the folder, to be
// installed and copied (core/InstalledSample.h).
enum class PicturePaths { Absolute, Relative };

// Writes the sample album: paints the pictures into folder/pictures and tells their story in
// folder/name. Files of an earlier sample are replaced. False when something could not be written,
// with a line on the error channel.
bool WriteSampleStory(const QString& folder, const QString& name, PicturePaths paths);
