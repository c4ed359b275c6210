// SPDX-License-Identifier: MIT
#pragma once

#include <QPlainTextEdit>

// The box that a paragraph is written in. Every key first cleans pasted text; caret and undo
// history stay.
class ParagraphText : public QPlainTextEdit
{
    Q_OBJECT

public:
    explicit ParagraphText(QWidget* parent = nullptr);

    // Begins a new undo history.
    void SetText(const QString& text);
    // Lines end with "\n". Non-breaking spaces are kept; the toolkit's own text would have ordinary
    // ones.
    QString GetText() const;

    // At the caret, replacing the selection.
    void Insert(const QString& text);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void insertFromMimeData(const QMimeData* source) override;

private:
    void WrapFor(const QString& text);
    void CleanPasted();
    void ReplaceAll(const QString& text, qsizetype caret);
};
