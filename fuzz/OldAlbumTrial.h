// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

#include <random>

// A sound album in the former file format with some damage: bits and numbers changed anywhere or
// where pages and tables describe themselves, pages swapped, blanked or named in place of others,
// or the end cut off. At least its first page stays what it is.
QByteArray DamagedCopy(const QByteArray& sound, std::mt19937& random);

struct TrialResult
{
    QString fault; // what must not happen; empty when nothing of it did
    bool made = false;
    bool isWhole = false; // no problem was reported
};

// Converts the contents in an empty folder and looks at what is left there: the old file as it was,
// and either nothing else or a new album that opens. More than ten seconds of processor time is a
// fault.
TrialResult TryConversion(const QByteArray& contents, const QString& folder);
