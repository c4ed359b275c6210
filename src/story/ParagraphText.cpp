// SPDX-License-Identifier: MIT
#include "story/ParagraphText.h"

#include "platform/widgets/TextWrapping.h"
#include "story/PastedText.h"

#include <QKeyEvent>
#include <QMimeData>

#include <algorithm>

namespace {

constexpr double pointSize = 13; // for writing at length
// Characters of markup; removing more piece by piece would be too slow.
constexpr qsizetype longestCleanedSingly = 5000;

// Undo must be able to go back past a paste and its cleaning, so it does not clean again.
bool Cleans(const QKeyEvent& key)
{
    switch (key.key()) {
    case Qt::Key_Shift:
    case Qt::Key_Control:
    case Qt::Key_Alt:
    case Qt::Key_AltGr:
    case Qt::Key_Meta:
    case Qt::Key_CapsLock:
        return false;
    default:
        return !key.matches(QKeySequence::Undo) && !key.matches(QKeySequence::Redo);
    }
}

} // namespace

ParagraphText::ParagraphText(QWidget* parent) : QPlainTextEdit(parent)
{
    QFont writing = font();
    writing.setPointSizeF(pointSize);
    setFont(writing);
    setTabChangesFocus(true);
    document()->setDocumentMargin(12);
}

// Neither the old text nor the new may be wrapped at words while it has an endless one.
void ParagraphText::SetText(const QString& text)
{
    WrapFor(text);
    setPlainText(text);
    setWordWrapMode(WrapModeFor(text));
}

void ParagraphText::WrapFor(const QString& text)
{
    if (wordWrapMode() != QTextOption::WrapAnywhere)
        setWordWrapMode(WrapModeFor(text));
}

QString ParagraphText::GetText() const
{
    return document()
        ->toRawText()
        .replace(QChar::ParagraphSeparator, u'\n')
        .replace(QChar::LineSeparator, u'\n');
}

void ParagraphText::Insert(const QString& text)
{
    WrapFor(text);
    insertPlainText(text);
    ensureCursorVisible();
    WrapFor(GetText());
}

void ParagraphText::insertFromMimeData(const QMimeData* source)
{
    WrapFor(source->text());
    QPlainTextEdit::insertFromMimeData(source);
    WrapFor(GetText());
}

void ParagraphText::keyPressEvent(QKeyEvent* event)
{
    if (Cleans(*event))
        CleanPasted();
    QPlainTextEdit::keyPressEvent(event);
}

void ParagraphText::ReplaceAll(const QString& text, qsizetype caret)
{
    QTextCursor cursor(document());
    cursor.select(QTextCursor::Document);
    cursor.insertText(text);
    cursor.setPosition(int(std::min(caret, text.size())));
    setTextCursor(cursor);
}

// Edits the document instead of replacing its text. Positions in the raw text equal the document's.
void ParagraphText::CleanPasted()
{
    const QString text = document()->toRawText();
    const QString clean = CleanPastedText(text);
    if (clean == text)
        return;
    if (text.size() - clean.size() > longestCleanedSingly)
        return ReplaceAll(clean, CleanPastedText(text.left(textCursor().position())).size());
    QTextCursor cursor(document());
    cursor.beginEditBlock();
    for (const PastedMarkup& markup : PastedMarkups()) {
        const QString current = document()->toRawText();
        const qsizetype length = markup.found.size();
        for (qsizetype at = current.lastIndexOf(markup.found); at >= 0;
             at = at < length ? -1 : current.lastIndexOf(markup.found, at - length)) {
            cursor.setPosition(int(at));
            cursor.setPosition(int(at + length), QTextCursor::KeepAnchor);
            cursor.insertText(markup.replacement);
        }
    }
    cursor.endEditBlock();
}
