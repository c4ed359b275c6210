// SPDX-License-Identifier: MIT
#include "platform/widgets/HelpWindow.h"

#include "platform/widgets/WindowSize.h"

#include <QApplication>
#include <QFile>
#include <QFileInfo>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QSplitter>
#include <QTextBlock>
#include <QTextBrowser>
#include <QVBoxLayout>

namespace {

constexpr int anchorRole = Qt::UserRole;
constexpr int placeRole =
    Qt::UserRole + 1; // where the chapter's heading is in the text, in characters

constexpr int chapterLevel = 2; // of its heading

QString AnchorOf(const QTextBlock& heading)
{
    for (auto part = heading.begin(); !part.atEnd(); ++part) {
        const QStringList names = part.fragment().charFormat().anchorNames();
        if (!names.isEmpty())
            return names.first();
    }
    return {};
}

class HelpKey : public QObject
{
public:
    HelpKey(QObject* parent, const QString& file, KeyTables keys)
        : QObject(parent), file_(file), keys_(keys)
    {
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() != QEvent::KeyPress || !watched->isWidgetType() ||
            static_cast<QKeyEvent*>(event)->key() != Qt::Key_F1)
            return false;
        QWidget* window = WindowOf(static_cast<QWidget*>(watched));
        if (window && !window->inherits("HelpWindow")) {
            HelpWindow help(file_, window, keys_ ? keys_() : std::vector<KeySection>());
            const QString chapter = window->property(helpChapterProperty).toString();
            help.GoTo(chapter.isEmpty() ? window->objectName() : chapter);
            help.exec();
        }
        return true;
    }

private:
    // An open menu or list is closed first: it would keep the keyboard.
    static QWidget* WindowOf(QWidget* widget)
    {
        if (!QApplication::activePopupWidget())
            return widget->window();
        while (QWidget* popup = QApplication::activePopupWidget())
            popup->close();
        return QApplication::activeWindow();
    }

    QString file_;
    KeyTables keys_;
};

QString AsHtml(const std::vector<KeySection>& keys)
{
    QString html;
    for (const KeySection& section : keys) {
        html += QStringLiteral("<h3>%1</h3><table cellspacing=\"8\">")
                    .arg(section.title.toHtmlEscaped());
        for (const KeyRow& row : section.rows)
            html += QStringLiteral("<tr><td><b>%1</b></td><td>%2</td></tr>")
                        .arg(row.keys.toHtmlEscaped(), row.meaning.toHtmlEscaped());
        html += QStringLiteral("</table>");
    }
    return html;
}

} // namespace

HelpWindow::HelpWindow(const QString& file, QWidget* parent, const std::vector<KeySection>& keys)
    : QDialog(parent),
      lstContents_(new QListWidget),
      txtSearch_(new QLineEdit),
      lblNotFound_(new QLabel(tr("Not found"))),
      txtHelp_(new QTextBrowser)
{
    setObjectName(QStringLiteral("frmHelp"));
    setWindowTitle(tr("Lumenark Help"));
    Layout();
    Read(file, keys);
    connect(lstContents_, &QListWidget::currentItemChanged, this, [this](QListWidgetItem* item) {
        if (item)
            ScrollTo(item->data(anchorRole).toString());
    });
    connect(txtHelp_->verticalScrollBar(), &QScrollBar::valueChanged, this,
            &HelpWindow::FollowText);
    txtHelp_->setOpenLinks(false);
    connect(txtHelp_, &QTextBrowser::anchorClicked, this,
            [this](const QUrl& link) { GoTo(link.fragment()); });
    connect(txtSearch_, &QLineEdit::returnPressed, this, &HelpWindow::Search);
    connect(txtSearch_, &QLineEdit::textChanged, this, [this] {
        txtHelp_->moveCursor(QTextCursor::Start);
        Search();
    });
    KeepWindowSize(this, {980, 720});
}

void HelpWindow::Layout()
{
    txtHelp_->setObjectName(QStringLiteral("txtHelp"));
    txtHelp_->document()->setDocumentMargin(18);
    txtHelp_->setAccessibleName(tr("Help text"));
    lstContents_->setObjectName(QStringLiteral("lstContents"));
    lstContents_->setAccessibleName(tr("Contents"));
    txtSearch_->setObjectName(QStringLiteral("txtSearch"));
    txtSearch_->setPlaceholderText(tr("Search"));
    txtSearch_->setAccessibleName(tr("Search"));
    txtSearch_->setClearButtonEnabled(true);
    txtSearch_->setMinimumHeight(32);
    auto* panes = new QSplitter;
    panes->addWidget(lstContents_);
    panes->addWidget(txtHelp_);
    panes->setStretchFactor(1, 1);
    panes->setSizes({240, 740});
    lblNotFound_->setObjectName(QStringLiteral("lblNotFound"));
    lblNotFound_->hide();
    auto* searchRow = new QHBoxLayout;
    searchRow->addWidget(txtSearch_, 1);
    searchRow->addWidget(lblNotFound_);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(searchRow);
    layout->addWidget(panes, 1);
}

void HelpWindow::Read(const QString& file, const std::vector<KeySection>& keys)
{
    QFile help(file);
    if (!help.open(QIODevice::ReadOnly)) {
        txtHelp_->setPlainText(tr("The help file '%1' cannot be read.").arg(file));
        return;
    }
    txtHelp_->setSearchPaths({QFileInfo(file).absolutePath()});
    txtHelp_->setHtml(
        QString::fromUtf8(help.readAll()).replace(QLatin1String("<!--keys-->"), AsHtml(keys)));
    const QTextDocument& text = *txtHelp_->document();
    for (QTextBlock block = text.begin(); block.isValid(); block = block.next()) {
        if (block.blockFormat().headingLevel() != chapterLevel)
            continue;
        auto* item = new QListWidgetItem(block.text(), lstContents_);
        item->setData(anchorRole, AnchorOf(block));
        item->setData(placeRole, block.position());
    }
}

// The last chapters are too short to reach the upper edge; the chosen one stays marked anyway.
void HelpWindow::ScrollTo(const QString& chapter)
{
    const QScopedValueRollback<bool> guided(isGuided_, true);
    txtHelp_->scrollToAnchor(chapter);
}

void HelpWindow::FollowText()
{
    if (isGuided_)
        return;
    const int top = txtHelp_->cursorForPosition({txtHelp_->width() / 2, 40}).position();
    int chapter = -1;
    while (chapter + 1 < lstContents_->count() &&
           lstContents_->item(chapter + 1)->data(placeRole).toInt() <= top)
        ++chapter;
    const QSignalBlocker quiet(lstContents_); // the text must not move
    lstContents_->setCurrentRow(chapter);
}

void HelpWindow::GoTo(const QString& chapter)
{
    for (int row = 0; row < lstContents_->count(); ++row) {
        if (lstContents_->item(row)->data(anchorRole) == chapter)
            lstContents_->setCurrentRow(row);
    }
    txtHelp_->setFocus();
    // Later, when the text has been laid out for the window's size.
    QMetaObject::invokeMethod(
        this, [this, chapter] { ScrollTo(chapter); }, Qt::QueuedConnection);
}

// Searches from the last match on, and after the end from the beginning.
void HelpWindow::Search()
{
    const QString text = txtSearch_->text();
    bool isFound = text.isEmpty() || txtHelp_->find(text);
    if (!isFound) {
        txtHelp_->moveCursor(QTextCursor::Start);
        isFound = txtHelp_->find(text);
    }
    lblNotFound_->setVisible(!isFound);
}

void InstallHelpKey(const QString& file, KeyTables keys)
{
    qApp->installEventFilter(new HelpKey(qApp, file, keys));
}
