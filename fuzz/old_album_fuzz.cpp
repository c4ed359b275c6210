// SPDX-License-Identifier: MIT
// Converts damaged copies of an old album: old_album_fuzz ALBUM [COUNT [SEED]]
// Ends with status 1 when one of them made a fault, having written that copy into the current
// folder; a crash ends it too.
#include "fuzz/OldAlbumTrial.h"

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>

namespace {

struct Totals
{
    int faults = 0;
    int made = 0;
    int whole = 0;
    qint64 longest = 0;
};

void Add(Totals& totals, const TrialResult& result, const QByteArray& copy, int number)
{
    totals.made += result.made;
    totals.whole += result.made && result.isWhole;
    totals.longest = std::max(totals.longest, result.milliseconds);
    if (result.fault.isEmpty())
        return;
    ++totals.faults;
    const QString name = QStringLiteral("fault-%1.alb").arg(number);
    QFile file(name);
    if (file.open(QIODevice::WriteOnly))
        file.write(copy);
    std::printf("%s: %s\n", qPrintable(name), qPrintable(result.fault));
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    QFile file(arguments.value(1));
    if (arguments.size() < 2 || !file.open(QIODevice::ReadOnly)) {
        std::fprintf(stderr, "usage: old_album_fuzz ALBUM [COUNT [SEED]]\n");
        return 2;
    }
    const QByteArray sound = file.readAll();
    const int count = arguments.size() > 2 ? arguments[2].toInt() : 2000;
    std::mt19937 random(arguments.value(3, QStringLiteral("1")).toUInt());
    const QTemporaryDir folder;
    Totals totals;
    for (int number = 0; number < count; ++number) {
        const QByteArray copy = DamagedCopy(sound, random);
        Add(totals, TryConversion(copy, folder.path()), copy, number);
        if (number % 100 == 99) {
            std::printf("%d tried\n", number + 1);
            std::fflush(stdout);
        }
    }
    std::printf("%d copies: %d albums made, %d of them without a problem; longest %lld ms; %d "
                "faults\n",
                count, totals.made, totals.whole, static_cast<long long>(totals.longest),
                totals.faults);
    return totals.faults > 0 ? 1 : 0;
}
