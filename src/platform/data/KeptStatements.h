// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <unordered_map>

// A cache of prepared statements by key: preparing one takes longer than running it. Holds at most
// 64, since filters typed by hand vary a lot.
template<typename Key, typename Kept>
class KeptStatements
{
public:
    // The statement kept for that key, else the result of make, which is then kept. It stays valid
    // after the cache drops it.
    template<typename Make>
    std::shared_ptr<Kept> Get(const Key& key, const Make& make)
    {
        const auto found = kept_.find(key);
        if (found != kept_.end())
            return found->second;
        auto made = std::make_shared<Kept>(make());
        if (kept_.size() >= maximum)
            kept_.clear();
        return kept_.emplace(key, std::move(made)).first->second;
    }

private:
    static constexpr std::size_t maximum = 64;

    std::unordered_map<Key, std::shared_ptr<Kept>> kept_;
};
