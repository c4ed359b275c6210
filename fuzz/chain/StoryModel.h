// SPDX-License-Identifier: MIT
#pragma once

#include "story/ParagraphMoves.h"

#include <QString>
#include <QStringList>

#include <vector>

// The story as a person thinks of it: chapters in their order, each with its paragraphs. A
// paragraph that was just created is in it, but the chain leads to it only once it is saved.
class StoryModel
{
public:
    struct Paragraph
    {
        qint32 id;
        QString text;
    };

    struct Chapter
    {
        qint32 id;
        QString name;
        std::vector<Paragraph> paragraphs;
    };

    std::vector<Chapter> chapters;
    qint32 unsaved = 0; // the paragraph that was just created, 0 for none

    Chapter& OfParagraph(qint32 paragraph);
    // Among the paragraphs of its chapter.
    static std::size_t IndexOf(const Chapter& chapter, qint32 paragraph);

    void Save(qint32 paragraph, const QString& text);
    // Where the editor goes from a paragraph by that step.
    qint32 Step(qint32 paragraph, ChainStep step);
    // Where the editor is after the paragraph was deleted; 0 for nowhere.
    qint32 Delete(qint32 paragraph);
    // False where there is nothing to exchange with and no chapter to go to.
    bool Move(qint32 paragraph, bool isDown);

    // What is wrong with the open album, which should hold just this.
    QString FaultOfAlbum() const;
    // As AlbumFixture::Story tells it.
    QString Told() const;

private:
    QString FaultOfChapter(const Chapter& chapter) const;
};
