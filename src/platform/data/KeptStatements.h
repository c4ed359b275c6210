// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <unordered_map>

// Statements that are kept to be run again, by what tells them apart: preparing one takes longer
// than running it. Never more than 64 of them, since filters typed by hand come in many shapes.
template<typename Key, typename Kept>
class KeptStatements
{
public:
    // The one kept for that key, else what make returns, which is kept from then on. It stays valid
    // when others push it out.
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
