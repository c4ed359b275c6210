// SPDX-License-Identifier: MIT
#include "platform/data/EngineCheck.h"

#include "platform/data/Statement.h"

#include <sqlcipher/sqlite3.h>

// Lies between the engine and its main file: the file's own methods, but for the one that reads.
class Interruption::Watch : public sqlite3_io_methods
{
public:
    Watch(sqlite3* engine, const std::function<bool()>& isStopped) : isStopped_(isStopped)
    {
        sqlite3_file_control(engine, "main", SQLITE_FCNTL_FILE_POINTER, &file_);
        usual_ = file_->pMethods;
        static_cast<sqlite3_io_methods&>(*this) = *usual_;
        xRead = Read;
        file_->pMethods = this;
    }

    ~Watch() { file_->pMethods = usual_; }
    Q_DISABLE_COPY_MOVE(Watch)

    bool Look() { return hasStopped_ = hasStopped_ || isStopped_(); }
    bool HasStopped() const { return hasStopped_; }

private:
    static int Read(sqlite3_file* file, void* target, int bytes, sqlite3_int64 at)
    {
        auto* watch = const_cast<Watch*>(static_cast<const Watch*>(file->pMethods));
        return watch->Look() ? SQLITE_INTERRUPT : watch->usual_->xRead(file, target, bytes, at);
    }

    std::function<bool()> isStopped_;
    sqlite3_file* file_ = nullptr;
    const sqlite3_io_methods* usual_ = nullptr;
    bool hasStopped_ = false;
};

Interruption::Interruption(sqlite3* engine, const std::function<bool()>& isStopped)
    : engine_(engine), watch_(std::make_unique<Watch>(engine, isStopped))
{
    constexpr int stepsPerLook = 1000; // of the engine: less than a millisecond
    const auto look = [](void* watch) { return int(static_cast<Watch*>(watch)->Look()); };
    sqlite3_progress_handler(engine_, stepsPerLook, look, watch_.get());
}

Interruption::~Interruption()
{
    sqlite3_progress_handler(engine_, 0, nullptr, nullptr);
}

bool Interruption::HasStopped() const
{
    return watch_->HasStopped();
}

std::optional<QStringList> FaultsOfFile(const Interruption& interruption)
{
    QStringList faults;
    try {
        Statement check(interruption.GetEngine(), "PRAGMA integrity_check(50)");
        while (check.Step()) {
            const std::string_view line = check.GetUtf8(0);
            faults += QString::fromUtf8(line.data(), qsizetype(line.size())).split(u'\n');
        }
    } catch (const DatabaseError& error) {
        faults += error.GetDescription();
    }
    if (interruption.HasStopped())
        return std::nullopt;
    if (faults == QStringList(QStringLiteral("ok")))
        faults.clear();
    return faults;
}
