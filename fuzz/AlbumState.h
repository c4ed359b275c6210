// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

// What the album file holds: its password, and a line for each row of each table. Nothing where
// there is no file. Throws an exception when the file is damaged or none of the passwords opens it.
QByteArray StateOf(const QString& album, const QStringList& passwords);

// Of the state of an album.
QString PasswordIn(const QByteArray& state);

// Whether each line of the state is one of before or of after, and none is missing that both have.
bool IsBetween(const QByteArray& state, const QByteArray& before, const QByteArray& after);

// What is wrong with the chapters and paragraphs of the open album: each must be reached along its
// chain. So many paragraphs may lie aside as long as nothing is written in them: they were created
// and not saved yet.
QString FaultOfChains(int maxAside);
