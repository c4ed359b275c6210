// SPDX-License-Identifier: MIT
#pragma once

#include "core/AlbumRepair.h"

#include <QCoreApplication>
#include <QStringList>
#include <QTemporaryFile>

#include <functional>
#include <memory>
#include <vector>

class Database;

namespace GeneralModule {

// What a check of an album has found.
struct CheckReport
{
    Q_DECLARE_TR_FUNCTIONS(CheckReport)

public:
    enum class Kind { Damage, Links, LostLinks, Values, Twice, Missing };

    struct Finding
    {
        Kind kind;
        QString text;              // with the number of cases
        QString remedy;            // what mends it, or that nothing has to
        QStringList examples = {}; // the first few, as the album names them
        bool hasMoreExamples = false;
    };

    bool isStopped = false; // by the user: what was found until then
    std::vector<Finding> findings;

    bool Has(Kind kind) const;
    // The file holds what it was given; what may be wrong is in the contents.
    bool IsWhole() const { return !Has(Kind::Damage); }
    bool IsEmpty() const { return findings.empty(); }
};

// What is being done, and how many percent of the whole check that is. Returns false to stop.
enum class CheckStep { Copying, File, Links, Values, Files };
using CheckProgress = std::function<bool(CheckStep step, int percent)>;

// Looks through an album for what is wrong with it: with the file itself, with the links of
// chapters and paragraphs, and with what rows name and other rows or files do not hold. It works on
// a copy, so that nobody waits for it; the copy has the album's password, if any, and only the user
// can read it.
class AlbumCheck
{
public:
    // Copies the open album, or one that is only opened for that, and closed again. Throw
    // DatabaseError.
    explicit AlbumCheck(const CheckProgress& progress);
    AlbumCheck(const QString& album, const QString& password, const CheckProgress& progress);
    ~AlbumCheck();
    Q_DISABLE_COPY_MOVE(AlbumCheck)

    // Once, in any thread, which is the one that progress is called in. Never throws: what cannot
    // be read is part of the report.
    CheckReport Run(const CheckProgress& progress);

private:
    void Copy(const Database& album, const CheckProgress& progress);

    QTemporaryFile copy_;
    QString password_;
    QString folder_; // of the album: other paths than absolute ones count from there
    bool isCopied_ = false;
};

// The report in words, for the user to read.
QString DescribeCheck(const CheckReport& report);

} // namespace GeneralModule
