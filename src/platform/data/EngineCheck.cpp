// SPDX-License-Identifier: MIT
#include "platform/data/EngineCheck.h"

#include "platform/data/Database.h"
#include "platform/data/Statement.h"

#include <sqlcipher/sqlite3.h>

Interruption::Interruption(sqlite3* engine, const std::function<bool()>& isStopped)
    : engine_(engine)
{
    constexpr int stepsPerLook = 1000; // of the engine: less than a millisecond
    const auto look = [](void* asked) {
        return int((*static_cast<const std::function<bool()>*>(asked))());
    };
    sqlite3_progress_handler(engine_, stepsPerLook, look,
                             const_cast<std::function<bool()>*>(&isStopped));
}

Interruption::~Interruption()
{
    sqlite3_progress_handler(engine_, 0, nullptr, nullptr);
}

std::optional<QStringList> FaultsOfFile(const Database& database,
                                        const std::function<bool()>& isStopped)
{
    QStringList faults;
    try {
        const Interruption interruption(database.GetEngine(), isStopped);
        Statement check(database.GetEngine(), "PRAGMA integrity_check(50)");
        while (check.Step()) {
            const std::string_view line = check.GetUtf8(0);
            faults += QString::fromUtf8(line.data(), qsizetype(line.size())).split(u'\n');
        }
    } catch (const DatabaseError& error) {
        if (isStopped())
            return {};
        faults += error.GetDescription();
    }
    if (faults == QStringList(QStringLiteral("ok")))
        faults.clear();
    return faults;
}
