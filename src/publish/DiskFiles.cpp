// SPDX-License-Identifier: MIT
#include "publish/DiskFiles.h"

#include <QFile>

#include <cerrno>
#include <filesystem>
#include <system_error>

#include <fcntl.h>
#include <unistd.h>

namespace fs = std::filesystem;

void WriteThroughDisk(const QString& path)
{
    const int handle = open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC);
#ifdef Q_OS_LINUX
    const bool isDone = handle >= 0 && syncfs(handle) == 0;
#else
    const bool isDone = handle >= 0 && fsync(handle) == 0;
#endif
    const int error = errno;
    if (handle >= 0)
        close(handle);
    if (!isDone)
        throw std::system_error(error, std::generic_category());
}

void WriteWhole(const QString& path, const QByteArray& text)
{
    QFile file(path + QStringLiteral(".part"));
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size() || !file.flush())
        throw std::system_error(std::make_error_code(std::errc::no_space_on_device));
    file.close();
    WriteThroughDisk(file.fileName());
    MoveFile(file.fileName(), path);
}

void MoveFile(const QString& from, const QString& to)
{
    fs::rename(fs::path(from.toStdU16String()), fs::path(to.toStdU16String()));
}

void RemoveAll(const QString& path)
{
    std::error_code unknown;
    fs::remove_all(fs::path(path.toStdU16String()), unknown);
}
