// SPDX-License-Identifier: MIT
#include "platform/files/FileClaim.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

namespace {

// In the user's own folder, where nobody else can put a file or a link.
QString FolderOfClaims()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation) +
           QStringLiteral("/lumenark");
}

// The same for every path that leads to the file.
QString ClaimOf(const QString& path)
{
    const QString canonical = QFileInfo(path).canonicalFilePath();
    const QByteArray hash = QCryptographicHash::hash(
        (canonical.isEmpty() ? path : canonical).toUtf8(), QCryptographicHash::Sha256);
    return FolderOfClaims() + QLatin1String("/open-") + QString::fromLatin1(hash.toHex().left(32));
}

} // namespace

FileClaim::FileClaim(const QString& path, const std::function<void()>& onCalled)
{
    const QString claim = ClaimOf(path);
    call_ = claim + QLatin1String(".call");
    QDir().mkpath(FolderOfClaims());
    lock_ = std::make_unique<QLockFile>(claim);
    lock_->setStaleLockTime(0); // valid however long it is held
    if (lock_->tryLock(0))
        TakeCalls(onCalled);
    else
        isOurs_ = lock_->error() != QLockFile::LockFailedError;
}

FileClaim::~FileClaim()
{
    if (watcher_)
        QFile::remove(call_);
}

void FileClaim::TakeCalls(const std::function<void()>& onCalled)
{
    QFile call(call_);
    if (!call.open(QIODevice::WriteOnly | QIODevice::Truncate))
        return;
    call.close();
    watcher_ = std::make_unique<QFileSystemWatcher>(QStringList(call_));
    QObject::connect(watcher_.get(), &QFileSystemWatcher::fileChanged, watcher_.get(),
                     [path = call_, onCalled] {
                         // Emptying it is also a change.
                         if (QFileInfo(path).size() > 0 && QFile::resize(path, 0))
                             onCalled();
                     });
}

void FileClaim::CallHolder() const
{
    QFile call(call_);
    if (call.open(QIODevice::WriteOnly | QIODevice::ExistingOnly | QIODevice::Append))
        call.write("1");
}
