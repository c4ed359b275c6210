// SPDX-License-Identifier: MIT
#include "ui/main/RecentMenu.h"

#include "core/PathRoutines.h"
#include "core/RecentAlbums.h"

#include <QMenu>

using namespace GeneralModule;

namespace {

constexpr int longestFolder = 400; // pixels

// "&1 Lake.alb  (/home/ann/albums)"; a long folder keeps both of its ends.
QString CaptionOf(const QString& path, int place, const QFontMetrics& metrics)
{
    const QString folder = metrics.elidedText(QDir::toNativeSeparators(FolderOf(path)),
                                              Qt::ElideMiddle, longestFolder);
    QString caption = QStringLiteral("%1  (%2)").arg(FileNameOf(path), folder);
    caption.replace(QLatin1Char('&'), QStringLiteral("&&"));
    const QString key = place < 9 ? QStringLiteral("&%1  ").arg(place + 1) : QStringLiteral("   ");
    return key + caption;
}

} // namespace

void FillRecentMenu(QMenu& menu, const std::function<void(const QString& path)>& open)
{
    menu.clear();
    const QStringList albums = RecentAlbums();
    for (int place = 0; place < albums.size(); ++place) {
        const QString& path = albums[place];
        QAction* entry = menu.addAction(CaptionOf(path, place, menu.fontMetrics()));
        entry->setObjectName(QStringLiteral("mnuRecent_%1").arg(place));
        // Later: opening fills this menu anew, and with it goes the entry that was chosen.
        QObject::connect(
            entry, &QAction::triggered, &menu, [open, path] { open(path); }, Qt::QueuedConnection);
    }
    menu.setEnabled(!albums.isEmpty());
}
