// SPDX-License-Identifier: MIT
#include "core/PictureList.h"
#include "core/StartUp.h"

#include <QtTest>

#include <algorithm>

class TestPictureList : public QObject
{
    Q_OBJECT

private slots:
    void init() { GeneralModule::SeedRandom(5); }
    void LinkedPicturesComeFirst();
    void RandomReachesEveryPictureOnce();
    void PictureThatFoundNoRoomComesNext();
    void FilesThatAreGoneAreDropped();
    void PutBackComesBeforeAll();
};

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

void TestPictureList::LinkedPicturesComeFirst()
{
    PictureList list = ListOf({"l1", "l2", "l3"}, {"a", "b", "c"});
    QVERIFY(list.HoldsLinked("l2") && !list.HoldsLinked("a"));
    QCOMPARE(list.Count(), 6);
    const QStringList taken = TakeAll(list, false);
    QStringList first = taken.first(3);
    first.sort();
    QCOMPARE(first, QStringList({"l1", "l2", "l3"}));
    QCOMPARE(taken.sliced(3), QStringList({"a", "b", "c"}));
    QCOMPARE(list.Count(), 0);
}

void TestPictureList::RandomReachesEveryPictureOnce()
{
    QStringList files;
    for (int i = 0; i < 200; ++i)
        files += QString::number(i);
    PictureList list = ListOf({}, files);
    QStringList taken = TakeAll(list, true);
    QVERIFY(taken != files);
    std::sort(taken.begin(), taken.end());
    std::sort(files.begin(), files.end());
    QCOMPARE(taken, files);
}

void TestPictureList::PictureThatFoundNoRoomComesNext()
{
    PictureList list = ListOf({"l1", "l2"}, {"a", "b", "c", "d"});
    const QString first = list.PickNext(true, Always);
    QCOMPARE(list.Count(), 6);
    QCOMPARE(list.PickNext(true, Always), first);
    list.TakePicked();
    QCOMPARE(list.Count(), 5);
}

void TestPictureList::FilesThatAreGoneAreDropped()
{
    PictureList list = ListOf({"gone"}, {"a", "", "gone too"});
    const auto isThere = [](const QString& file) { return file == "a"; };
    QCOMPARE(list.PickNext(true, isThere), "a");
    list.TakePicked();
    QCOMPARE(list.PickNext(true, isThere), "");
    QCOMPARE(list.Count(), 0);
}

void TestPictureList::PutBackComesBeforeAll()
{
    PictureList list = ListOf({"l"}, {"a", "b"});
    list.PutBack({"x", "y"});
    QCOMPARE(list.GetFiles(), QStringList({"x", "y", "l", "a", "b"}));
    QCOMPARE(TakeAll(list, true).first(3), QStringList({"x", "y", "l"}));
}

QTEST_GUILESS_MAIN(TestPictureList)
#include "test_picture_list.moc"
