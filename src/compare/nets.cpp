#include "compare/nets.h"

namespace zolt::compare {

int Nets::Node(const std::string& name) {
    const auto [it, added] = ids_.try_emplace(name, static_cast<int>(parent_.size()));
    if (added)
        parent_.push_back(it->second);
    return it->second;
}

int Nets::Root(int node) {
    while (parent_[index(node)] != node) {
        auto& up = parent_[index(node)];
        up = parent_[index(up)];
        node = up;
    }
    return node;
}

} // namespace zolt::compare
