// SPDX-License-Identifier: GPL-3.0-or-later
// The reader of typed functions (see TypedReader.h): the program's own grammar, with a refusal that
// names the reason and the place for every text it cannot take.
#include "funclib/TypedReader.h"

#include <cctype>
#include <cmath>
#include <cstdlib>

#include "funclib/Words.h"

namespace FuncGlobals::typed {

namespace {

// ---------------------------------------------------------------------------------------------
// The grammar, from the loosest binding to the tightest:
//   sum     := product (('+' | '-') product)*
//   product := signed (('*' | '/') signed)*
//   signed  := ('-' | '+') signed | power
//   power   := primary ('^' signed)?          (so 2^-1 works, -x^2 is -(x^2), 2^3^2 is 2^(3^2))
//   primary := number | name | function '(' sum ')' | '(' sum ')'
// where a function is a name (or alias) of a row of the table in TypedFunctions.h.
// ---------------------------------------------------------------------------------------------

std::string lower(std::string s)
{
    for (char& c : s)
        c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return s;
}

class Reader {
public:
    Reader(const std::string& text, const std::vector<std::string>& variables, int maxDepth)
        : text_(text), variables_(variables), maxDepth_(maxDepth)
    { }

    NodePtr read()
    {
        skipBlanks();
        if (pos_ >= text_.size())
            refuse(words::nothingTyped, pos_);
        NodePtr n = sum();
        skipBlanks();
        if (pos_ < text_.size()) {
            if (text_[pos_] == ')')
                refuse(words::unexpectedClose, pos_);
            refuseJuxtaposition(pos_);
        }
        // The nesting that counts is the tree's, so that brackets added to show the order of
        // operations never make a text too deep to read again.
        if (const Node* deep = deeper(*n, 1))
            refuse(words::tooDeep, deep->at);
        return n;
    }

private:
    // The first node below the tree's allowed depth, or null.
    const Node* deeper(const Node& n, int depth) const
    {
        if (depth > maxDepth_)
            return &n;
        for (const NodePtr& a : n.args)
            if (const Node* d = deeper(*a, depth + 1))
                return d;
        return nullptr;
    }
    // A refusal from one of the templates of Words.h: `args`, then the place as the last argument.
    [[noreturn]] void refuse(const char* pattern, std::size_t at, std::vector<std::string> args = {}) const
    {
        args.push_back(std::to_string(place(at)));
        throw Refusal{words::fill(pattern, args)};
    }
    // The 1-based place, in characters, of byte `at` (UTF-8 continuation bytes are not counted).
    int place(std::size_t at) const
    {
        int n = 1;
        for (std::size_t i = 0; i < at && i < text_.size(); ++i)
            if ((static_cast<unsigned char>(text_[i]) & 0xC0) != 0x80)
                ++n;
        return n;
    }
    void skipBlanks()
    {
        while (pos_ < text_.size() && std::isspace(static_cast<unsigned char>(text_[pos_])))
            ++pos_;
    }
    bool take(char c)
    {
        skipBlanks();
        if (pos_ < text_.size() && text_[pos_] == c) {
            ++pos_;
            return true;
        }
        return false;
    }
    bool atPowerSign()
    {
        skipBlanks();
        return pos_ < text_.size() &&
               (text_[pos_] == '^' || (text_[pos_] == '*' && pos_ + 1 < text_.size() && text_[pos_ + 1] == '*'));
    }
    // Guards the reader's own recursion (brackets and signs nest without making tree levels).
    void enter(std::size_t at)
    {
        if (++depth_ > 4 * maxDepth_)
            refuse(words::tooDeep, at);
    }

    static NodePtr make(Op op, NodePtr a, NodePtr b = nullptr)
    {
        auto n = std::make_unique<Node>();
        n->op = op;
        n->at = a->at;
        n->args.push_back(std::move(a));
        if (b)
            n->args.push_back(std::move(b));
        return n;
    }

    NodePtr sum()
    {
        NodePtr left = product();
        for (;;) {
            if (take('+'))
                left = make(Op::Add, std::move(left), operand("+"));
            else if (take('-'))
                left = make(Op::Subtract, std::move(left), operand("-"));
            else
                return left;
        }
    }
    NodePtr operand(const char* after)
    {
        skipBlanks();
        if (pos_ >= text_.size())
            refuse(words::termAfter, pos_, {after});
        return product();
    }
    NodePtr product()
    {
        NodePtr left = signedTerm();
        for (;;) {
            skipBlanks();
            if (pos_ + 1 < text_.size() && text_[pos_] == '*' && text_[pos_ + 1] == '*')
                return left;  // a power sign, read by power()
            if (take('*'))
                left = make(Op::Multiply, std::move(left), signedOperand("*"));
            else if (take('/'))
                left = make(Op::Divide, std::move(left), signedOperand("/"));
            else
                return left;
        }
    }
    NodePtr signedOperand(const char* after)
    {
        skipBlanks();
        if (pos_ >= text_.size())
            refuse(words::termAfter, pos_, {after});
        return signedTerm();
    }
    NodePtr signedTerm()
    {
        skipBlanks();
        const std::size_t at = pos_;
        enter(at);
        NodePtr n;
        if (take('-')) {
            n = make(Op::Negate, signedOperand("-"));
            n->at = at;
        } else if (take('+'))
            n = signedOperand("+");
        else
            n = power();
        --depth_;
        return n;
    }
    NodePtr power()
    {
        NodePtr base = primary();
        if (!atPowerSign())
            return base;
        pos_ += text_[pos_] == '^' ? 1 : 2;
        return make(Op::Power, std::move(base), signedOperand("^"));
    }

    NodePtr primary()
    {
        skipBlanks();
        const std::size_t at = pos_;
        if (at >= text_.size())
            refuse(words::term, at);
        const char c = text_[at];
        if (c == '(') {
            ++pos_;
            NodePtr inner = sum();
            if (!take(')'))
                refuseUnclosed();
            return inner;
        }
        if (std::isdigit(static_cast<unsigned char>(c)) || c == '.')
            return number();
        if (std::isalpha(static_cast<unsigned char>(c)) || c == '_')
            return name();
        if (c == ')')
            refuse(at == 0 || text_.find_first_not_of(" \t", 0) == at ? words::unexpectedClose : words::termBeforeClose,
                   at);
        if (c == '+' || c == '*' || c == '/' || c == '^')
            refuse(words::termBefore, at, {std::string(1, c)});
        refuseCharacter(at);
    }
    [[noreturn]] void refuseUnclosed()
    {
        skipBlanks();
        if (pos_ >= text_.size())
            refuse(words::missingClose, pos_);
        if (text_[pos_] == ',')
            refuse(words::oneArgument, pos_);
        refuseJuxtaposition(pos_);
    }
    [[noreturn]] void refuseCharacter(std::size_t at) const
    {
        std::size_t end = at + 1;
        while (end < text_.size() && (static_cast<unsigned char>(text_[end]) & 0xC0) == 0x80)
            ++end;
        const std::string ch = text_.substr(at, end - at);
        if (ch == ",")
            refuse(words::decimalComma, at);
        refuse(words::character, at, {ch});
    }
    // Something that can start a term follows a complete term: a product written without '*'.
    [[noreturn]] void refuseJuxtaposition(std::size_t at) const
    {
        const char c = text_[at];
        if (!(std::isalnum(static_cast<unsigned char>(c)) || c == '.' || c == '(' || c == '_'))
            refuseCharacter(at);
        // The term before, for the example: back over blanks to the last token's start.
        std::size_t end = at;
        while (end > 0 && std::isspace(static_cast<unsigned char>(text_[end - 1])))
            --end;
        std::size_t start = end;
        while (start > 0 && (std::isalnum(static_cast<unsigned char>(text_[start - 1])) || text_[start - 1] == '.'))
            --start;
        std::string before = start < end ? text_.substr(start, end - start) : std::string(")");
        std::size_t next = at;
        while (next < text_.size() && (std::isalnum(static_cast<unsigned char>(text_[next])) || text_[next] == '.'))
            ++next;
        std::string after = next > at ? text_.substr(at, next - at) : std::string("(");
        refuse(words::product, at, {before, after});
    }

    NodePtr number()
    {
        const std::size_t at = pos_;
        std::size_t end = pos_;
        bool digits = false, point = false;
        while (end < text_.size()) {
            const char c = text_[end];
            if (std::isdigit(static_cast<unsigned char>(c)))
                digits = true;
            else if (c == '.' && !point)
                point = true;
            else
                break;
            ++end;
        }
        if (!digits)
            refuse(words::digit, at);
        // An exponent only when e is followed by digits (2e3); "2e" alone is 2 times e, refused below.
        if (end < text_.size() && (text_[end] == 'e' || text_[end] == 'E')) {
            std::size_t k = end + 1;
            if (k < text_.size() && (text_[k] == '+' || text_[k] == '-'))
                ++k;
            if (k < text_.size() && std::isdigit(static_cast<unsigned char>(text_[k]))) {
                while (k < text_.size() && std::isdigit(static_cast<unsigned char>(text_[k])))
                    ++k;
                end = k;
            }
        }
        auto n = std::make_unique<Node>();
        n->op = Op::Number;
        n->at = at;
        n->shown = text_.substr(at, end - at);
        n->value = std::strtod(n->shown.c_str(), nullptr);
        if (!std::isfinite(n->value))
            refuse(words::tooLarge, at);
        pos_ = end;
        return n;
    }

    NodePtr name()
    {
        const std::size_t at = pos_;
        std::size_t end = pos_;
        while (end < text_.size() && (std::isalnum(static_cast<unsigned char>(text_[end])) || text_[end] == '_'))
            ++end;
        const std::string word = text_.substr(at, end - at);
        pos_ = end;
        auto n = std::make_unique<Node>();
        n->at = at;
        if (const TypedFunctionRow* f = findTypedFunction(word)) {
            skipBlanks();
            if (pos_ >= text_.size() || text_[pos_] != '(')
                refuse(words::openAfter, pos_, {word});
            ++pos_;
            n->op = Op::Call;
            n->function = f;
            n->args.push_back(sum());
            if (!take(')'))
                refuseUnclosed();
            return n;
        }
        if (word.size() == 1 && word[0] >= 'A' && word[0] <= 'F') {
            n->op = Op::Variable;
            n->name = word;
            return n;
        }
        for (const std::string& v : variables_)
            if (word == v) {
                n->op = Op::Variable;
                n->name = word;
                return n;
            }
        if (word == "e" || lower(word) == "pi") {
            n->op = Op::Constant;
            n->name = word == "e" ? "e" : "pi";
            n->shown = n->name;
            n->value = word == "e" ? std::exp(1.0) : std::acos(-1.0);
            return n;
        }
        if (word.size() == 1 && word[0] >= 'a' && word[0] <= 'f')
            refuse(words::lowerCoefficient, at, {word});
        if (word.size() > 1) {
            // "xy" or "Ax": letters that are each a name of their own, a product written without '*'.
            bool allNames = true;
            for (char c : word)
                allNames = allNames && isVariableLetter(c);
            if (allNames)
                refuse(words::unknownProduct, at, {word, word.substr(0, 1), word.substr(1)});
        }
        refuse(words::unknownName, at, {word});
    }
    bool isVariableLetter(char c) const
    {
        if (c >= 'A' && c <= 'F')
            return true;
        for (const std::string& v : variables_)
            if (v.size() == 1 && v[0] == c)
                return true;
        return false;
    }

    const std::string& text_;
    const std::vector<std::string>& variables_;
    const int maxDepth_;
    std::size_t pos_ = 0;
    int depth_ = 0;
};

}  // namespace

NodePtr read(const std::string& text, const std::vector<std::string>& variables, int maxDepth)
{
    return Reader(text, variables, maxDepth).read();
}

}  // namespace FuncGlobals::typed
