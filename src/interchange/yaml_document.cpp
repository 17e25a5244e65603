// The one file that reads YAML (yaml-cpp).
#include "interchange/yaml_document.h"

#include "interchange/drawing.h"

#include <istream>
#include <streambuf>
#include <yaml-cpp/eventhandler.h>
#include <yaml-cpp/exceptions.h>
#include <yaml-cpp/mark.h>
#include <yaml-cpp/parser.h>

namespace zolt::interchange {

bool YamlNode::IsNull() const {
    return document_ && document_->at(index_).kind == YamlDocument::Kind::Null;
}
bool YamlNode::IsScalar() const {
    return document_ && document_->at(index_).kind == YamlDocument::Kind::Scalar;
}
bool YamlNode::IsSequence() const {
    return document_ && document_->at(index_).kind == YamlDocument::Kind::Sequence;
}
bool YamlNode::IsMap() const {
    return document_ && document_->at(index_).kind == YamlDocument::Kind::Map;
}

const std::string& YamlNode::Scalar() const {
    static const std::string none;
    return IsScalar() ? document_->at(index_).text : none;
}

int YamlNode::Line() const {
    return document_ ? document_->at(index_).line : 0;
}

std::size_t YamlNode::size() const {
    if (IsSequence())
        return document_->at(index_).items.size();
    return IsMap() ? document_->at(index_).items.size() / 2 : 0;
}

YamlNode YamlNode::operator[](std::size_t item) const {
    return IsSequence() && item < size() ? YamlNode(document_, document_->at(index_).items[item])
                                         : YamlNode();
}

YamlNode YamlNode::Key(std::size_t entry) const {
    return IsMap() && entry < size() ? YamlNode(document_, document_->at(index_).items[2 * entry])
                                     : YamlNode();
}

YamlNode YamlNode::Value(std::size_t entry) const {
    return IsMap() && entry < size()
               ? YamlNode(document_, document_->at(index_).items[2 * entry + 1])
               : YamlNode();
}

YamlNode YamlNode::operator[](std::string_view key) const {
    for (std::size_t entry = 0; entry < size(); ++entry)
        if (const YamlNode k = Key(entry); k.IsScalar() && k.Scalar() == key)
            return Value(entry);
    return {};
}

YamlNode::Iterator YamlNode::begin() const {
    return IsSequence() ? Iterator(document_, document_->at(index_).items.data())
                        : Iterator(nullptr, nullptr);
}

YamlNode::Iterator YamlNode::end() const {
    if (!IsSequence())
        return Iterator(nullptr, nullptr);
    const auto& items = document_->at(index_).items;
    return Iterator(document_, items.data() + items.size());
}

YamlNode YamlDocument::Root() const {
    return root_ < 0 ? YamlNode() : YamlNode(this, root_);
}

// Each parser event adds an element; a finished one joins the collection
// still open around it, in the order the text gives.
class YamlBuilder : public YAML::EventHandler {
public:
    struct TooManyNodes {
        int line;
    };

    YamlBuilder(YamlDocument& document, std::size_t maxNodes)
        : document_(document), maxNodes_(maxNodes) {}

    void OnDocumentStart(const YAML::Mark&) override {}
    void OnDocumentEnd() override {}
    void OnNull(const YAML::Mark& mark, YAML::anchor_t anchor) override {
        finished(add(YamlDocument::Kind::Null, mark, anchor));
    }
    void OnAlias(const YAML::Mark&, YAML::anchor_t anchor) override {
        // The parser refuses an alias to an anchor it has not seen.
        finished(anchors_.at(anchor));
    }
    void OnScalar(const YAML::Mark& mark, const std::string&, YAML::anchor_t anchor,
                  const std::string& value) override {
        const int index = add(YamlDocument::Kind::Scalar, mark, anchor);
        document_.elements_.back().text = value;
        finished(index);
    }
    void OnSequenceStart(const YAML::Mark& mark, const std::string&, YAML::anchor_t anchor,
                         YAML::EmitterStyle::value) override {
        open_.push_back(add(YamlDocument::Kind::Sequence, mark, anchor));
    }
    void OnSequenceEnd() override { close(); }
    void OnMapStart(const YAML::Mark& mark, const std::string&, YAML::anchor_t anchor,
                    YAML::EmitterStyle::value) override {
        open_.push_back(add(YamlDocument::Kind::Map, mark, anchor));
    }
    void OnMapEnd() override { close(); }

private:
    int add(YamlDocument::Kind kind, const YAML::Mark& mark, YAML::anchor_t anchor) {
        if (document_.elements_.size() >= maxNodes_)
            throw TooManyNodes{mark.line + 1};
        const int index = static_cast<int>(document_.elements_.size());
        document_.elements_.push_back({kind, mark.line + 1, {}, {}});
        if (anchor != YAML::NullAnchor) {
            if (anchor >= anchors_.size())
                anchors_.resize(anchor + 1, -1);
            anchors_[anchor] = index;
        }
        return index;
    }

    void finished(int index) {
        if (!open_.empty())
            document_.elements_[static_cast<std::size_t>(open_.back())].items.push_back(index);
        else if (document_.root_ < 0)
            document_.root_ = index;
    }

    void close() {
        const int index = open_.back();
        open_.pop_back();
        finished(index);
    }

    YamlDocument& document_;
    const std::size_t maxNodes_;
    std::vector<int> open_;
    std::vector<int> anchors_;
};

namespace {

// The text as a stream yaml-cpp reads in place: a drawing of megabytes is
// not copied into a string and again into a string stream.
class TextBuffer : public std::streambuf {
public:
    explicit TextBuffer(std::string_view text) {
        char* start = const_cast<char*>(text.data()); // read only: no put area
        setg(start, start, start + text.size());
    }
};

} // namespace

YamlRead ReadYaml(std::string_view text, std::size_t maxNodes) {
    YamlRead read;
    try {
        TextBuffer buffer(text);
        std::istream stream(&buffer);
        YAML::Parser parser(stream);
        YamlBuilder builder(read.document, maxNodes);
        parser.HandleNextDocument(builder);
    } catch (const YAML::Exception& e) {
        read = {};
        read.error = AtLine(e.mark.line + 1, "not YAML: " + e.msg);
    } catch (const YamlBuilder::TooManyNodes& e) {
        read = {};
        read.error = AtLine(e.line, "more than " + std::to_string(maxNodes) +
                                        " values, more than any drawing holds");
    }
    return read;
}

} // namespace zolt::interchange
