// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <functional>

class QMenu;

// The menu of the albums opened lately: an entry for each, the latest first. It is disabled as long
// as there is none.
class RecentMenu
{
public:
    // The menu must outlive it. Choosing an entry hands its path to open, with errors reported.
    RecentMenu(QMenu* menu, std::function<void(const QString& path)> open);

    // Replaces the entries.
    void Fill() const;

private:
    void AddEntry(const QString& path, int place) const;

    QMenu* menu_;
    std::function<void(const QString& path)> open_;
};
