// SPDX-License-Identifier: MIT
#pragma once

#include <QKeySequence>
#include <QList>
#include <QPair>
#include <QString>
#include <QStringList>

// The keys of a window for a person to read: the keys of a row by their names, and what they do.
using KeyRows = QList<QPair<QString, QString>>;

// As keyboard and desktop name them, "Ctrl+Return, F11".
inline QString KeyNames(const QList<QKeySequence>& keys)
{
    QStringList names;
    for (const QKeySequence& key : keys)
        names += key.toString(QKeySequence::NativeText);
    return names.join(QStringLiteral(", "));
}
