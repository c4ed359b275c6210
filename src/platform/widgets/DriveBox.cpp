// SPDX-License-Identifier: MIT
#include "platform/widgets/DriveBox.h"

#include "platform/files/Volumes.h"

#include <QSignalBlocker>
#include <QStyle>

DriveBox::DriveBox(QWidget* parent) : QComboBox(parent)
{
    setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(12);
    Fill();
    connect(this, &QComboBox::currentIndexChanged, this, [this] {
        if (currentIndex() >= 0)
            emit DriveChanged(GetDrive());
    });
}

void DriveBox::Fill()
{
    const QSignalBlocker quiet(this);
    const QString chosen = currentText();
    clear();
    const QIcon icon = style()->standardIcon(QStyle::SP_DriveHDIcon);
    for (const QString& root : MountedVolumes())
        addItem(icon, root);
    setCurrentIndex(findText(chosen));
}

void DriveBox::ShowVolumeOf(const QString& path)
{
    const QSignalBlocker quiet(this);
    setCurrentIndex(findText(VolumeOf(path, MountedVolumes())));
}

void DriveBox::showPopup()
{
    Fill();
    QComboBox::showPopup();
}
