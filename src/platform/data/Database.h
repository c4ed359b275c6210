// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

#include <memory>

struct sqlite3;

// One open album file. Every change is committed to disk at once, except inside a WriteBatch.
// Lives as long as a record set on it does.
class Database
{
public:
    // Opens an existing file for reading and writing, or for reading only where it or its folder
    // cannot be written. The password counts only for a file that has one. Throws DatabaseError:
    // NoSuchFile, CannotOpen, ReadOnly (when a change that broke off would have to be undone
    // first), NotADatabase, WrongPassword (also when the password is missing), Damaged, InUse.
    // Never makes a file.
    static std::shared_ptr<Database> Open(const QString& path, const QString& password = {});

    ~Database();
    Database(const Database&) = delete;
    Database& operator=(const Database&) = delete;

    const QString& GetPath() const { return path_; }
    // What opened the file; empty for one without a password.
    const QString& GetPassword() const { return password_; }
    // See CipherFile; both mean nothing for a file without a password.
    const QByteArray& GetCipherKey() const { return cipherKey_; }
    int GetCipherFormat() const { return cipherFormat_; }
    sqlite3* GetEngine() const { return engine_; }

    // Whatever would change it then throws ReadOnly.
    bool IsReadOnly() const { return isReadOnly_; }

    // Goes up with every row that this program changes in the album; a row read under an earlier
    // count may be stale.
    int ChangeCount() const;

    void Execute(const QByteArray& sql);

    // Throws DatabaseError NoSuchFile when another file, or none, is at the path by now. Changes
    // ask by themselves.
    void RequireUnmoved() const;

private:
    friend class WriteBatch;

    explicit Database(const QString& path);

    void Connect();
    void Unlock(const QString& password);
    bool TryKey(const QByteArray& key, int format);
    bool IsReadable();
    void CheckSize();
    qint64 GetPragma(const QByteArray& name);
    void Prepare();

    QString path_;
    QString password_;
    QByteArray cipherKey_;
    bool isReadOnly_ = false;
    int cipherFormat_ = 0;
    sqlite3* engine_ = nullptr;
    int openBatches_ = 0;
};
