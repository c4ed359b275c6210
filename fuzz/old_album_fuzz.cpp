// SPDX-License-Identifier: MIT
// Converts damaged copies of the old albums given: old_album_fuzz ... ALBUM...
#include "fuzz/OldAlbumTrial.h"
#include "fuzz/Trials.h"

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>

#include <cstdio>

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    Trials trials(argc, argv, 30);
    QByteArrayList albums;
    for (const QString& path : trials.GetFiles()) {
        QFile file(path);
        if (file.open(QIODevice::ReadOnly))
            albums += file.readAll();
    }
    if (albums.isEmpty() || albums.size() < trials.GetFiles().size()) {
        std::fprintf(stderr, "old_album_fuzz takes sound albums in the former file format\n");
        return 2;
    }
    const QTemporaryDir folder;
    while (trials.Next()) {
        const QByteArray copy = DamagedCopy(trials.AnyOf(albums), trials.Random());
        trials.SetInput(copy);
        const TrialResult result = TryConversion(copy, folder.path());
        if (result.made)
            trials.CountAccepted();
        if (!result.fault.isEmpty())
            trials.Fault(result.fault);
    }
    return trials.Finish();
}
