// SPDX-License-Identifier: MIT
#include "core/Album.h"
#include "platform/data/WriteBatch.h"
#include "support/AlbumFixture.h"

#include <QtTest>

using namespace GeneralModule;

class TestWriteBatch : public QObject
{
    Q_OBJECT

private slots:
    void CommitsOnItsWayAndAtItsEnd();
    void InnerBatchBelongsToTheOuter();
    void WhatWasDoneBeforeAnErrorStays();
    void FullDiskLeavesASoundAlbum();
};

namespace {

void AddParam(int number)
{
    ParamsSet->AddNew();
    ParamsSet->Set(u"Param", QStringLiteral("p%1").arg(number));
    ParamsSet->Set(u"Value", QString(200, u'v'));
    ParamsSet->Update();
}

int Stored(const AlbumFixture& album)
{
    return album.Rows("SELECT count(*) FROM Params").first().toInt();
}

} // namespace

void TestWriteBatch::CommitsOnItsWayAndAtItsEnd()
{
    const AlbumFixture album;
    {
        WriteBatch batch(AlbumDatabase);
        for (int i = 0; i < 1500; ++i) {
            AddParam(i);
            batch.RowDone();
        }
        const int seenOutside = Stored(album);
        QVERIFY(seenOutside >= 1000 && seenOutside < 1500);
    }
    QCOMPARE(Stored(album), 1500);
}

void TestWriteBatch::InnerBatchBelongsToTheOuter()
{
    const AlbumFixture album;
    WriteBatch outer(AlbumDatabase);
    {
        WriteBatch inner(AlbumDatabase);
        AddParam(1);
        inner.Finish();
    }
    QCOMPARE(Stored(album), 0);
    outer.Finish();
    QCOMPARE(Stored(album), 1);
}

void TestWriteBatch::WhatWasDoneBeforeAnErrorStays()
{
    const AlbumFixture album;
    try {
        WriteBatch batch(AlbumDatabase);
        AddParam(1);
        AddParam(2);
        AddParam(1);
        QFAIL("a duplicate was taken");
    } catch (const DatabaseError& error) {
        QCOMPARE(error.GetNumber(), 3022);
    }
    QCOMPARE(Stored(album), 2);
}

void TestWriteBatch::FullDiskLeavesASoundAlbum()
{
    const AlbumFixture album;
    AddParam(-1);
    const int pages = album.Rows("PRAGMA page_count").first().toInt();
    AlbumDatabase->Execute("PRAGMA max_page_count=" + QByteArray::number(pages + 40));
    bool wasFull = false;
    try {
        WriteBatch batch(AlbumDatabase);
        for (int i = 0; i < 20000; ++i) {
            AddParam(i);
            batch.RowDone();
        }
        batch.Finish();
    } catch (const DatabaseError& error) {
        wasFull = error.GetNumber() == DatabaseError::DiskFull;
    }
    QVERIFY(wasFull);
    QVERIFY(Stored(album) >= 1);
    QCOMPARE(album.Rows("PRAGMA integrity_check"), QStringList("ok"));
}

QTEST_GUILESS_MAIN(TestWriteBatch)
#include "test_write_batch.moc"
