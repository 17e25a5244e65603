#pragma once

#include "core/value.h"

#include <cstddef>
#include <optional>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

namespace zolt {

// An ordered list whose items may carry a key, as the project's collections are
// kept: positions count from 1, keys compare without regard to case and are
// unique, items without a key are found by position only.
template <typename T> class KeyedCollection {
public:
    std::size_t Count() const { return items_.size(); }
    bool empty() const { return items_.empty(); }

    // Adds at the end, or before the 1-based position `before`. False when the
    // key is already taken (nothing added then).
    bool Add(T item, std::optional<std::string> key = std::nullopt, std::size_t before = 0) {
        if (key && Contains(*key))
            return false;
        Entry entry{std::move(key), std::move(item)};
        if (before >= 1 && before <= items_.size()) {
            items_.insert(items_.begin() + static_cast<std::ptrdiff_t>(before - 1),
                          std::move(entry));
            reindex();
        } else {
            if (entry.key)
                index_.emplace(vb::UCase(*entry.key), items_.size());
            items_.push_back(std::move(entry));
        }
        return true;
    }

    T* Item(std::size_t position) {
        return position >= 1 && position <= items_.size() ? &items_[position - 1].item : nullptr;
    }
    const T* Item(std::size_t position) const {
        return position >= 1 && position <= items_.size() ? &items_[position - 1].item : nullptr;
    }
    T* Item(std::string_view key) {
        const auto p = PositionOf(key);
        return p ? &items_[p - 1].item : nullptr;
    }
    const T* Item(std::string_view key) const {
        const auto p = PositionOf(key);
        return p ? &items_[p - 1].item : nullptr;
    }

    bool Contains(std::string_view key) const { return PositionOf(key) != 0; }

    // 1-based position of the key; 0 when absent.
    std::size_t PositionOf(std::string_view key) const {
        const auto found = index_.find(vb::UCase(key));
        return found == index_.end() ? 0 : found->second + 1;
    }

    const std::optional<std::string>& KeyAt(std::size_t position) const {
        return items_.at(position - 1).key;
    }

    std::optional<T> Remove(std::size_t position) {
        if (position < 1 || position > items_.size())
            return std::nullopt;
        T item = std::move(items_[position - 1].item);
        if (position == items_.size()) {
            if (items_.back().key)
                index_.erase(vb::UCase(*items_.back().key));
            items_.pop_back();
        } else {
            items_.erase(items_.begin() + static_cast<std::ptrdiff_t>(position - 1));
            reindex();
        }
        return item;
    }
    std::optional<T> Remove(std::string_view key) { return Remove(PositionOf(key)); }

    void Clear() {
        items_.clear();
        index_.clear();
    }

    // Iteration over the items in order.
    template <typename F> void ForEach(F f) {
        for (auto& e : items_)
            f(e.item);
    }
    template <typename F> void ForEach(F f) const {
        for (const auto& e : items_)
            f(e.item);
    }

private:
    struct Entry {
        std::optional<std::string> key;
        T item;
    };
    // Positions only move on an insert or a removal, which rebuild the index;
    // lookups by key stay constant-time however long the list grows.
    void reindex() {
        index_.clear();
        for (std::size_t i = 0; i < items_.size(); ++i)
            if (items_[i].key)
                index_.emplace(vb::UCase(*items_[i].key), i);
    }

    std::vector<Entry> items_;
    // Upper-case key to 0-based position.
    std::unordered_map<std::string, std::size_t> index_;
};

} // namespace zolt
