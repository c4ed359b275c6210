// SPDX-License-Identifier: MIT
#include "ui/main/RecentMenu.h"

#include "core/RecentAlbums.h"
#include "platform/dialogs/Guard.h"
#include "platform/files/PathRoutines.h"

#include <QApplication>
#include <QDir>
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

RecentMenu::RecentMenu(QMenu* menu, std::function<void(const QString& path)> open)
    : menu_(menu), open_(std::move(open))
{
}

void RecentMenu::Fill() const
{
    menu_->clear();
    const QStringList albums = RecentAlbums();
    for (int place = 0; place < albums.size(); ++place)
        AddEntry(albums[place], place);
    menu_->setEnabled(!albums.isEmpty());
}

void RecentMenu::AddEntry(const QString& path, int place) const
{
    QAction* entry = menu_->addAction(CaptionOf(path, place, menu_->fontMetrics()));
    entry->setObjectName(QStringLiteral("mnuRecent_%1").arg(place));
    const auto open = [open = open_, path] {
        // Chosen a moment ago: a window that has come up since goes on in the album that it was
        // opened on.
        if (!QApplication::activeModalWidget())
            RunGuarded([&] { open(path); });
    };
    // Later: opening an album refills this menu and so deletes the chosen entry.
    QObject::connect(entry, &QAction::triggered, menu_, open, Qt::QueuedConnection);
}
