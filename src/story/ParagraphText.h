// SPDX-License-Identifier: MIT
#pragma once

#include <QPlainTextEdit>

// The box that a paragraph is written in. Every key first cleans what was pasted before; caret and
// undo history stay.
class ParagraphText : public QPlainTextEdit
{
    Q_OBJECT

public:
    explicit ParagraphText(QWidget* parent = nullptr);

    // Begins a new undo history.
    void SetText(const QString& text);
    // Lines end with "\n". Blanks that do not break are kept, which the toolkit's own text would
    // turn into common ones.
    QString GetText() const;

    // At the caret, in place of what is selected.
    void Insert(const QString& text);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void insertFromMimeData(const QMimeData* source) override;

private:
    void WrapFor(const QString& text);
    void CleanPasted();
    void ReplaceAll(const QString& text, qsizetype caret);
};
