// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QSet>
#include <QString>
#include <QStringList>

#include <vector>

// A name that every system takes for a file or folder: without characters that some refuse, without
// a dot or blank at its end, not that of a device, and of no more than 255 bytes of UTF-8. A longer
// one is cut before its extension.
QString LegalName(const QString& name);

// Names for files from many folders in one: what the folders have in common is left out, all below
// it stays as it is, as far as all systems take it. No two names differ only in letter case. The
// same files in the same order get the same names; later ones do not change those of earlier ones,
// unless they lie outside what those before have in common.
class TravelNames
{
public:
    struct Layout
    {
        QString top;  // the folder for all
        int kept = 0; // folders that all have in common and that are kept
    };

    // Absolute paths of any system. folders: those that patterns name, which keep what is in them
    // together.
    TravelNames(const QStringList& files, const QStringList& folders, const Layout& layout);

    // Of the file with that number. Nothing else has this name with ".jpg" or ".png" added to it.
    const QString& NameOf(int number) const { return names_[std::size_t(number)]; }
    // Of one of the folders, with "/" at its end. One without any of the files gets a name too,
    // with no file in it.
    QString FolderFor(const QString& folder);
    // Beyond which keeping more changes nothing.
    int GetMostKept() const { return mostKept_; }

private:
    struct Arm
    {
        QStringList common; // folders from the root
        int node = 0;
    };
    struct Node
    {
        QString name; // with "/" at its end
        QHash<QString, int> inner{};
        QSet<QString> taken{}; // folded
    };

    void MakeArms(const std::vector<QStringList>& folders, const Layout& layout);
    void AddArm(const QStringList& common, int kept);
    const Arm* ArmOf(const QStringList& folders) const;
    int NodeOf(const QStringList& folders);
    int InnerOf(int node, const QString& key, const QString& wanted);
    QString TakeName(int node, const QString& wanted, const QStringList& endings);

    std::vector<Arm> arms_;
    std::vector<Node> nodes_;
    std::vector<QString> names_;
    int mostKept_ = 0;
};
