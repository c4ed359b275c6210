// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QTemporaryDir>
#include <QWidget>

#include <memory>

struct sqlite3;

// An album made for measuring. It has a tenth as many paragraphs as pictures; a tenth of them are
// the second chapter, the others are in chapters of a hundred, and the last chapter is empty. All
// pictures exist: each is shown from one of a few painted files.
class LargeAlbum
{
public:
    // Takes a while for many pictures.
    explicit LargeAlbum(int pictures);
    ~LargeAlbum();
    LargeAlbum(const LargeAlbum&) = delete;
    LargeAlbum& operator=(const LargeAlbum&) = delete;

    // Whether the file that is used has the password.
    enum class Lock { None, Password };

    // The album as it was made, not open.
    void Close(Lock lock = Lock::None);
    // Open as it was made, for an action that changes it.
    void OpenToChange(Lock lock = Lock::None);
    // The same for one that changes nothing, which the next one can use too.
    void OpenToRead();

    // A window that is open when an action begins; the next preparation closes it.
    std::unique_ptr<QWidget> Front;

    QString GetPath(Lock lock = Lock::None) const;
    QString GetFolder() const { return folder_.path(); }
    // Of a free file in the album's folder.
    QString FreePath();

    int CountPictures() const { return pictures_; }
    int CountParagraphs() const { return pictures_ / 10; }
    int CountLong() const { return CountParagraphs() / 10; } // paragraphs of the long chapter
    int CountValues() const { return pictures_ / 200; }      // of each table

    static constexpr int longChapter = 2;
    static constexpr int perChapter = 100;
    // Identifiers: those of the long chapter follow those of the first.
    static int FirstOfLong() { return perChapter + 1; }
    int LastOfLong() const { return perChapter + CountLong(); }
    int LastChapter() const { return 2 + (CountParagraphs() - CountLong()) / perChapter; }

    // Folder of the picture of that number, with its separator, and its name there.
    static QString FolderOf(int picture);
    static QString NameOf(int picture);
    static QString NameOfChapter(int chapter) { return QStringLiteral("Chapter %1").arg(chapter); }

    inline static const QString password = QStringLiteral("rowing boat");

private:
    void Make();
    void FillPictures(sqlite3* engine, const QStringList& files) const;
    void FillChapters(sqlite3* engine) const;
    void FillParagraphs(sqlite3* engine) const;
    void FillValues(sqlite3* engine) const;
    QString MadePath(Lock lock) const;

    QTemporaryDir folder_;
    int pictures_;
    int freePaths_ = 0;
    bool isUnchanged_ = false; // it is open as it was made
};
