// SPDX-License-Identifier: MIT
#pragma once

#include "catalogue/FolderTails.h"
#include "catalogue/MissingPictures.h"
#include "platform/files/FolderWalk.h"

#include <QStringList>

#include <string>
#include <unordered_map>

// A missing picture and the files that may be it.
struct FoundPicture
{
    MissingPicture missing;
    QStringList candidates; // full paths; some, where there are very many
    int chosen = -1; // among the candidates; -1 where the user has to choose, or none is there

    bool IsFound() const { return chosen >= 0; }
    bool IsDoubtful() const { return chosen < 0 && !candidates.isEmpty(); }
};

// Looks for missing pictures in a folder and the folders in it. A file may be a picture if it has
// its name, without regard to case; of several the one counts whose path has the most equal parts
// at its end ("2010/Lake/1.jpg"). Where more than one have as many, the one counts that lies where
// most of the other pictures of the folder are, and copies with equal size and date count as one.
// Files that are pictures of the album already do not count, and no file counts for two pictures.
class MissingSearch
{
public:
    // Whether a picture of the album that is there has the path.
    using IsHeld = std::function<bool(const QString& path)>;

    MissingSearch(std::vector<MissingPicture> missing, const QString& folder, IsHeld isHeld);
    Q_DISABLE_COPY_MOVE(MissingSearch)

    // Looks for about that time; false when all files were seen.
    bool Work(std::chrono::milliseconds time) { return walk_.Work(time); }
    int GetFiles() const { return walk_.GetFiles(); }
    int GetUnreadable() const { return walk_.GetUnreadable(); }

    // What was found among the files seen, in the order of the missing pictures. To be called once.
    std::vector<FoundPicture> Match();

private:
    struct Candidate
    {
        int folder = 0;
        int name = 0; // among the group's
    };
    // Missing pictures of one name, and the files of that name.
    struct Group
    {
        std::vector<int> missing;
        std::vector<std::string> names; // as the disk writes them
        std::vector<Candidate> candidates;
    };
    // Of one missing picture: the candidates with the longest common end.
    struct Option
    {
        int candidate = 0; // its number in the group
        QString path;
    };
    struct Choice
    {
        std::vector<Option> options;
        int equalParts = 0;
        int chosen = -1; // among the options
    };

    void AddFile(std::string_view name);
    QString PathOf(const Group& group, int candidate) const;
    Choice ChooseByPath(const Group& group, int missing) const;
    void PreferExactName(const Group& group, int missing, Choice& choice) const;
    void PreferUsualFolder(const Group& group, int missing, Choice& choice) const;
    static void PreferCopies(Choice& choice);
    static void ResolveClaims(const Group& group, std::vector<Choice>& choices);
    void ChooseWhereOne(Group& group, std::vector<Choice>& choices);
    void ChooseAmongMany(const Group& group, std::vector<Choice>& choices) const;

    std::vector<MissingPicture> missing_;
    std::vector<int> oldFolders_; // of the missing pictures
    IsHeld isHeld_;
    std::unordered_map<std::string, int> numbers_; // of the groups, by folded name
    std::vector<Group> groups_;
    std::string folded_;
    FolderTails tails_;
    std::vector<QString> folders_; // by their numbers in the tails
    QString entered_;
    int enteredNumber_ = -1;            // -1: not among the folders yet
    QHash<int, QHash<int, int>> usual_; // by old folder: how many pictures are in which new one
    FolderWalk walk_;
};
