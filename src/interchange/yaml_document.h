#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace zolt::interchange {

class YamlDocument;

// A node of a YamlDocument, or none: what a map answers for a key it lacks.
// A view: it lives no longer than its document.
class YamlNode {
public:
    YamlNode() = default;

    explicit operator bool() const { return document_ != nullptr; }
    bool IsNull() const;
    bool IsScalar() const;
    bool IsSequence() const;
    bool IsMap() const;
    const std::string& Scalar() const; // empty but for a scalar
    int Line() const;                  // counted from 1; 0 where none is known

    std::size_t size() const;                        // a sequence's items, a map's entries
    YamlNode operator[](std::size_t item) const;     // of a sequence
    YamlNode Key(std::size_t entry) const;           // of a map
    YamlNode Value(std::size_t entry) const;         // of a map
    YamlNode operator[](std::string_view key) const; // the first entry's value, or none

    class Iterator {
    public:
        Iterator(const YamlDocument* document, const int* at) : document_(document), at_(at) {}
        YamlNode operator*() const { return {document_, *at_}; }
        Iterator& operator++() {
            ++at_;
            return *this;
        }
        bool operator==(const Iterator&) const = default;

    private:
        const YamlDocument* document_;
        const int* at_;
    };
    // A sequence's items; nothing for any other node.
    Iterator begin() const;
    Iterator end() const;

private:
    friend class YamlDocument;
    YamlNode(const YamlDocument* document, int index) : document_(document), index_(index) {}

    const YamlDocument* document_ = nullptr;
    int index_ = -1;
};

// The first document of a YAML text as plain values. yaml-cpp's parser reads
// it; its node tree is not built, as that costs more than the parse. An alias
// is the very node its anchor names, so a small text stays small in memory
// however often it names one (readers bound what they expand from it).
class YamlDocument {
public:
    YamlNode Root() const; // none for a text without a document

private:
    friend class YamlNode;
    friend class YamlBuilder;
    enum class Kind { Null, Scalar, Sequence, Map };
    struct Element {
        Kind kind = Kind::Null;
        int line = 0;
        std::string text;
        std::vector<int> items; // a map's keys and values, alternating
    };
    const Element& at(int index) const { return elements_[static_cast<std::size_t>(index)]; }

    std::vector<Element> elements_;
    int root_ = -1;
};

struct YamlRead {
    YamlDocument document;
    std::string error; // "line 3: not YAML: …"
    bool ok() const { return error.empty(); }
};

// Beyond any drawing: the bound keeps a hostile text from taking the memory.
inline constexpr std::size_t kMaxYamlNodes = 1'000'000;

// Refused past `maxNodes` nodes (an alias is not one: it adds none).
YamlRead ReadYaml(std::string_view text, std::size_t maxNodes = kMaxYamlNodes);

} // namespace zolt::interchange
