// SPDX-License-Identifier: MIT
#pragma once

#include <QComboBox>

// A choice among the mounted volumes. The list is read again whenever it drops down.
class DriveBox : public QComboBox
{
    Q_OBJECT
    Q_PROPERTY(QString Drive READ GetDrive)

public:
    explicit DriveBox(QWidget* parent = nullptr);

    // Root path of the chosen volume; empty when none is.
    QString GetDrive() const { return currentText(); }
    // Chooses the volume of the path, without emitting DriveChanged.
    void ShowVolumeOf(const QString& path);

    void showPopup() override;

signals:
    void DriveChanged(const QString& root);

private:
    void Fill();
};
