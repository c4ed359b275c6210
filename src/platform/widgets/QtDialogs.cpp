// SPDX-License-Identifier: MIT
#include "platform/widgets/QtDialogs.h"

#include "platform/widgets/LongWorkDialog.h"

#include <QApplication>
#include <QFileDialog>
#include <QInputDialog>
#include <QLabel>
#include <QMessageBox>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr int inputWidth = 420; // logical pixels; shows a whole chapter's name or the end of a path
constexpr int widestPrompt = 700;       // logical pixels; a longer one wraps
constexpr qsizetype longestText = 3000; // characters; no screen holds more of a message

QString Cut(const QString& text)
{
    return text.size() <= longestText ? text : text.first(longestText - 1) + QChar(0x2026);
}

QString TitleOr(const QString& title)
{
    return title.isEmpty() ? QApplication::applicationDisplayName() : title;
}

QMessageBox::Icon ToQt(Dialogs::Icon icon)
{
    switch (icon) {
    case Dialogs::Icon::Information:
        return QMessageBox::Information;
    case Dialogs::Icon::Question:
        return QMessageBox::Question;
    case Dialogs::Icon::Warning:
        return QMessageBox::Warning;
    case Dialogs::Icon::Critical:
        return QMessageBox::Critical;
    case Dialogs::Icon::None:
        break;
    }
    return QMessageBox::NoIcon;
}

QMessageBox::StandardButtons ToQt(Dialogs::Buttons buttons)
{
    switch (buttons) {
    case Dialogs::Buttons::OkCancel:
        return QMessageBox::Ok | QMessageBox::Cancel;
    case Dialogs::Buttons::YesNo:
        return QMessageBox::Yes | QMessageBox::No;
    case Dialogs::Buttons::YesNoCancel:
        return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    case Dialogs::Buttons::Ok:
        break;
    }
    return QMessageBox::Ok;
}

QMessageBox::StandardButton ToQt(Dialogs::Answer answer)
{
    switch (answer) {
    case Dialogs::Answer::Cancel:
        return QMessageBox::Cancel;
    case Dialogs::Answer::Yes:
        return QMessageBox::Yes;
    case Dialogs::Answer::No:
        return QMessageBox::No;
    case Dialogs::Answer::Ok:
        break;
    }
    return QMessageBox::Ok;
}

Dialogs::Answer FromQt(int button)
{
    switch (button) {
    case QMessageBox::Yes:
        return Dialogs::Answer::Yes;
    case QMessageBox::No:
        return Dialogs::Answer::No;
    case QMessageBox::Cancel:
        return Dialogs::Answer::Cancel;
    default:
        return Dialogs::Answer::Ok;
    }
}

// Turns "Album|*.alb;*.bak" into the toolkit's "Album (*.alb *.bak)".
QString ToQtFilter(const QString& filter)
{
    const QString patterns = filter.section(u'|', 1).replace(u';', u' ');
    return QStringLiteral("%1 (%2)").arg(filter.section(u'|', 0, 0), patterns);
}

QString FirstExtension(const QString& filter)
{
    return filter.section(u'|', 1).section(u';', 0, 0).section(u'.', 1);
}

QString Choose(const Dialogs::FileChoice& choice, QFileDialog::AcceptMode mode)
{
    QFileDialog dialog(QApplication::activeWindow(), choice.title, choice.folder,
                       ToQtFilter(choice.filter));
    dialog.setAcceptMode(mode);
    dialog.setFileMode(mode == QFileDialog::AcceptOpen ? QFileDialog::ExistingFile
                                                       : QFileDialog::AnyFile);
    if (mode == QFileDialog::AcceptSave)
        dialog.setDefaultSuffix(FirstExtension(choice.filter));
    if (!choice.name.isEmpty())
        dialog.selectFile(choice.name);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return {};
    return QDir::toNativeSeparators(dialog.selectedFiles().constFirst());
}

// The toolkit adds an extension only to a name without any dot: "Rome 12.5" would get none.
QString WithExtension(const QString& path, const QString& filter)
{
    const QString ending = QLatin1Char('.') + FirstExtension(filter);
    return path.endsWith(ending, Qt::CaseInsensitive) ? path : path + ending;
}

// Prompts contain users' names, which must not be read as markup. A field's label would also take
// "&" for an access key, so the field gets its name in another way.
void ShowLiterally(QInputDialog& dialog)
{
    for (QLabel* label : dialog.findChildren<QLabel*>()) {
        label->setTextFormat(Qt::PlainText);
        if (label->sizeHint().width() > widestPrompt) {
            label->setWordWrap(true);
            label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Minimum);
        }
        if (label->buddy())
            label->buddy()->setAccessibleName(label->text());
        label->setBuddy(nullptr);
    }
}

void AddNote(QInputDialog& dialog, const QString& note)
{
    auto* label = new QLabel(note);
    label->setObjectName(QStringLiteral("lblNote"));
    label->setTextFormat(Qt::PlainText);
    QFont font = label->font();
    font.setBold(true);
    label->setFont(font);
    static_cast<QVBoxLayout*>(dialog.layout())->insertWidget(0, label);
}

} // namespace

Dialogs::Answer QtDialogs::Ask(const Box& box)
{
    QMessageBox message(ToQt(box.icon), TitleOr(box.title), Cut(box.text), ToQt(box.buttons),
                        QApplication::activeWindow());
    message.setTextFormat(Qt::PlainText);
    message.setInformativeText(box.note);
    if (box.defaultAnswer)
        message.setDefaultButton(ToQt(*box.defaultAnswer));
    if (!box.yes.isEmpty())
        message.button(QMessageBox::Yes)->setText(box.yes);
    if (!box.no.isEmpty())
        message.button(QMessageBox::No)->setText(box.no);
    return FromQt(message.exec());
}

QString QtDialogs::AskText(const Input& input)
{
    QInputDialog dialog(QApplication::activeWindow());
    dialog.setWindowTitle(TitleOr(input.title));
    dialog.setLabelText(Cut(input.prompt));
    dialog.setTextValue(input.proposal);
    dialog.setTextEchoMode(input.isPassword ? QLineEdit::Password : QLineEdit::Normal);
    dialog.sizeHint(); // creates the labels
    ShowLiterally(dialog);
    if (!input.note.isEmpty())
        AddNote(dialog, input.note);
    dialog.resize(std::max(dialog.sizeHint().width(), inputWidth), dialog.sizeHint().height());
    if (dialog.exec() != QDialog::Accepted)
        return {};
    return dialog.textValue().isEmpty() ? QStringLiteral("") : dialog.textValue();
}

QString QtDialogs::AskOpenFile(const FileChoice& choice)
{
    return Choose(choice, QFileDialog::AcceptOpen);
}

QString QtDialogs::AskSaveFile(const FileChoice& choice)
{
    while (true) {
        const QString chosen = Choose(choice, QFileDialog::AcceptSave);
        if (chosen.isEmpty())
            return {};
        const QString path = WithExtension(chosen, choice.filter);
        // The dialog has asked about the typed name, not about this one.
        if (path == chosen || !QFileInfo::exists(path) ||
            Ask({QCoreApplication::translate("QtDialogs",
                                             "'%1' exists already. Do you want to replace it?")
                     .arg(path),
                 Icon::Warning, Buttons::YesNo, Answer::No}) == Answer::Yes)
            return path;
    }
}

QString QtDialogs::AskFolder(const FileChoice& choice)
{
    QFileDialog dialog(QApplication::activeWindow(), choice.title, choice.folder);
    dialog.setFileMode(QFileDialog::Directory);
    dialog.setOption(QFileDialog::ShowDirsOnly);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return {};
    return QDir::toNativeSeparators(dialog.selectedFiles().constFirst());
}

void QtDialogs::RunLong(const QString& text, bool canStop, const Work& work)
{
    LongWorkDialog(text, canStop, QApplication::activeWindow()).Run(work);
}
