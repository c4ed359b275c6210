// SPDX-License-Identifier: MIT
// The names of pictures in an album that travels: legal on every system, apart, and tails of
// theirs.
#include "publish/PublishList.h"
#include "publish/album/TravelNames.h"
#include "support/Rows.h"

#include <QSet>

class TestTravelNames : public QObject
{
    Q_OBJECT

private slots:
    void GivesNamesThatAllSystemsTake_data()
    {
        AddRows<QString>({"name"}, {{"a.jpg", "a.jpg"},
                                    {"a<>:\"|?*b\t.jpg", "a_______b_.jpg"},
                                    {"dot.", "dot._"},
                                    {"blank ", "blank _"},
                                    {"nul", "_nul"},
                                    {"Com1.jpg", "_Com1.jpg"},
                                    {"COM10.jpg", "COM10.jpg"},
                                    {"..", ".._"}});
    }
    void GivesNamesThatAllSystemsTake()
    {
        QFETCH(QString, name);
        QCOMPARE(LegalName(QTest::currentDataTag()), name);
    }

    void KeepsNamesApart()
    {
        const QString lengthy = QString(200, QChar(0xe9)) + ".jpg";
        QStringList files{"/p/a.jpg",  "/p/A.JPG",  "/p/x/b.jpg",     "/p/X/b.jpg",
                          "/p/a?.jpg", "/p/a_.jpg", "/p/1" + lengthy, "/p/2" + lengthy};
        const auto namesOf = [](const QStringList& paths) {
            TravelNames names(paths, {}, {"pictures"});
            QStringList all;
            for (int i = 0; i < paths.size(); ++i)
                all += names.NameOf(i);
            return all;
        };
        const QStringList names = namesOf(files);
        QSet<QString> folded;
        for (const QString& name : names) {
            folded.insert(FoldedName(name));
            for (const QString& part : (name + ".jpg").split('/')) // as it may be when scaled
                QVERIFY(part.toUtf8().size() <= 255 && part == LegalName(part));
        }
        QCOMPARE(folded.size(), files.size());
        QCOMPARE(names[0], "pictures/a.jpg");
        QCOMPARE(namesOf(files + QStringList("/p/x/c.jpg")).first(files.size()), names);
        QCOMPARE(
            namesOf({"/home/u/photos/x/a.jpg", "/media/stick/a.jpg", "C:\\Bilder\\a.jpg"}),
            QStringList({"pictures/x/a.jpg", "pictures/stick/a.jpg", "pictures/Bilder/a.jpg"}));
    }
};

QTEST_GUILESS_MAIN(TestTravelNames)
#include "test_travel_names.moc"
