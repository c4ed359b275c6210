// SPDX-License-Identifier: MIT
// Looking for 100,000 missing pictures in a tree of 200,000 files, against walking that tree. Half
// of the files are wanted; names repeat from folder to folder, as cameras number them.
#include "../SideBySide.h"

#include "catalogue/MissingSearch.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <filesystem>

namespace {

constexpr int folderCount = 2000;
constexpr int filesInFolder = 100;

QString NameOf(int folder, int file)
{
    return QStringLiteral("2010/Journey %1/IMG_%2.jpg").arg(folder).arg(file, 4, 10, QChar(u'0'));
}

void WriteTree(const QString& root)
{
    for (int folder = 0; folder < folderCount; ++folder) {
        QDir(root).mkpath(QStringLiteral("2010/Journey %1").arg(folder));
        for (int file = 0; file < filesInFolder; ++file) {
            QFile made(root + u'/' + NameOf(folder, file));
            if (!made.open(QFile::WriteOnly))
                std::abort();
        }
    }
}

void Find_Ours(benchmark::State& state, const QString& root)
{
    std::vector<MissingPicture> missing;
    for (int folder = 0; folder < folderCount; folder += 2) {
        for (int file = 0; file < filesInFolder; ++file)
            missing.push_back({qint32(missing.size()),
                               QStringLiteral("/media/gone/Pictures/") + NameOf(folder, file)});
    }
    for (auto _ : state) {
        MissingSearch search(missing, root, [](const QString&) { return false; });
        while (search.Work(std::chrono::milliseconds(20)))
            ;
        const std::vector<FoundPicture> found = search.Match();
        for (const FoundPicture& picture : found) {
            if (!picture.IsFound() ||
                !picture.candidates[picture.chosen].endsWith(picture.missing.file.sliced(21)))
                return state.SkipWithError("not all were found");
        }
    }
}

void Walk_Bare(benchmark::State& state, const QString& root)
{
    for (auto _ : state) {
        int files = 0;
        for (const auto& entry : std::filesystem::recursive_directory_iterator(root.toStdString()))
            files += entry.is_directory() ? 0 : 1;
        if (files != folderCount * filesInFolder)
            state.SkipWithError("not all were seen");
    }
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const QTemporaryDir folder;
    const QString root = folder.path();
    WriteTree(root);
    const auto registered = [&root](const char* name, auto body) {
        benchmark::RegisterBenchmark(name, body, root)
            ->Unit(benchmark::kMillisecond)
            ->UseRealTime()
            ->Iterations(1)
            ->Repetitions(7);
    };
    registered("find 100,000 in 200,000 files/ours", Find_Ours);
    registered("find 100,000 in 200,000 files/bare", Walk_Bare);
    RunSideBySide(argc, argv);
}
