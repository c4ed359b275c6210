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

// Previews a paragraph beside its pictures, shown one after the other. The pictures are searched in
// the album as stored, so save first.
class ParagraphPreview : public QObject
{
    Q_OBJECT

public:
    // The window's controls for the preview.
    struct Controls
    {
        FittedPicture* stage;
        QLabel* noPicture; // replaces the stage
        QCheckBox* isLinked;
        QPlainTextEdit* text;
        QLabel* feedback;
    };

    ParagraphPreview(const Controls& controls, QObject* parent);

    // Begins with a paragraph, whose links the check box then shows and changes. Shows no picture.
    void Begin(qint32 paragraph);

    // Lists the paragraph's pictures and shows the first. Throws DatabaseError for a filter that
    // the engine refuses; then no picture is shown. Call Begin before.
    void FindPictures();
    // False, with nothing changed, when none is left.
    bool ShowNext();
    // An empty file shows none.
    void ShowPicture(const QString& file);
    QString GetPicture() const;

    // Shows a text in stored form, its placeholders filled for the current picture.
    void ShowText(const QString& stored);

signals:
    void PicturePressed();

private:
    void chkLinkedImage_Click();

    Controls controls_;
    PictureBox* imgImage_;
    QString invitation_; // while no picture was looked for
    qint32 paragraph_ = 0;
    QStringList pictures_; // still to be shown
};
