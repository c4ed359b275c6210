// SPDX-License-Identifier: MIT
#include "platform/shell/SystemInfo.h"
#include "support/ScriptedDialogs.h"

#include <QSettings>
#include <QTemporaryDir>
#include <QtTest>

class TestSystemInfo : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void ReadsValuesByTheirKind();
    void StartsWhatTheRegistryNames();
    void SaysWhenThereIsNone_data();
    void SaysWhenThereIsNone();

private:
    void Write(const QString& key, const QVariant& value);

    QTemporaryDir folder_;
    const QString tool_ = "SOFTWARE/Microsoft/Shared Tools/MSINFO/PATH";
    const QString location_ = "SOFTWARE/Microsoft/Shared Tools Location/MSINFO";
};

void TestSystemInfo::init()
{
    QSettings::setPath(QSettings::IniFormat, QSettings::SystemScope, folder_.path());
    QFile::remove(folder_.filePath("QVRLumenark.ini"));
    // No desktop either.
    qputenv("PATH", folder_.path().toLocal8Bit());
}

void TestSystemInfo::Write(const QString& key, const QVariant& value)
{
    QSettings settings(folder_.filePath("QVRLumenark.ini"), QSettings::IniFormat);
    settings.setValue(key, value);
    settings.sync();
}

void TestSystemInfo::ReadsValuesByTheirKind()
{
    QString value = "kept";
    QVERIFY(!GetKeyValue(RegistryRoot::LocalMachine, "SOFTWARE\\A", "V", value));
    QCOMPARE(value, "kept");
    Write("SOFTWARE/A/V", QString::fromLatin1("text\0rest", 9));
    QVERIFY(GetKeyValue(RegistryRoot::LocalMachine, "SOFTWARE\\A", "V", value));
    QCOMPARE(value, "text");
    Write("SOFTWARE/A/B", QByteArray("\x01\xAF", 2));
    QVERIFY(GetKeyValue(RegistryRoot::LocalMachine, "SOFTWARE\\A", "B", value));
    QCOMPARE(value, "01af");
}

void TestSystemInfo::StartsWhatTheRegistryNames()
{
    const QString mark = folder_.filePath("started");
    const QString program = folder_.filePath("MSINFO32.EXE");
    QFile script(program);
    QVERIFY(script.open(QIODevice::WriteOnly));
    script.write("#!/bin/sh\n: > '" + mark.toUtf8() + "'\n");
    script.close();
    script.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    ScriptedDialogs dialogs;
    Write(tool_, program);
    StartSysInfo();
    QTRY_VERIFY(QFile::exists(mark));
}

void TestSystemInfo::SaysWhenThereIsNone_data()
{
    QTest::addColumn<QString>("location");
    QTest::newRow("no entry") << QString();
    QTest::newRow("entry without the program") << QString("/nowhere");
}

void TestSystemInfo::SaysWhenThereIsNone()
{
    QFETCH(QString, location);
    if (!location.isEmpty())
        Write(location_, location);
    ScriptedDialogs dialogs;
    dialogs.ExpectBox("System Information Is Unavailable At This Time", Dialogs::Icon::Warning);
    StartSysInfo();
}

QTEST_GUILESS_MAIN(TestSystemInfo)
#include "test_system_info.moc"
