// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

// Root paths of the volumes that files can be kept on: disks, cards, sticks and network shares.
// What the system mounts for its own use is left out.
QStringList MountedVolumes();

// The volume that a path is on; empty when it is on none of them.
QString VolumeOf(const QString& path, const QStringList& volumes);
