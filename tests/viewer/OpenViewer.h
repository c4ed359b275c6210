// SPDX-License-Identifier: MIT
#pragma once

#include "platform/widgets/PictureBox.h"
#include "support/AlbumFixture.h"
#include "support/ModalDriver.h"
#include "support/ScriptedDialogs.h"
#include "viewer/frmReelvane.h"

#include <QtTest>

// The viewer's window on an album of its own, with the words that a test needs to work it.
struct OpenViewer
{
    AlbumFixture album;
    ScriptedDialogs dialogs;
    frmReelvane viewer;

    // A chapter whose paragraphs have those texts.
    qint32 AddStory(const QStringList& texts)
    {
        const qint32 chapter = album.AddChapter("One");
        for (const QString& text : texts)
            album.AddParagraph(chapter, text);
        return chapter;
    }

    // Their names are "p00", "p01" and so on; returns their paths.
    QStringList AddPictures(int count, QSize size = {60, 40})
    {
        QStringList paths;
        for (int i = 0; i < count; ++i)
            paths += album.AddPicture(QString("p%1.png").arg(i, 2, 10, QChar(u'0')), {}, size);
        return paths;
    }

    void Open(qint32 chapter)
    {
        viewer.CurrentChapter = chapter;
        viewer.resize(1000, 700);
        viewer.show();
        QVERIFY(QTest::qWaitForWindowExposed(&viewer));
        QTRY_VERIFY(!Legend().isEmpty());
    }

    static QString LegendOf(QWidget& window) { return Find<QLabel>(window, "lblLegend").text(); }
    QString Legend() { return LegendOf(viewer); }
    static void Press(QWidget& window, int key) { QTest::keyClick(&window, Qt::Key(key)); }
    void Press(int key) { Press(viewer, key); }
    void Click(const char* button) { ::Click(viewer, button); }

    static QList<PictureBox*> Boxes(QWidget& window)
    {
        QList<PictureBox*> boxes;
        for (int i = 0; i < maxPictures; ++i)
            boxes += &Find<PictureBox>(window, QString("imgImage_%1").arg(i));
        boxes.removeIf([](const PictureBox* box) { return !box->isVisible(); });
        return boxes;
    }
    QList<PictureBox*> Boxes() { return Boxes(viewer); }

    // The names of the pictures on the screen.
    static QStringList Shown(QWidget& window)
    {
        QStringList names;
        for (const PictureBox* box : Boxes(window))
            names += QFileInfo(box->GetTag()).completeBaseName();
        return names;
    }
    QStringList Shown() { return Shown(viewer); }

    // Autoview: the delay is long, and a test lets it run out when it wants.
    QTimer& Timer() { return *viewer.findChild<QTimer*>("timImage"); }
    void Tick() { Timer().start(0); }
    void StartAutoview(const QString& seconds)
    {
        dialogs.ExpectInput("Please enter delay in seconds : ", seconds, "10");
        Press(Qt::Key_T);
    }
};

// Lets the event loop run while a timer of that interval runs out so often.
inline void LetTimersRunOut(int count, int milliseconds)
{
    int fired = 0;
    QTimer clock;
    QObject::connect(&clock, &QTimer::timeout, [&fired] { ++fired; });
    clock.start(milliseconds);
    QTRY_VERIFY(fired >= count);
}
