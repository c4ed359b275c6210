// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QString>

#include <exception>
#include <string>

// An error of the album's engine: a number that identifies it for code and users, and a sentence.
class DatabaseError : public std::exception
{
    Q_DECLARE_TR_FUNCTIONS(DatabaseError)

public:
    enum Number {
        Overflow = 6,
        NoAlbum = 91,
        InvalidPattern = 93,
        InvalidUseOfNull = 94,
        UpdateWithoutEdit = 3020,
        NoCurrentRecord = 3021,
        DuplicateKey = 3022,
        NoSuchFile = 3024,
        DiskFull = 3026,
        ReadOnly = 3027,
        WrongPassword = 3031,
        DiskError = 3043,
        Damaged = 3049,
        CannotOpen = 3051,
        UnknownFieldInFilter = 3070,
        BadFilter = 3075,
        NoSuchTable = 3078,
        RecordDeleted = 3167,
        ChangedMeanwhile = 3197,
        InUse = 3260,
        NoSuchField = 3265,
        NotADatabase = 3343,
        TooComplex = 3360,
        TypeMismatch = 3464,
    };

    DatabaseError(Number number, const QString& description);

    int GetNumber() const { return number_; }
    const QString& GetDescription() const { return description_; }
    const char* what() const noexcept override { return what_.c_str(); }

private:
    int number_;
    QString description_;
    std::string what_;
};

// Also when the row was deleted by another record set or program.
[[noreturn]] void ThrowRecordDeleted();
