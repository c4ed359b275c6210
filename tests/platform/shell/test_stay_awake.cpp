// SPDX-License-Identifier: MIT
#include "platform/shell/StayAwake.h"

#include <QDBusConnection>
#include <QDBusServer>
#include <QtTest>

#include <memory>

// Stands in for a desktop; notes what it is asked for.
class Desktop : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.ScreenSaver")

public:
    QStringList asked;

public slots:
    uint Inhibit(const QString& application, const QString& reason)
    {
        asked += reason.isEmpty() ? "no reason" : "awake for " + application;
        return ++cookie_;
    }
    void UnInhibit(uint cookie) { asked += QString("let go %1").arg(cookie); }

private:
    uint cookie_ = 6;
};

// A line of its own to the desktop, without any session bus.
class TestStayAwake : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        QCoreApplication::setApplicationName("Lumenark");
        desktop_.asked.clear();
        server_ = std::make_unique<QDBusServer>("unix:tmpdir=" + QDir::tempPath());
        server_->setAnonymousAuthenticationAllowed(true);
        connect(server_.get(), &QDBusServer::newConnection, this,
                [this](const QDBusConnection& made) {
                    atDesktop_ = std::make_unique<QDBusConnection>(made);
                });
        QVERIFY(QDBusConnection::connectToPeer(server_->address(), line_).isConnected());
        QTRY_VERIFY(atDesktop_);
        QVERIFY(atDesktop_->registerObject("/org/freedesktop/ScreenSaver", &desktop_,
                                           QDBusConnection::ExportAllSlots));
    }

    void cleanup()
    {
        QDBusConnection::disconnectFromPeer(line_);
        atDesktop_.reset();
        server_.reset();
    }

    void AsksAndLetsGo()
    {
        StayAwake nowhere("there is no such line"); // does nothing
        nowhere.Set(true);
        nowhere.Set(false);
        {
            StayAwake awake(line_);
            awake.Set(true);
            awake.Set(true);
            QTRY_COMPARE(desktop_.asked, QStringList("awake for Lumenark"));
            awake.Set(true); // it is already
            awake.Set(false);
            QTRY_COMPARE(desktop_.asked.size(), 2);
            QVERIFY(desktop_.asked.last().startsWith("let go "));
            awake.Set(true);
        }
        QTRY_COMPARE(desktop_.asked.size(), 4); // at its end as well
        QVERIFY(desktop_.asked.last().startsWith("let go "));
    }

    void ChangesOfMindOvertakeTheAnswer()
    {
        StayAwake awake(line_);
        awake.Set(true);
        awake.Set(false);
        QCOMPARE(desktop_.asked.size(), 0); // the call has not blocked
        QTRY_COMPARE(desktop_.asked.size(), 2);
        QVERIFY(desktop_.asked.last().startsWith("let go "));
        for (const bool stays : {true, false, true})
            awake.Set(stays);
        QTRY_COMPARE(desktop_.asked.size(), 3);
    }

private:
    const QString line_ = "line";
    Desktop desktop_;
    std::unique_ptr<QDBusServer> server_;
    std::unique_ptr<QDBusConnection> atDesktop_;
};

QTEST_MAIN(TestStayAwake)
#include "test_stay_awake.moc"
