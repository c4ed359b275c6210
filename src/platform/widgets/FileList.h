// SPDX-License-Identifier: MIT
#pragma once

#include "platform/widgets/LeftOutNames.h"

#include <QListView>
#include <QStringList>

class QStringListModel;

// The files of one folder whose names fit the pattern (see FilePatterns.h).
class FileList : public QListView
{
    Q_OBJECT
    Q_PROPERTY(QString Path READ GetPath WRITE SetPath)
    Q_PROPERTY(QString Pattern READ GetPattern WRITE SetPattern)

public:
    explicit FileList(QWidget* parent = nullptr);

    const QString& GetPath() const { return path_; }
    // Reads the folder. When that fails half-way, a message box says why, and the names read so far
    // are shown. Another box reports files whose names cannot be shown, once for each folder.
    void SetPath(const QString& path);

    const QString& GetPattern() const { return pattern_; }
    // Does not read the folder again.
    void SetPattern(const QString& pattern);

    QStringList GetNames() const;  // those shown
    QStringList GetMarked() const; // of those shown
    const QStringList& GetAllNames() const { return files_; }
    int Count() const;
    void SelectRow(int row);

private:
    void ApplyPattern();

    QString path_;
    QString pattern_ = QStringLiteral("*.*");
    QStringList files_; // all in the folder, whatever the pattern
    LeftOutNames leftOut_;
    QStringListModel* model_;
};
