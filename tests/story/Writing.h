// SPDX-License-Identifier: MIT
#pragma once

#include "core/Parameters.h"
#include "story/frmEditParagraph.h"
#include "support/AlbumFixture.h"
#include "support/ModalDriver.h"

#include <QtTest>

// Three paragraphs in the first of two chapters; the editor open on one of them.
class Writing : public AlbumFixture
{
public:
    explicit Writing(qint32 paragraph = 1)
    {
        AddChapter("One");
        AddChapter("Two");
        AddParagraph(1, "first", {{"Car4", "Lake;Gone"}, {"Car9", "!;Big"}});
        AddParagraph(1, "second");
        AddParagraph(1, "third");
        Execute("INSERT INTO Car4 VALUES ('Lake'),('Town')");
        GeneralModule::SetColumnLabel(4, "Where");
        GeneralModule::SetCaractLabel(1, "People");
        editor.CurrentChapter = 1;
        editor.CurrentParagraph = paragraph;
        editor.show();
    }

    void Click(const QString& control) { ::Click(editor, control); }
    void PressOn(const QString& control, Qt::Key key)
    {
        auto& focused = Find<QWidget>(editor, control);
        focused.setFocus();
        QTest::keyClick(&focused, key);
    }
    QPlainTextEdit& TextBox() { return Find<QPlainTextEdit>(editor, "txtParagraph"); }
    QString Text() { return TextBox().toPlainText(); }
    QListWidget& Values() { return Find<QListWidget>(editor, "lstCar"); }
    bool IsShown(const QString& control) { return Find<QWidget>(editor, control).isVisible(); }
    QString Label(const QString& name) { return Find<QLabel>(editor, name).text(); }
    QString Texts() const { return Joined("SELECT Text FROM Paragraph"); }
    QString Stored(const QString& field, int paragraph) const
    {
        return Joined(QString("SELECT %1 FROM Paragraph WHERE Id=%2").arg(field).arg(paragraph));
    }

    // What is previewed, if anything is.
    QString Preview()
    {
        const bool isOn = IsShown("txtParagraphPreview");
        if (IsShown("txtParagraph") == isOn || IsShown("cmdPreview") == isOn)
            QTest::qFail("the preview and the text are both there", __FILE__, __LINE__);
        auto& preview = Find<QPlainTextEdit>(editor, "txtParagraphPreview");
        return isOn ? Label("lblFeedback") + ": " + preview.toPlainText() : QString();
    }

    QString Marks()
    {
        QStringList marks;
        for (int row = 0; row < Values().count(); ++row) {
            const QListWidgetItem* item = Values().item(row);
            marks += item->text() + (item->checkState() == Qt::Checked ? "+" : "");
        }
        return marks.join("; ");
    }

    frmEditParagraph editor;
};
