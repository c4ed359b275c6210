// SPDX-License-Identifier: MIT
#include "ui/main/AlbumStatus.h"

#include "platform/files/PathRoutines.h"
#include "platform/widgets/OfferedControl.h"

#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QPushButton>

using namespace GeneralModule;

namespace {

// What can be clicked is underlined.
void Offer(QPushButton& button, bool isOffered, const QString& reason)
{
    OfferUnless(button, isOffered, reason);
    QFont font = button.font();
    font.setUnderline(button.isEnabled());
    button.setFont(font);
}

QString DescribeAlbum()
{
    const QString path = OpenAlbumPath();
    const QString folder = QFileInfo(path).absolutePath();
    return QStringLiteral("%1  (%2)").arg(FileNameOf(path), QDir::toNativeSeparators(folder));
}

} // namespace

AlbumStatus::AlbumStatus(const Controls& controls) : controls_(controls)
{
    for (QPushButton* button : {controls_.notIndexed, controls_.missing})
        button->setFlat(true);
    LookLikeLinks();
    controls_.row->window()->installEventFilter(this);
}

void AlbumStatus::LookLikeLinks()
{
    for (QPushButton* button : {controls_.notIndexed, controls_.missing}) {
        QPalette palette = controls_.row->window()->palette();
        for (const auto group : {QPalette::Active, QPalette::Inactive})
            palette.setColor(group, QPalette::ButtonText, palette.color(group, QPalette::Link));
        button->setPalette(palette);
    }
}

// An album that cannot be read now is told where the user asks for something.
void AlbumStatus::Refresh()
{
    controls_.row->setVisible(IsAlbumOpen());
    counting_.Stop();
    if (!IsAlbumOpen())
        return;
    controls_.album->setText(DescribeAlbum());
    census_.ForgetOtherAlbum();
    counting_.Begin([this](std::chrono::milliseconds time) { return CountOn(time); });
    ShowCounts();
}

bool AlbumStatus::CountOn(std::chrono::milliseconds time)
{
    if (!IsAlbumOpen() || QApplication::activeModalWidget())
        return false;
    const bool goesOn = census_.WorkUntil(QDeadlineTimer(time, Qt::PreciseTimer));
    ShowCounts();
    return goesOn;
}

void AlbumStatus::ShowCounts()
{
    const auto& rows = census_.GetRows();
    const std::optional<qint64> missing = census_.GetMissing();
    const bool hasPictures = rows && rows->pictures > 0;
    const QString readOnly = IsAlbumReadOnly() ? ReadOnlyReason() : QString();
    controls_.pictures->setText(rows ? tr("%Ln picture(s)", nullptr, int(rows->pictures))
                                     : QString());
    controls_.notIndexed->setVisible(hasPictures);
    if (hasPictures) {
        controls_.notIndexed->setText(rows->notIndexed == 0
                                          ? tr("all indexed")
                                          : tr("%Ln not indexed", nullptr, int(rows->notIndexed)));
        Offer(*controls_.notIndexed, rows->notIndexed > 0, readOnly);
    }
    controls_.missing->setVisible(hasPictures && missing);
    if (missing) {
        controls_.missing->setText(*missing == 0
                                       ? tr("no file missing")
                                       : tr("%Ln file(s) missing", nullptr, int(*missing)));
        Offer(*controls_.missing, *missing > 0, QString());
    }
}

bool AlbumStatus::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::WindowActivate)
        Refresh();
    else if (event->type() == QEvent::PaletteChange)
        LookLikeLinks();
    return QObject::eventFilter(watched, event);
}
