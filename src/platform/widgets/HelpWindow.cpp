// SPDX-License-Identifier: MIT
#include "platform/widgets/HelpWindow.h"

#include "platform/widgets/WindowSize.h"

#include <QFile>
#include <QTextBrowser>
#include <QVBoxLayout>

HelpWindow::HelpWindow(const QString& file, QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("frmHelp"));
    setWindowTitle(tr("Lumenark Help"));
    auto* text = new QTextBrowser(this);
    text->setObjectName(QStringLiteral("txtHelp"));
    text->document()->setDocumentMargin(16);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(text);
    QFile help(file);
    if (help.open(QIODevice::ReadOnly))
        text->setHtml(QString::fromUtf8(help.readAll()));
    else
        text->setPlainText(tr("The help file '%1' cannot be read.").arg(file));
    KeepWindowSize(this, {760, 640});
}
