// SPDX-License-Identifier: MIT
#pragma once

#include <QApplication>
#include <QElapsedTimer>
#include <QString>

// Letters that the user types to find something: those that follow each other quickly are one text.
class TypedText
{
public:
    bool IsGoingOn() const
    {
        return !text_.isEmpty() && sinceLast_.isValid() &&
               sinceLast_.elapsed() < QApplication::keyboardInputInterval();
    }

    void Add(const QString& letters) { text_ = IsGoingOn() ? text_ + letters : letters; }
    // To be called when the text was looked for, which does not count as a pause.
    void Found() { sinceLast_.start(); }

    const QString& Get() const { return text_; }
    bool IsOneLetterRepeated() const
    {
        return text_.count(text_.front(), Qt::CaseInsensitive) == text_.size();
    }

private:
    QString text_;
    QElapsedTimer sinceLast_;
};
