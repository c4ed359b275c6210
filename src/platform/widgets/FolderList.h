// SPDX-License-Identifier: MIT
#pragma once

#include "platform/widgets/LeftOutNames.h"

#include <QTreeWidget>

// Shows one folder: the folders that it lies in, itself, and below it the folders that it holds. A
// double click or Enter goes to the folder under the pointer or the cursor, Backspace to the one
// above.
class FolderList : public QTreeWidget
{
    Q_OBJECT
    Q_PROPERTY(QString Path READ GetPath WRITE SetPath NOTIFY PathChanged)

public:
    explicit FolderList(QWidget* parent = nullptr);

    // Without a separator at its end, but for a root.
    const QString& GetPath() const { return path_; }
    // A folder that cannot be read is told in a message box, and the one on show stays. Another
    // tells of folders whose names cannot be shown, once for each that holds such.
    void SetPath(const QString& path);

signals:
    // Also when the same folder was chosen and read again.
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
