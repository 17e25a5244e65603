#pragma once

#include <string>
#include <unordered_map>
#include <vector>

namespace zolt::compare {

// Named nodes joined into nets (union-find).
class Nets {
public:
    int Node(const std::string& name);
    // A node without a name.
    int Add() {
        parent_.push_back(static_cast<int>(parent_.size()));
        return parent_.back();
    }
    void Join(int a, int b) { parent_[index(Root(a))] = Root(b); }
    int Root(int node);
    bool Joined(const std::string& a, const std::string& b) {
        return Root(Node(a)) == Root(Node(b));
    }
    void Join(const std::string& a, const std::string& b) { Join(Node(a), Node(b)); }

private:
    static std::size_t index(int node) { return static_cast<std::size_t>(node); }

    std::unordered_map<std::string, int> ids_;
    std::vector<int> parent_;
};

} // namespace zolt::compare
