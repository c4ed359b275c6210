// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

// Root paths of the volumes that files can be kept on: disks, cards, sticks and shares of the
// network. What the system mounts for its own use is left out.
QStringList MountedVolumes();

// Which of the volumes a path lies on; empty when on none of them.
QString VolumeOf(const QString& path, const QStringList& volumes);
