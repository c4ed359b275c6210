// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

class LargeAlbum;

// Something that a user can do.
struct Action
{
    using Part = std::function<void(LargeAlbum&)>;

    std::string name;
    Part prepare; // is not measured
    Part work;
    Part bare = {}; // what the engine alone takes; after the same preparation
};

// The time that each action takes in albums of several sizes.
class Measurement
{
public:
    // repetitions: how often each is measured; the median counts.
    explicit Measurement(int repetitions) : repetitions_(repetitions) {}

    // Only those whose name contains the text.
    void Run(const std::vector<Action>& actions, LargeAlbum& album, const std::string& named);
    // Sorted by size: the times, how much longer each takes than in the album before, and in the
    // largest album how it compares with the engine alone.
    void Print() const;

private:
    struct Times
    {
        double ours = 0; // milliseconds
        double bare = 0; // 0 when there is nothing to compare with
    };

    Times Measure(const Action& action, LargeAlbum& album) const;

    int repetitions_;
    std::vector<std::string> names_; // in the order of the first run
    std::map<std::string, std::map<int, Times>> times_;
};

// Of opening, repairing, locking; of pictures and their values; of the story; of windows.
std::vector<Action> AlbumActions();
std::vector<Action> CatalogueActions();
std::vector<Action> StoryActions();
std::vector<Action> WindowActions();
