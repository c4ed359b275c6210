// SPDX-License-Identifier: MIT
#pragma once

#include "support/AlbumTest.h"
#include "support/ModalDriver.h"
#include "ui/main/frmOpenChapter.h"

// A test of the real main window, its controls found by name.
class ProgramTest : public AlbumTest
{
protected:
    void Start(const QString& album, const QString& sample = {})
    {
        window_ = Make<frmOpenChapter>(album, sample);
        window_->show();
        QVERIFY(QTest::qWaitForWindowExposed(window_));
    }

    void Start() { Start(album_->GetAlbum()); }

    void AddChapters(const QStringList& names)
    {
        for (const QString& name : names)
            album_->AddChapter(name);
    }

    template<typename Control>
    Control* Find(const QString& name) const
    {
        return &::Find<Control>(*window_, name);
    }

    void Choose(const char* entry) { Find<QAction>(entry)->trigger(); }
    void Click(const char* button) { ::Click(*window_, button); }
    bool IsEnabled(const char* entry) { return Find<QAction>(entry)->isEnabled(); }
    bool HasButton(const char* name) { return Find<QPushButton>(name)->isEnabled(); }

    frmOpenChapter* window_ = nullptr;
};
