// SPDX-License-Identifier: MIT
#include "ui/main/UndoMenu.h"

#include "catalogue/UndoTurn.h"
#include "core/Album.h"
#include "core/UndoSteps.h"
#include "platform/dialogs/Guard.h"
#include "platform/widgets/OfferedControl.h"
#include "ui/main/frmUndo.h"

#include <QMenu>

using namespace GeneralModule;

namespace {

constexpr int widestStep = 420; // logical pixels

// In a caption "&" would mark an access key.
QString Shown(const QMenu& menu, const QString& step)
{
    return menu.fontMetrics()
        .elidedText(step, Qt::ElideMiddle, widestStep)
        .replace(u'&', QStringLiteral("&&"));
}

} // namespace

UndoMenu::UndoMenu(const Entries& entries, QWidget* window)
    : QObject(window), entries_(entries), window_(window)
{
    connect(entries_.menu, &QMenu::aboutToShow, this, Guarded(this, &UndoMenu::ShowNames));
    connect(entries_.undo, &QAction::triggered, this, [this] { TakeBack(window_); });
    connect(entries_.redo, &QAction::triggered, this, [this] { MakeAgain(window_); });
    connect(entries_.several, &QAction::triggered, this, Guarded(this, &UndoMenu::ChooseSeveral));
}

void UndoMenu::ShowNames()
{
    const QString undo = UndoName();
    const QString redo = RedoName();
    const QString readOnly = IsAlbumReadOnly() ? ReadOnlyReason() : QString();
    const QMenu& menu = *entries_.menu;
    entries_.undo->setText(undo.isEmpty() ? tr("Undo") : tr("Undo %1").arg(Shown(menu, undo)));
    entries_.redo->setText(redo.isEmpty() ? tr("Redo") : tr("Redo %1").arg(Shown(menu, redo)));
    OfferUnless(*entries_.undo, !undo.isEmpty(), readOnly);
    OfferUnless(*entries_.redo, !redo.isEmpty(), readOnly);
    OfferUnless(*entries_.several, !undo.isEmpty(), readOnly);
}

void UndoMenu::ChooseSeveral()
{
    frmUndo(window_).exec();
}
