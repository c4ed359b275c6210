// SPDX-License-Identifier: MIT
#pragma once

#include "platform/widgets/LeftOutNames.h"

#include <QTreeWidget>

// Shows one folder: the folders above it, itself, and the folders in it. A double click or Enter
// goes to the folder under the pointer or the cursor, Backspace to the parent folder.
class FolderList : public QTreeWidget
{
    Q_OBJECT
    Q_PROPERTY(QString Path READ GetPath WRITE SetPath NOTIFY PathChanged)

public:
    explicit FolderList(QWidget* parent = nullptr);

    // Without a separator at its end, except for a root.
    const QString& GetPath() const { return path_; }
    // If the folder cannot be read, a message box says so, and the current one stays. Another box
    // reports folders whose names cannot be shown, once for each folder that holds some.
    void SetPath(const QString& path);

signals:
    // Emitted even when the same folder was chosen and read again.
    void PathChanged(const QString& path);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void Fill(const QStringList& folders);
    QTreeWidgetItem* AddRow(QTreeWidgetItem* above, const QString& text, const QString& path);
    void Open(const QTreeWidgetItem* item);

    QString path_;
    LeftOutNames leftOut_;
};
