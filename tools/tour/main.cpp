// SPDX-License-Identifier: MIT
// Takes a picture of each of the program's windows: lumenark_tour FOLDER ALBUM.alb
#include "Tour.h"

#include "app/Application.h"
#include "core/Album.h"
#include "ui/main/frmOpenChapter.h"

#include <QFileInfo>
#include <QTextStream>

int main(int argc, char** argv)
{
    const Application application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 3) {
        QTextStream(stderr) << "usage: lumenark_tour FOLDER ALBUM.alb\n";
        return 2;
    }
    // Absolute, because the program makes its own folder the current one.
    const QString folder = QFileInfo(arguments[1]).absoluteFilePath();
    frmOpenChapter mainWindow(QFileInfo(arguments[2]).absoluteFilePath());
    if (GeneralModule::HasGoneToOtherWindow()) {
        QTextStream(stderr) << "lumenark_tour: " << arguments[2] << " is open in a window\n";
        return 1;
    }
    mainWindow.show();
    new Tour(folder, &mainWindow);
    return QApplication::exec();
}
