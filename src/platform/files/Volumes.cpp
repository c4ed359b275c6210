// SPDX-License-Identifier: MIT
#include "platform/files/Volumes.h"

#include <QDir>
#include <QFileInfo>
#include <QStorageInfo>

namespace {

// Kinds that hold no user files, or only until the computer is switched off.
bool IsPseudo(const QStorageInfo& volume)
{
    static const QByteArrayList kinds{
        "autofs", "bpf",      "cgroup",   "cgroup2",     "configfs",    "debugfs",
        "devpts", "devtmpfs", "efivarfs", "fusectl",     "hugetlbfs",   "mqueue",
        "nsfs",   "proc",     "pstore",   "ramfs",       "securityfs",  "squashfs",
        "sysfs",  "tmpfs",    "tracefs",  "binfmt_misc", "fuse.portal", "fuse.gvfsd-fuse"};
    return kinds.contains(volume.fileSystemType());
}

} // namespace

QStringList MountedVolumes()
{
    // Always there, even where the system does not list it, as after chroot.
    QStringList roots{QDir::toNativeSeparators(QDir::rootPath())};
    for (const QStorageInfo& volume : QStorageInfo::mountedVolumes()) {
        const QString root = QDir::toNativeSeparators(volume.rootPath());
        // Containers mount single files.
        const bool isFolder = QFileInfo(root).isDir();
        const bool isUsed = volume.isReady() && !IsPseudo(volume);
        if (isUsed && isFolder && !roots.contains(root))
            roots.append(root);
    }
    roots.sort();
    return roots;
}

QString VolumeOf(const QString& path, const QStringList& volumes)
{
    QString longest;
    for (const QString& root : volumes) {
        const bool holds =
            path == root ||
            path.startsWith(root.endsWith(QDir::separator()) ? root : root + QDir::separator());
        if (holds && root.size() > longest.size())
            longest = root;
    }
    return longest;
}
