#include "interchange/s_expression.h"

#include "interchange/drawing.h"

namespace zolt::interchange {
namespace {

bool isBlank(char c) {
    return c == ' ' || c == '\t' || c == '\r' || c == '\n' || c == '\f';
}

class Parser {
public:
    explicit Parser(std::string_view text) : text_(text) {}

    SExpressionRead Run() {
        SExpressionRead read;
        skipBlanks();
        if (at_ >= text_.size() || text_[at_] != '(') {
            read.error = AtLine(line_, "no s-expression: the text does not start with '('");
            return read;
        }
        if (!list(read.root, 1)) {
            read.error = error_;
            return read;
        }
        skipBlanks();
        if (at_ < text_.size())
            read.error = AtLine(line_, "text after the closing parenthesis of the netlist");
        return read;
    }

private:
    void skipBlanks() {
        while (at_ < text_.size() && isBlank(text_[at_])) {
            if (text_[at_] == '\n')
                ++line_;
            ++at_;
        }
    }

    bool fail(int line, const std::string& why) {
        error_ = AtLine(line, why);
        return false;
    }

    bool count() {
        return ++elements_ <= kMaxElements ||
               fail(line_, "more than " + std::to_string(kMaxElements) + " elements");
    }

    // At '(': reads up to and with the matching ')'. Each level is a frame,
    // and the nesting is bounded, so the stack is too.
    bool list(SExpression& into, int depth) {
        if (depth > kMaxNesting)
            return fail(line_, "lists nested deeper than " + std::to_string(kMaxNesting));
        const int opened = line_;
        into.isList = true;
        into.line = line_;
        ++at_;
        for (;;) {
            skipBlanks();
            if (at_ >= text_.size())
                return fail(opened, "the '(' here is never closed");
            const char c = text_[at_];
            if (c == ')') {
                ++at_;
                return true;
            }
            if (!count())
                return false;
            SExpression& item = into.items.emplace_back();
            if (c == '(') {
                if (!list(item, depth + 1))
                    return false;
            } else if (!atom(item)) {
                return false;
            }
        }
    }

    bool atom(SExpression& into) {
        into.line = line_;
        if (text_[at_] != '"') {
            while (at_ < text_.size() && !isBlank(text_[at_]) && text_[at_] != '(' &&
                   text_[at_] != ')' && text_[at_] != '"')
                into.atom += text_[at_++];
            return true;
        }
        const int opened = line_;
        for (++at_; at_ < text_.size(); ++at_) {
            char c = text_[at_];
            if (c == '"') {
                ++at_;
                return true;
            }
            if (c == '\n')
                ++line_;
            if (c == '\\' && at_ + 1 < text_.size())
                c = text_[++at_];
            into.atom += c;
        }
        return fail(opened, "a quoted text is never closed");
    }

    std::string_view text_;
    std::size_t at_ = 0;
    int line_ = 1;
    std::size_t elements_ = 0;
    std::string error_;
};

} // namespace

std::string_view SExpression::Head() const {
    return isList && !items.empty() && !items.front().isList ? std::string_view(items.front().atom)
                                                             : std::string_view();
}

std::vector<const SExpression*> SExpression::Children(std::string_view name) const {
    std::vector<const SExpression*> found;
    for (const SExpression& item : items)
        if (item.Head() == name)
            found.push_back(&item);
    return found;
}

const SExpression* SExpression::Child(std::string_view name) const {
    for (const SExpression& item : items)
        if (item.Head() == name)
            return &item;
    return nullptr;
}

std::string SExpression::Value(std::string_view name) const {
    const SExpression* child = Child(name);
    return child && child->items.size() > 1 && !child->items[1].isList ? child->items[1].atom
                                                                       : std::string();
}

SExpressionRead ReadSExpression(std::string_view text) {
    return Parser(text).Run();
}

} // namespace zolt::interchange
