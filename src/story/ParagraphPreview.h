// SPDX-License-Identifier: MIT
#pragma once

#include "story/Paragraph.h"

#include <QObject>
#include <QStringList>

class FittedPicture;
class PictureBox;
class QCheckBox;
class QLabel;
class QPlainTextEdit;

// How a paragraph reads beside its pictures, which are shown one after the other. The pictures are
// the album's as it is stored: save before.
class ParagraphPreview : public QObject
{
    Q_OBJECT

public:
    // The controls of a window that show it.
    struct Controls
    {
        FittedPicture* stage;
        QLabel* noPicture; // takes the stage's place
        QCheckBox* isLinked;
        QPlainTextEdit* text;
        QLabel* feedback;
    };

    ParagraphPreview(const Controls& controls, QObject* parent);

    // The paragraph whose links the check box shows and sets; no picture is shown.
    void SetParagraph(qint32 paragraph);

    // Lists the paragraph's pictures and shows the first. Throws DatabaseError for a filter that
    // the engine refuses; no picture is shown then.
    void FindPictures();
    // False, and nothing changed, when none is left.
    bool ShowNext();
    // An empty file shows none.
    void ShowPicture(const QString& file);
    QString GetPicture() const;

    // Fills the placeholders of a text in stored form for the picture on show.
    void ShowText(const QString& stored);

signals:
    void PicturePressed();

private:
    void chkLinkedImage_Click();

    Controls controls_;
    PictureBox* imgImage_;
    qint32 paragraph_ = 0;
    QStringList pictures_; // still to be shown
};
