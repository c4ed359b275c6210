// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QString>

// What the main window offers, told from what is open.

struct AlbumFacts
{
    bool isOpen = false;
    bool isReadOnly = false;
    bool hasPictures = false;
    int chapters = 0;  // entries of the chapter list
    int selected = -1; // index of the selected one, -1 for none
    QString fileName = {};
};

struct MainWindowState
{
    Q_DECLARE_TR_FUNCTIONS(MainWindowState)

public:
    QString caption;
    QString warning; // two lines at most; empty when there is nothing to say
    bool offersAlbumCommands = false;
    bool offersPictureCommands = false;
    bool offersChapterCommands = false;
    bool isReadOnly = false; // nothing that changes the album is offered
    bool canMoveUp = false;
    bool canMoveDown = false;
};

MainWindowState DescribeMainWindow(const AlbumFacts& facts);
