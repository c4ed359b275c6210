// SPDX-License-Identifier: MIT
#include "ui/main/AlbumStatus.h"

#include "platform/data/DatabaseError.h"
#include "platform/files/PathRoutines.h"
#include "platform/widgets/OfferedControl.h"

#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QPushButton>

using namespace GeneralModule;

namespace {

// A third of a screen's frame: a key that comes meanwhile is handled before anyone notices.
constexpr int slice = 5; // milliseconds

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
    connect(&timer_, &QTimer::timeout, this, &AlbumStatus::CountOn);
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

// Not through Guard: an album that cannot be read now is told where the user asks for something.
void AlbumStatus::Refresh()
{
    controls_.row->setVisible(IsAlbumOpen());
    timer_.stop();
    if (!IsAlbumOpen())
        return;
    controls_.album->setText(DescribeAlbum());
    try {
        census_.Begin();
        timer_.start(0);
    } catch (const DatabaseError&) {
        // The next call tries again.
    }
    ShowCounts();
}

void AlbumStatus::CountOn()
{
    bool goesOn = false;
    try {
        goesOn = IsAlbumOpen() && !QApplication::activeModalWidget() &&
                 census_.WorkUntil(QDeadlineTimer(slice, Qt::PreciseTimer));
    } catch (const DatabaseError&) {
        // It goes on when the window is worked with again.
    }
    if (!goesOn)
        timer_.stop();
    ShowCounts();
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
        Offer(*controls_.missing, *missing > 0, readOnly);
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
