// SPDX-License-Identifier: MIT
#include "core/PictureList.h"
#include "core/StartUp.h"

#include <QtTest>

#include <algorithm>

namespace {

bool Always(const QString&)
{
    return true;
}

PictureList ListOf(const QStringList& linked, const QStringList& others)
{
    PictureList list;
    for (const QString& file : others)
        list.Add(file);
    for (const QString& file : linked)
        list.AddLinked(file);
    return list;
}

QStringList TakeAll(PictureList& list, bool atRandom)
{
    QStringList taken;
    for (QString file = list.PickNext(atRandom, Always); !file.isEmpty();
         file = list.PickNext(atRandom, Always)) {
        list.TakePicked();
        taken += file;
    }
    return taken;
}

} // namespace

class TestPictureList : public QObject
{
    Q_OBJECT

private slots:
    void init() { GeneralModule::SeedRandom(5); }

    void LinkedPicturesComeFirst()
    {
        PictureList list = ListOf({"l1", "l2", "l3"}, {"a", "b", "c"});
        QVERIFY(list.HoldsLinked("l2") && !list.HoldsLinked("a"));
        // One that found no room comes again until it is taken.
        const QString picked = list.PickNext(true, Always);
        QCOMPARE(list.PickNext(true, Always), picked);
        QCOMPARE(list.Count(), 6);
        QStringList taken = TakeAll(list, false);
        QCOMPARE(taken.sliced(3), QStringList({"a", "b", "c"}));
        QCOMPARE(taken.first(), picked);
        std::sort(taken.begin(), taken.begin() + 3);
        QCOMPARE(taken.first(3), QStringList({"l1", "l2", "l3"}));
        QCOMPARE(list.Count(), 0);
    }

    void RandomReachesEveryPictureOnce()
    {
        QStringList files;
        for (int i = 0; i < 200; ++i)
            files += QString::number(i);
        PictureList list = ListOf({}, files);
        list.PutBack({"x", "y"});
        QStringList taken = TakeAll(list, true);
        QCOMPARE(taken.first(2), QStringList({"x", "y"}));
        taken.remove(0, 2);
        QVERIFY(taken != files);
        std::sort(taken.begin(), taken.end());
        std::sort(files.begin(), files.end());
        QCOMPARE(taken, files);
    }

    void FilesThatAreGoneAreDropped()
    {
        PictureList list = ListOf({"gone"}, {"a", "", "gone too"});
        const auto isThere = [](const QString& file) { return file == "a"; };
        QCOMPARE(list.PickNext(true, isThere), "a");
        list.TakePicked();
        QCOMPARE(list.PickNext(true, isThere), "");
        QCOMPARE(list.Count(), 0);
    }
};

QTEST_GUILESS_MAIN(TestPictureList)
#include "test_picture_list.moc"
