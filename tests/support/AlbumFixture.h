// SPDX-License-Identifier: MIT
#pragma once

#include "support/TestFiles.h"

#include <QMap>
#include <QStringList>
#include <QTemporaryDir>

#include <functional>

// A fresh world for one test, as on a first start: a folder that goes with it, settings of its own,
// a fixed random seed, and no album. Everything is released at the end.
class World
{
public:
    World();
    virtual ~World();

    QString PathOf(const QString& name) const { return folder_.filePath(name); }

private:
    QTemporaryDir folder_;
};

// The same with a new album that is open.
class AlbumFixture : public World
{
public:
    AlbumFixture();

    const QString& GetAlbum() const { return album_; }

    // Writes a one-coloured picture and adds it to the album; values are fields other than File,
    // Legend among them; characteristics not named are "-". Returns its path.
    QString AddPicture(const QString& name, const QMap<QString, QString>& values = {},
                       QSize size = {60, 40}, const QColor& color = Qt::darkCyan);
    // The same for a path that no file needs to be at.
    void AddImageRow(const QString& path, const QMap<QString, QString>& values = {});

    // A chapter at the end of the story; returns its identifier.
    qint32 AddChapter(const QString& name);
    // A paragraph at the end of a chapter, linked both ways; fields other than Text may be given,
    // characteristics not named are "*". Returns its identifier.
    qint32 AddParagraph(qint32 chapter, const QString& text,
                        const QMap<QString, QString>& fields = {});
    // "One" with two paragraphs, "Empty" with none, and "Three" with one, each paragraph with a
    // picture of its own: a, b and c. Returns the first chapter.
    qint32 AddThreeChapters(QSize pictureSize);
    void Link(qint32 paragraph, const QString& file);

    // What a query returns through a connection of its own, each row as its values joined by "|",
    // Null written as NULL.
    QStringList Rows(const QString& sql) const;
    QString Joined(const QString& sql) const { return Rows(sql).join(QString("; ")); }
    void Execute(const QString& sql) const;
    // The story as its links tell it, "One:123 Two:45", each paragraph by its text; "broken" where
    // a chapter or a paragraph is not where the links on both its sides say, or is not reached.
    QString Story() const;

private:
    QString album_;
};

// While one lives, the engine of the open album fails after that many of its own steps, once or
// from then on, as when another program locks the album or a network drive goes away.
class FailingEngine
{
public:
    explicit FailingEngine(int steps, bool isOnce = false);
    ~FailingEngine();
    FailingEngine(const FailingEngine&) = delete;
    FailingEngine& operator=(const FailingEngine&) = delete;

    bool HasFailed() const { return steps_ < 0; }

private:
    int steps_;
    bool isOnce_;
};

// Has the engine fail at each of its steps in turn, every so many of them, until it fails no more:
// each time something is made ready, done while the engine fails, and looked at afterwards.
void FailAtEachStep(int every, const std::function<void()>& prepare,
                    const std::function<void()>& act, const std::function<void()>& check);

// The number of the error that an action ends with, and what it says; 0 when there is none.
int ErrorOf(const std::function<void()>& action, QString* description = nullptr);
