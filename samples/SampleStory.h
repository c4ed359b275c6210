// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

// Writes the sample album: paints the pictures into folder/pictures and tells their story in
// folder/name. Files of an earlier sample are replaced. False when something could not be written,
// with a line on the error channel.
bool WriteSampleStory(const QString& folder, const QString& name);
