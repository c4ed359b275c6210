// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QStringList>

#include <functional>
#include <memory>

class ChangeLog;
class Statement;
struct sqlite3;

// One open album file. Every change is committed to disk at once, except inside a WriteBatch. Lives
// as long as any record set on it.
class Database
{
public:
    enum class Use { Changing, Reading };

    // Opens an existing file for reading and writing, or only for reading if it or its folder is
    // read-only or only to be read. The password is ignored for a file without one. Throws
    // DatabaseError: NoSuchFile, CannotOpen, ReadOnly (when an interrupted change must be undone
    // first), NotADatabase, WrongPassword (also when the password is missing), Damaged, InUse.
    // Never creates a file.
    static std::shared_ptr<Database> Open(const QString& path, const QString& password = {},
                                          Use use = Use::Changing);

    ~Database();
    Database(const Database&) = delete;
    Database& operator=(const Database&) = delete;

    const QString& GetPath() const { return path_; }
    // The password that opened the file; empty when it has none.
    const QString& GetPassword() const { return password_; }
    // See CipherFile; both are meaningless for a file without a password.
    const QByteArray& GetCipherKey() const { return cipherKey_; }
    int GetCipherFormat() const { return cipherFormat_; }
    sqlite3* GetEngine() const { return engine_; }

    // If true, any change throws ReadOnly.
    bool IsReadOnly() const { return isReadOnly_; }

    // Logs what this program changes in those tables from now on, see ChangeLog. Does nothing where
    // nothing can be changed, and for a table with more fields than a log takes. Call outside a
    // transaction. Throws DatabaseError.
    void BeginLog(const QStringList& tables, const QStringList& leftOut);
    // Null when there is none.
    ChangeLog* GetLog() const { return log_.get(); }

    // Whether changes are waiting for a common commit.
    bool IsInTransaction() const;

    // Increases with every row that this program changes in the album; a row read at a lower count
    // may be stale. Stays as it is when log entries are forgotten.
    int ChangeCount() const;
    // Changes with every commit of another program; see the engine's data_version.
    qint64 VersionElsewhere() const { return GetPragma("data_version"); }

    // Whether a lock of another program is waited for, some seconds, before InUse is thrown. True
    // from the beginning. Returns what held before.
    bool SetWaiting(bool isWaiting);

    void Execute(const QByteArray& sql);

    // Throws DatabaseError NoSuchFile when the path now holds another file or none. Changes check
    // this by themselves.
    void RequireUnmoved() const;

    // Runs before each change of rows, once for a WriteBatch: in its transaction, with nothing
    // written. Outside a batch there is no transaction yet. What it throws keeps the change from
    // being made.
    void SetBeforeChange(std::function<void()> act) { beforeChange_ = std::move(act); }
    // For changes that may stand outside a batch; inside one nothing happens.
    void BeforeLoneChange() const;

    // Another descriptor of the file, for reading; negative when there is none. Open as long as the
    // database: closing it would drop the locks that the engine holds.
    int GetReadHandle() const;

private:
    friend class ReadLock;
    friend class WriteBatch;

    Database(const QString& path, Use use);

    void Connect();
    void Unlock(const QString& password);
    bool TryKey(const QByteArray& key, int format);
    bool IsReadable();
    void CheckSize();
    qint64 GetPragma(const QByteArray& name) const;
    void Prepare();
    void BeforeChange() const;

    QString path_;
    QString password_;
    QByteArray cipherKey_;
    bool isReadOnly_ = false;
    bool isWaiting_ = true;
    int cipherFormat_ = 0;
    sqlite3* engine_ = nullptr;
    std::unique_ptr<ChangeLog> log_;
    int openBatches_ = 0;
    std::function<void()> beforeChange_;
    // Of a ReadLock, prepared; empty while one lives, and before the first.
    std::shared_ptr<Statement> spareLock_;
    mutable int readHandle_ = -1;
};
