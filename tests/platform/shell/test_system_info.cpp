// SPDX-License-Identifier: MIT
#include "platform/shell/SystemInfo.h"
#include "support/TestFiles.h"

#include <QSettings>
#include <QTemporaryDir>
#include <QtTest>

class TestSystemInfo : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        QSettings::setPath(QSettings::IniFormat, QSettings::SystemScope, folder_.path());
        QFile::remove(folder_.filePath("QVRLumenark.ini"));
        // No desktop either.
        qputenv("PATH", folder_.path().toLocal8Bit());
    }

    void StartsWhatTheRegistryNames()
    {
        const QString mark = folder_.filePath("started");
        const QString program = folder_.filePath("MSINFO32.EXE");
        WriteFile(program, "#!/bin/sh\n: > '" + mark.toUtf8() + "'\n");
        QFile::setPermissions(program, QFile::ReadOwner | QFile::ExeOwner);
        Write("SOFTWARE/Microsoft/Shared Tools/MSINFO/PATH", program);
        QVERIFY(StartSysInfo());
        QTRY_VERIFY(QFile::exists(mark));
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

    void SaysWhenThereIsNone()
    {
        QVERIFY(!StartSysInfo());
        Write("SOFTWARE/Microsoft/Shared Tools Location/MSINFO", "/nowhere");
        QVERIFY(!StartSysInfo());
    }

private:
    void Write(const QString& key, const QVariant& value)
    {
        QSettings settings(folder_.filePath("QVRLumenark.ini"), QSettings::IniFormat);
        settings.setValue(key, value);
        settings.sync();
    }

    QTemporaryDir folder_;
};

QTEST_GUILESS_MAIN(TestSystemInfo)
#include "test_system_info.moc"
