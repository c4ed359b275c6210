// SPDX-License-Identifier: MIT
#include "catalogue/frmEditImage.h"
#include "catalogue/frmLoadFiles.h"
#include "catalogue/frmReloadPictures.h"
#include "support/AlbumFixture.h"
#include "support/ModalDriver.h"
#include "support/ScriptedDialogs.h"

#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QtTest>

// One user's round through all windows of the catalogue, each opened as the program opens it.
class TestCatalogueRound : public QObject
{
    Q_OBJECT

private slots:
    void LoadsIndexesRenamesAndRepoints();
};

namespace {

const QString valuesAndLegend = "SELECT Car0,Car4,Car7,Legend FROM Image";

void Load(const QString& folder)
{
    WhenModal("frmLoadFiles", [&](QWidget& window) {
        Find<QWidget>(window, "dirPicturesToLoad").setProperty("Path", folder);
        Find<QLineEdit>(window, "txtPictureTypes").setText("*.PNG");
        Find<QPushButton>(window, "cmdLoad").click();
        Find<QPushButton>(window, "cmdCancel").click();
    });
    frmLoadFiles().exec();
}

void Type(QWidget& window, int column, const QString& text)
{
    auto& combo = Find<QComboBox>(window, QStringLiteral("cboCategory_%1").arg(column));
    combo.lineEdit()->selectAll();
    QTest::keyClicks(&combo, text);
}

void RenameValueAndLabel(QWidget& window)
{
    WhenModal("frmEditTables", [](QWidget& tables) {
        Find<QRadioButton>(tables, "optCaracteristic_2").click();
        Find<QRadioButton>(tables, "optColumn_2").click();
        auto& list = Find<QListWidget>(tables, "lstCar");
        list.setCurrentItem(list.findItems("Anna", Qt::MatchExactly).first());
        Find<QPushButton>(tables, "cmdReplace").click();
        WhenModal("frmEditLabels", [](QWidget& labels) {
            Find<QLineEdit>(labels, "txtCar_4").setText("First name");
            Find<QPushButton>(labels, "cmdExit").click();
        });
        Find<QPushButton>(tables, "cmdEditLabels").click();
        Find<QPushButton>(tables, "cmdClose").click();
    });
    Find<QPushButton>(window, "cmdEditTables").click();
}

} // namespace

void TestCatalogueRound::LoadsIndexesRenamesAndRepoints()
{
    const AlbumFixture album;
    ScriptedDialogs dialogs;
    QVERIFY(QDir().mkpath(album.PathOf("old")));
    for (const char* name : {"a.png", "b'c.png"})
        PaintPicture(album.PathOf(QStringLiteral("old/") + name), {30, 20}, Qt::red);
    Load(album.PathOf("old"));
    const QStringList files{album.PathOf("old/a.png"), album.PathOf("old/b'c.png")};
    QCOMPARE(album.Rows("SELECT File FROM Image ORDER BY rowid"), files);
    QCOMPARE(album.Rows(valuesAndLegend), QStringList({"-|-|-|", "-|-|-|"}));

    dialogs.ExpectInput("Replace all occurences of Anna by :", "Anne", "Anna");
    WhenModal("frmEditImage", [&](QWidget& window) {
        Type(window, 4, "Anna");
        Find<QLineEdit>(window, "txtLegend").setText("on the lake");
        Find<QPushButton>(window, "cmdNextImage").click();
        QCOMPARE(album.Rows(valuesAndLegend), QStringList({"-|Anna|-|on the lake", "-|-|-|"}));
        Type(window, 7, "anna");
        RenameValueAndLabel(window);
        QCOMPARE(Find<QComboBox>(window, "cboCategory_7").currentText(), "Anne");
        QCOMPARE(Find<QLabel>(window, "lblCar_4").text(), "First name");
        Find<QPushButton>(window, "cmdExit").click();
    });
    frmEditImage window;
    window.CurrentImage = files[0];
    QStringList next{files[1]};
    window.HasNextPicture = [&] { return !next.isEmpty(); };
    window.NextPicture = [&] { return next.isEmpty() ? QString() : next.takeFirst(); };
    window.exec();
    QCOMPARE(album.Rows(valuesAndLegend), QStringList({"-|Anne|-|on the lake", "-|-|Anne|"}));
    QCOMPARE(album.Rows("SELECT Name FROM Car4"), QStringList({"-", "Anne"}));

    QVERIFY(QDir().rename(album.PathOf("old"), album.PathOf("new")));
    WhenModal("frmReloadPictures", [&](QWidget& reload) {
        Find<QWidget>(reload, "dirNewReferences").setProperty("Path", album.PathOf("new"));
        Find<QPushButton>(reload, "cmdReloadPictures").click();
        QCOMPARE(Find<QLabel>(reload, "lblFeedback").text(), "2 picture references updated");
        Find<QPushButton>(reload, "cmdCancel").click();
    });
    frmReloadPictures().exec();
    QCOMPARE(album.Rows("SELECT File,Car4,Car7 FROM Image"),
             QStringList(
                 {album.PathOf("new/a.png") + "|Anne|-", album.PathOf("new/b'c.png") + "|-|Anne"}));
}

QTEST_MAIN(TestCatalogueRound)
#include "test_catalogue_round.moc"
