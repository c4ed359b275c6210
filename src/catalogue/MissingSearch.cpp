// SPDX-License-Identifier: MIT
#include "catalogue/MissingSearch.h"

#include "platform/files/FolderListing.h"
#include "platform/files/PathRoutines.h"

#include <QDateTime>
#include <QFileInfo>

#include <algorithm>

namespace {

constexpr std::size_t maxOptions = 50; // of one picture; nobody looks at more

// Disks and systems write the case of names, and letters with accents, in different ways.
void Fold(std::string_view name, std::string& folded)
{
    folded.assign(name);
    bool isAscii = true;
    for (char& letter : folded) {
        isAscii = isAscii && static_cast<unsigned char>(letter) < 0x80;
        letter = letter >= 'A' && letter <= 'Z' ? char(letter + 32) : letter;
    }
    if (!isAscii)
        folded = QString::fromUtf8(name.data(), qsizetype(name.size()))
                     .normalized(QString::NormalizationForm_C)
                     .toCaseFolded()
                     .toStdString();
}

} // namespace

MissingSearch::MissingSearch(std::vector<MissingPicture> missing, const QString& folder,
                             IsHeld isHeld)
    : missing_(std::move(missing)),
      isHeld_(std::move(isHeld)),
      walk_(folder, {[this](const QString& entered) {
                         entered_ = entered;
                         enteredNumber_ = -1;
                     },
                     [this](std::string_view name) { AddFile(name); }})
{
    QHash<QString, int> old;
    for (const MissingPicture& picture : missing_) {
        const QString in = FolderOf(picture.file);
        auto number = old.find(in);
        if (number == old.end()) {
            number = old.insert(in, tails_.Add(in));
            folders_.push_back(in);
        }
        Fold(FileNameOf(picture.file).toStdString(), folded_);
        const int next = int(groups_.size());
        const int group = numbers_.try_emplace(folded_, next).first->second;
        if (group == next)
            groups_.emplace_back();
        groups_[std::size_t(group)].missing.push_back(int(oldFolders_.size()));
        oldFolders_.push_back(*number);
    }
}

void MissingSearch::AddFile(std::string_view name)
{
    Fold(name, folded_);
    const auto number = numbers_.find(folded_);
    if (number == numbers_.end())
        return;
    if (enteredNumber_ < 0) {
        enteredNumber_ = tails_.Add(entered_);
        folders_.push_back(entered_);
    }
    Group& group = groups_[std::size_t(number->second)];
    auto written = std::ranges::find(group.names, name);
    if (written == group.names.end())
        written = group.names.insert(written, std::string(name));
    group.candidates.push_back({enteredNumber_, int(written - group.names.begin())});
}

QString MissingSearch::PathOf(const Group& group, int candidate) const
{
    const Candidate& file = group.candidates[std::size_t(candidate)];
    return PathIn(folders_[std::size_t(file.folder)],
                  QString::fromStdString(group.names[std::size_t(file.name)]));
}

// The group's candidates stand in the order of the tails: those that are most like the old folder
// are found on both sides of its own place.
MissingSearch::Choice MissingSearch::ChooseByPath(const Group& group, int missing) const
{
    const int old = oldFolders_[std::size_t(missing)];
    const auto& all = group.candidates;
    const auto isBefore = [this](const Candidate& each, int place) {
        return tails_.PlaceOf(each.folder) < place;
    };
    int right =
        int(std::lower_bound(all.begin(), all.end(), tails_.PlaceOf(old), isBefore) - all.begin());
    int left = right - 1;
    const auto equalAt = [&](int at) {
        return at < 0 || at >= int(all.size())
                   ? -1
                   : tails_.EqualParts(old, all[std::size_t(at)].folder);
    };
    Choice choice;
    const auto take = [&](int candidate) {
        QString path = PathOf(group, candidate);
        if (choice.options.size() < maxOptions && !isHeld_(path))
            choice.options.push_back({candidate, std::move(path)});
    };
    while (choice.options.empty() && (left >= 0 || right < int(all.size()))) {
        choice.equalParts = std::max(equalAt(left), equalAt(right));
        for (; equalAt(left) == choice.equalParts; --left)
            take(left);
        for (; equalAt(right) == choice.equalParts; ++right)
            take(right);
    }
    return choice;
}

void MissingSearch::PreferExactName(const Group& group, int missing, Choice& choice) const
{
    const std::string name = FileNameOf(missing_[std::size_t(missing)].file).toStdString();
    const auto differs = [&](const Option& option) {
        return group.names[std::size_t(group.candidates[std::size_t(option.candidate)].name)] !=
               name;
    };
    if (!std::ranges::all_of(choice.options, differs))
        std::erase_if(choice.options, differs);
}

void MissingSearch::PreferUsualFolder(const Group& group, int missing, Choice& choice) const
{
    const auto usual = usual_.constFind(oldFolders_[std::size_t(missing)]);
    if (usual == usual_.cend())
        return;
    int most = 0;
    for (std::size_t i = 0; i < choice.options.size(); ++i) {
        const auto candidate = std::size_t(choice.options[i].candidate);
        const int count = usual->value(group.candidates[candidate].folder);
        if (count > most)
            choice.chosen = int(i);
        else if (count == most)
            choice.chosen = -1;
        most = std::max(most, count);
    }
}

void MissingSearch::PreferCopies(Choice& choice)
{
    const QFileInfo first(choice.options.front().path);
    if (std::ranges::all_of(choice.options, [&](const Option& option) {
            const QFileInfo each(option.path);
            return each.size() == first.size() && each.lastModified() == first.lastModified();
        }))
        choice.chosen = 0;
}

// A file that several pictures of the group would take is that of the one with the longest common
// end; where two have as many equal parts, the user has to choose.
void MissingSearch::ResolveClaims(const Group& group, std::vector<Choice>& choices)
{
    if (group.missing.size() < 2)
        return;
    struct Claim
    {
        int mostParts = -1;
        int times = 0; // that as many are claimed
    };
    std::vector<Claim> claims(group.candidates.size());
    const auto claimOf = [&claims](const Choice& choice) -> Claim& {
        return claims[std::size_t(choice.options[std::size_t(choice.chosen)].candidate)];
    };
    for (const int missing : group.missing) {
        const Choice& choice = choices[std::size_t(missing)];
        if (choice.chosen < 0)
            continue;
        Claim& claim = claimOf(choice);
        if (choice.equalParts > claim.mostParts)
            claim = {choice.equalParts, 0};
        claim.times += choice.equalParts == claim.mostParts ? 1 : 0;
    }
    for (const int missing : group.missing) {
        Choice& choice = choices[std::size_t(missing)];
        if (choice.chosen < 0)
            continue;
        const Claim& claim = claimOf(choice);
        if (claim.times > 1 || choice.equalParts < claim.mostParts)
            choice.chosen = -1;
    }
}

void MissingSearch::ChooseWhereOne(Group& group, std::vector<Choice>& choices)
{
    std::ranges::sort(group.candidates, {}, [this](const Candidate& each) {
        return std::pair(tails_.PlaceOf(each.folder), each.name);
    });
    for (const int missing : group.missing) {
        Choice& choice = choices[std::size_t(missing)];
        choice = ChooseByPath(group, missing);
        if (choice.options.size() > 1)
            PreferExactName(group, missing, choice);
        if (choice.options.size() != 1)
            continue;
        choice.chosen = 0;
        const auto candidate = std::size_t(choice.options.front().candidate);
        ++usual_[oldFolders_[std::size_t(missing)]][group.candidates[candidate].folder];
    }
}

void MissingSearch::ChooseAmongMany(const Group& group, std::vector<Choice>& choices) const
{
    for (const int missing : group.missing) {
        Choice& choice = choices[std::size_t(missing)];
        if (choice.options.size() > 1)
            PreferUsualFolder(group, missing, choice);
        if (choice.options.size() > 1 && choice.chosen < 0)
            PreferCopies(choice);
    }
    ResolveClaims(group, choices);
}

std::vector<FoundPicture> MissingSearch::Match()
{
    tails_.Sort();
    std::vector<Choice> choices(missing_.size());
    for (Group& group : groups_)
        ChooseWhereOne(group, choices);
    for (const Group& group : groups_)
        ChooseAmongMany(group, choices);
    std::vector<FoundPicture> found(missing_.size());
    for (std::size_t i = 0; i < found.size(); ++i) {
        found[i].missing = std::move(missing_[i]);
        found[i].chosen = choices[i].chosen;
        for (Option& option : choices[i].options)
            found[i].candidates.append(std::move(option.path));
    }
    return found;
}
