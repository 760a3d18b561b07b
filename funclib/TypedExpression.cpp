// SPDX-License-Identifier: GPL-3.0-or-later
#include "funclib/TypedExpression.h"

#include <cctype>
#include <cmath>
#include <cstdio>
#include <limits>
#include <map>
#include <optional>

#include <ginac/ginac.h>
#include <muParser.h>

#include "funclib/FuncGlobals.h"

namespace FuncGlobals {

namespace {

// ---------------------------------------------------------------------------------------------
// The grammar, from the loosest binding to the tightest:
//   sum     := product (('+' | '-') product)*
//   product := signed (('*' | '/') signed)*
//   signed  := ('-' | '+') signed | power
//   power   := primary ('^' signed)?          (so 2^-1 works, -x^2 is -(x^2), 2^3^2 is 2^(3^2))
//   primary := number | name | function '(' sum ')' | '(' sum ')'
// ---------------------------------------------------------------------------------------------

enum class Op { Number, Variable, Constant, Negate, Add, Subtract, Multiply, Divide, Power, Call };

struct Node {
    Op op = Op::Number;
    double value = 0;  // Number; the constant's value for Constant
    std::string name;  // Variable, Constant and Call: the name as the evaluators know it
    std::string shown;  // the literal as typed (Number) or the canonical name (Constant, Call)
    std::size_t at = 0;  // where it starts in the text, in bytes
    std::vector<std::unique_ptr<Node>> args;
};
using NodePtr = std::unique_ptr<Node>;

// The functions a teacher may call, with the name each evaluator knows them by.
struct FunctionName {
    const char* typed;  // lower case; matched without regard to case
    const char* shown;  // as the understood text writes it
};
constexpr FunctionName kFunctions[] = {
    {"sin", "sin"},     {"cos", "cos"},     {"tan", "tan"},   {"cot", "cot"},   {"sec", "sec"},
    {"csc", "csc"},     {"asin", "asin"},   {"acos", "acos"}, {"atan", "atan"}, {"arcsin", "asin"},
    {"arccos", "acos"}, {"arctan", "atan"}, {"sinh", "sinh"}, {"cosh", "cosh"}, {"tanh", "tanh"},
    {"exp", "exp"},     {"ln", "ln"},       {"log", "ln"},    {"sqrt", "sqrt"}, {"abs", "abs"},
};

std::string lower(std::string s)
{
    for (char& c : s)
        c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return s;
}

const FunctionName* findFunction(const std::string& name)
{
    const std::string l = lower(name);
    for (const FunctionName& f : kFunctions)
        if (l == f.typed)
            return &f;
    return nullptr;
}

// Thrown inside the reader only; compile() turns it into the error text.
struct Refusal {
    std::string message;
};

class Reader {
public:
    Reader(const std::string& text, const VariableNames& variables) : text_(text), variables_(variables) { }

    NodePtr read()
    {
        skipBlanks();
        if (pos_ >= text_.size())
            refuse("nothing typed: type a function, for example x^2 - 4", pos_);
        NodePtr n = sum();
        skipBlanks();
        if (pos_ < text_.size()) {
            if (text_[pos_] == ')')
                refuse("unexpected ')'", pos_);
            refuseJuxtaposition(pos_);
        }
        // The nesting that counts is the tree's, so that brackets added to show the order of
        // operations never make a text too deep to read again.
        if (const Node* deep = deeper(*n, 1))
            refuse("too deeply nested", deep->at);
        return n;
    }

private:
    // The first node below the tree's allowed depth, or null.
    static const Node* deeper(const Node& n, int depth)
    {
        if (depth > TypedExpression::MaxDepth)
            return &n;
        for (const NodePtr& a : n.args)
            if (const Node* d = deeper(*a, depth + 1))
                return d;
        return nullptr;
    }
    [[noreturn]] void refuse(const std::string& what, std::size_t at, const std::string& hint = {}) const
    {
        throw Refusal{what + " at " + std::to_string(place(at)) + hint};
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
        if (++depth_ > 4 * TypedExpression::MaxDepth)
            refuse("too deeply nested", at);
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
            refuse(std::string("missing a term after '") + after + "'", pos_);
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
            refuse(std::string("missing a term after '") + after + "'", pos_);
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
            refuse("missing a term", at);
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
            refuse(at == 0 || text_.find_first_not_of(" \t", 0) == at ? "unexpected ')'" : "missing a term before ')'",
                   at);
        if (c == '+' || c == '*' || c == '/' || c == '^')
            refuse(std::string("missing a term before '") + c + "'", at);
        refuseCharacter(at);
    }
    [[noreturn]] void refuseUnclosed()
    {
        skipBlanks();
        if (pos_ >= text_.size())
            refuse("missing ')'", pos_);
        if (text_[pos_] == ',')
            refuse("unexpected ',' (each function takes one argument)", pos_);
        refuseJuxtaposition(pos_);
    }
    [[noreturn]] void refuseCharacter(std::size_t at) const
    {
        std::size_t end = at + 1;
        while (end < text_.size() && (static_cast<unsigned char>(text_[end]) & 0xC0) == 0x80)
            ++end;
        const std::string ch = text_.substr(at, end - at);
        if (ch == ",")
            refuse("unexpected ',' (write decimals with a point, and each function takes one argument)", at);
        refuse("unexpected character '" + ch + "'", at);
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
        refuse("missing '*': write " + before + "*" + after + " for a product", at);
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
            refuse("a number needs a digit", at);
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
            refuse("number too large", at);
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
        if (const FunctionName* f = findFunction(word)) {
            skipBlanks();
            if (pos_ >= text_.size() || text_[pos_] != '(')
                refuse("missing '(' after '" + word + "'", pos_);
            ++pos_;
            n->op = Op::Call;
            n->name = f->shown;
            n->shown = f->shown;
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
        std::string hint;
        if (word.size() == 1 && word[0] >= 'a' && word[0] <= 'f')
            hint = " (the coefficients are the capitals A to F)";
        else if (word.size() > 1) {
            // "xy" or "Ax": letters that are each a name of their own, a product written without '*'.
            bool allNames = true;
            for (char c : word)
                allNames = allNames && isVariableLetter(c);
            if (allNames)
                hint = ": write " + std::string(1, word[0]) + "*" + word.substr(1) + " for a product";
        }
        refuse("unknown name '" + word + "'", at, hint);
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
    const VariableNames& variables_;
    std::size_t pos_ = 0;
    int depth_ = 0;
};

// ---------------------------------------------------------------------------------------------
// Printers
// ---------------------------------------------------------------------------------------------

std::string number(double v)
{
    char buffer[40];
    std::snprintf(buffer, sizeof buffer, "%.17g", v);
    return buffer;
}

// Fully bracketed text for muparser: no rule of precedence is left to it.
void toMuparser(const Node& n, std::string& out)
{
    switch (n.op) {
    case Op::Number:
    case Op::Constant: out += '(' + number(n.value) + ')'; return;
    case Op::Variable: out += n.name; return;
    case Op::Negate:
        out += "(-(";
        toMuparser(*n.args[0], out);
        out += "))";
        return;
    case Op::Call: {
        const std::string& f = n.name;
        const char* wrap = f == "cot" ? "(1/tan(" : f == "sec" ? "(1/cos(" : f == "csc" ? "(1/sin(" : nullptr;
        out += wrap ? std::string(wrap) : f + "(";
        toMuparser(*n.args[0], out);
        out += wrap ? "))" : ")";
        return;
    }
    default: break;
    }
    const char* sign = n.op == Op::Add        ? "+"
                       : n.op == Op::Subtract ? "-"
                       : n.op == Op::Multiply ? "*"
                       : n.op == Op::Divide   ? "/"
                                              : "^";
    out += '(';
    toMuparser(*n.args[0], out);
    out += sign;
    toMuparser(*n.args[1], out);
    out += ')';
}

int binding(Op op)
{
    switch (op) {
    case Op::Add:
    case Op::Subtract: return 1;
    case Op::Multiply:
    case Op::Divide: return 2;
    case Op::Negate: return 3;
    case Op::Power: return 4;
    default: return 5;
    }
}

// The understood text: the teacher's terms with spaced operators, and brackets wherever the order of
// operations decides something a reader could take otherwise (around a power's operands that are
// not single terms, and around a power that is negated).
void writeUnderstood(const Node& n, std::string& out)
{
    auto child = [&out](const Node& c, bool bracket) {
        if (bracket)
            out += '(';
        writeUnderstood(c, out);
        if (bracket)
            out += ')';
    };
    switch (n.op) {
    case Op::Number: out += n.shown; return;
    case Op::Constant:
    case Op::Variable: out += n.op == Op::Constant ? n.shown : n.name; return;
    case Op::Call:
        out += n.shown + '(';
        writeUnderstood(*n.args[0], out);
        out += ')';
        return;
    case Op::Negate:
        out += '-';
        child(*n.args[0], binding(n.args[0]->op) <= 4 && n.args[0]->op != Op::Negate);
        return;
    case Op::Power:
        child(*n.args[0], binding(n.args[0]->op) <= 4);
        out += '^';
        child(*n.args[1], binding(n.args[1]->op) <= 4);
        return;
    default: break;
    }
    // A right operand of the same binding keeps its brackets even where algebra would drop them:
    // a + (b - c) is not rounded as a + b - c, and the text must say how the value is computed.
    const int b = binding(n.op);
    child(*n.args[0], binding(n.args[0]->op) < b);
    out += n.op == Op::Add ? " + " : n.op == Op::Subtract ? " - " : n.op == Op::Multiply ? "*" : "/";
    child(*n.args[1], binding(n.args[1]->op) <= b);
}

// ---------------------------------------------------------------------------------------------
// GiNaC: the tree as a symbolic expression, and a symbolic expression back as muparser text
// ---------------------------------------------------------------------------------------------

bool withoutVariables(const Node& n)
{
    if (n.op == Op::Variable)
        return false;
    for (const NodePtr& a : n.args)
        if (!withoutVariables(*a))
            return false;
    return true;
}

// The value of a tree in doubles with its variables at `at` (NaN where undefined); a tree without
// variables needs none.
double valueAt(const Node& n, const std::map<std::string, double>& at)
{
    auto arg = [&](int i) { return valueAt(*n.args[i], at); };
    switch (n.op) {
    case Op::Number:
    case Op::Constant: return n.value;
    case Op::Variable: {
        const auto found = at.find(n.name);
        return found == at.end() ? std::nan("") : found->second;
    }
    case Op::Negate: return -arg(0);
    case Op::Add: return arg(0) + arg(1);
    case Op::Subtract: return arg(0) - arg(1);
    case Op::Multiply: return arg(0) * arg(1);
    case Op::Divide: return arg(0) / arg(1);
    case Op::Power: return std::pow(arg(0), arg(1));
    case Op::Call: break;
    }
    const double a = arg(0);
    const std::string& f = n.name;
    if (f == "sin")
        return std::sin(a);
    if (f == "cos")
        return std::cos(a);
    if (f == "tan")
        return std::tan(a);
    if (f == "cot")
        return 1 / std::tan(a);
    if (f == "sec")
        return 1 / std::cos(a);
    if (f == "csc")
        return 1 / std::sin(a);
    if (f == "asin")
        return std::asin(a);
    if (f == "acos")
        return std::acos(a);
    if (f == "atan")
        return std::atan(a);
    if (f == "sinh")
        return std::sinh(a);
    if (f == "cosh")
        return std::cosh(a);
    if (f == "tanh")
        return std::tanh(a);
    if (f == "exp")
        return std::exp(a);
    if (f == "ln")
        return std::log(a);
    if (f == "sqrt")
        return std::sqrt(a);
    return std::fabs(a);
}

double fold(const Node& n) { return valueAt(n, {}); }

// True when the tree is 0 wherever it is evaluated (x - x, 0*y): GiNaC reduces such a part to 0 and
// then throws from a division, a power or a logarithm of it, and the C++ exception escapes from the
// middle of its own code, which does not free what it had built. Such an expression is kept from
// GiNaC instead: its derivative is reported as not found.
bool identicallyZero(const Node& n, const std::vector<std::string>& names)
{
    if (n.op == Op::Number || n.op == Op::Constant || n.op == Op::Variable)
        return n.value == 0 && n.op != Op::Variable;
    const double samples[] = {0.7390851332, -1.3247179572, 2.2360679775, 0.5772156649, -3.1415926536};
    for (double s : samples) {
        std::map<std::string, double> at;
        double v = s;
        for (const std::string& name : names) {
            at[name] = v;
            v = v * 1.6180339887 - 0.4142135624;
        }
        const double r = valueAt(n, at);
        if (!(std::fabs(r) < 1e-9))
            return false;
    }
    return true;
}

// True when some divisor, power base or logarithm's argument in the tree is identically 0.
bool dividesByZero(const Node& n, const std::vector<std::string>& names)
{
    if (withoutVariables(n))  // becomes one number before GiNaC sees it
        return false;
    const bool singular =
        (n.op == Op::Divide && identicallyZero(*n.args[1], names)) ||
        ((n.op == Op::Power || (n.op == Op::Call && (n.name == "ln" || n.name == "cot" || n.name == "csc"))) &&
         identicallyZero(*n.args[0], names));
    if (singular)
        return true;
    for (const NodePtr& a : n.args)
        if (dividesByZero(*a, names))
            return true;
    return false;
}

// A number as GiNaC keeps it: an exact integer or decimal fraction when the text has at most 15
// digits (so that 0.1 is 1/10 and the derivative reads 3*x^2, not 3.0*x^2.0), a float otherwise.
GiNaC::ex exactNumber(double v, const std::string& shown)
{
    if (!shown.empty() && shown.find_first_of("eE") == std::string::npos) {
        std::string digits;
        long scale = 0;
        bool afterPoint = false;
        for (char c : shown) {
            if (c == '.')
                afterPoint = true;
            else {
                digits += c;
                scale += afterPoint ? 1 : 0;
            }
        }
        while (digits.size() > 1 && digits[0] == '0')
            digits.erase(0, 1);
        if (digits.size() <= 15 && scale <= 15) {
            long long numerator = std::stoll(digits);
            long long denominator = 1;
            for (long k = 0; k < scale; ++k)
                denominator *= 10;
            return GiNaC::numeric(static_cast<long>(numerator)) / GiNaC::numeric(static_cast<long>(denominator));
        }
    }
    if (!std::isfinite(v))
        throw Refusal{"not finite"};
    if (v == std::floor(v) && std::fabs(v) < 1e15)
        return GiNaC::numeric(static_cast<long>(v));
    return GiNaC::numeric(v);
}

// a^b, where GiNaC would work out a power of two numbers exactly (and 4^(2^(4e44)) never ends): a
// small whole power of a small fraction stays exact, any other power of numbers is a double.
GiNaC::ex raise(const GiNaC::ex& a, const GiNaC::ex& b)
{
    using namespace GiNaC;
    if (!is_a<numeric>(a) || !is_a<numeric>(b))
        return pow(a, b);
    const numeric& base = ex_to<numeric>(a);
    const numeric& exponent = ex_to<numeric>(b);
    if (exponent.is_integer() && abs(exponent) <= 32 && base.is_rational() && abs(base.numer()) < 1000000 &&
        base.denom() < 1000000 && !(base.is_zero() && exponent.is_negative()))
        return pow(a, b);
    return exactNumber(std::pow(base.to_double(), exponent.to_double()), "");
}

GiNaC::ex toGinac(const Node& n, const std::map<std::string, GiNaC::realsymbol>& symbols)
{
    using namespace GiNaC;
    // A part without variables becomes one number first, computed in doubles: GiNaC would otherwise
    // work out 9^(9^9) exactly, which never ends.
    if (n.op != Op::Number && n.op != Op::Constant && withoutVariables(n))
        return exactNumber(fold(n), "");
    switch (n.op) {
    case Op::Number: return exactNumber(n.value, n.shown);
    case Op::Constant: return n.name == "pi" ? ex(Pi) : exp(ex(1));
    case Op::Variable: return symbols.at(n.name);
    case Op::Negate: return -toGinac(*n.args[0], symbols);
    case Op::Add: return toGinac(*n.args[0], symbols) + toGinac(*n.args[1], symbols);
    case Op::Subtract: return toGinac(*n.args[0], symbols) - toGinac(*n.args[1], symbols);
    case Op::Multiply: return toGinac(*n.args[0], symbols) * toGinac(*n.args[1], symbols);
    case Op::Divide: return toGinac(*n.args[0], symbols) / toGinac(*n.args[1], symbols);
    case Op::Power: return raise(toGinac(*n.args[0], symbols), toGinac(*n.args[1], symbols));
    case Op::Call: {
        const ex a = toGinac(*n.args[0], symbols);
        const std::string& f = n.name;
        if (is_a<numeric>(a)) {
            // GiNaC would evaluate the function of a number in arbitrary precision; a double serves.
            Node call;
            call.op = Op::Call;
            call.name = f;
            auto argument = std::make_unique<Node>();
            argument->op = Op::Number;
            argument->value = ex_to<numeric>(a).to_double();
            call.args.push_back(std::move(argument));
            return exactNumber(valueAt(call, {}), "");
        }
        if (f == "sin")
            return sin(a);
        if (f == "cos")
            return cos(a);
        if (f == "tan")
            return tan(a);
        if (f == "cot")
            return 1 / tan(a);
        if (f == "sec")
            return 1 / cos(a);
        if (f == "csc")
            return 1 / sin(a);
        if (f == "asin")
            return asin(a);
        if (f == "acos")
            return acos(a);
        if (f == "atan")
            return atan(a);
        if (f == "sinh")
            return sinh(a);
        if (f == "cosh")
            return cosh(a);
        if (f == "tanh")
            return tanh(a);
        if (f == "exp")
            return exp(a);
        if (f == "ln")
            return log(a);
        if (f == "sqrt")
            return sqrt(a);
        if (f == "abs")
            return abs(a);
        break;
    }
    }
    throw Refusal{"unknown function"};
}

// True when some operation of the tree is undefined or overflows for some finite arguments.
bool mayBeUndefined(const Node& n)
{
    if (n.op == Op::Divide || n.op == Op::Power)
        return true;
    if (n.op == Op::Call &&
        !(n.name == "sin" || n.name == "cos" || n.name == "atan" || n.name == "tanh" || n.name == "abs"))
        return true;
    for (const NodePtr& a : n.args)
        if (mayBeUndefined(*a))
            return true;
    return false;
}

constexpr std::size_t kMaxDerivativeText = 100000;

// GiNaC's result as fully bracketed muparser text; false for anything the evaluator cannot take.
bool fromGinac(const GiNaC::ex& e, std::string& out)
{
    using namespace GiNaC;
    if (out.size() > kMaxDerivativeText)
        return false;
    if (is_a<numeric>(e)) {
        const numeric& v = ex_to<numeric>(e);
        if (!v.is_real())
            return false;
        const double d = v.to_double();
        if (!std::isfinite(d))
            return false;
        out += '(' + number(d) + ')';
        return true;
    }
    if (is_a<symbol>(e)) {
        out += ex_to<symbol>(e).get_name();
        return true;
    }
    if (is_a<constant>(e)) {
        const ex v = e.evalf();
        return is_a<numeric>(v) && fromGinac(v, out);
    }
    if (is_a<add>(e) || is_a<mul>(e)) {
        out += '(';
        for (std::size_t i = 0; i < e.nops(); ++i) {
            if (i > 0)
                out += is_a<add>(e) ? '+' : '*';
            if (!fromGinac(e.op(i), out))
                return false;
        }
        out += ')';
        return true;
    }
    if (is_a<power>(e)) {
        out += '(';
        if (!fromGinac(e.op(0), out))
            return false;
        out += '^';
        if (!fromGinac(e.op(1), out))
            return false;
        out += ')';
        return true;
    }
    if (is_a<function>(e) && e.nops() == 1) {
        static const std::map<std::string, std::string> names = {
            {"sin", "sin"},   {"cos", "cos"},   {"tan", "tan"},   {"asin", "asin"}, {"acos", "acos"}, {"atan", "atan"},
            {"sinh", "sinh"}, {"cosh", "cosh"}, {"tanh", "tanh"}, {"exp", "exp"},   {"log", "ln"},    {"abs", "abs"}};
        const auto found = names.find(ex_to<function>(e).get_name());
        if (found == names.end())
            return false;
        out += found->second + '(';
        if (!fromGinac(e.op(0), out))
            return false;
        out += ')';
        return true;
    }
    return false;
}

// GiNaC's own printing, with the natural logarithm written as the dialog names it.
std::string shownDerivative(const GiNaC::ex& e)
{
    std::ostringstream s;
    s << e;
    std::string text = s.str();
    for (std::size_t at = text.find("log("); at != std::string::npos; at = text.find("log(", at + 3))
        text.replace(at, 4, "ln(");
    return text;
}

}  // namespace

// The compiled byte code and the variables it reads.
struct TypedExpression::Compiled {
    mu::Parser parser;
    mutable double u = 0, v = 0;
};

TypedExpression::TypedExpression() = default;
TypedExpression::~TypedExpression() = default;

namespace {

// Compiles fully bracketed text over `variables` (bound to u and v) and the coefficients.
bool compileMuparser(TypedExpression::Compiled& c, const std::string& text, const VariableNames& variables)
{
    try {
        double* bound[2] = {&c.u, &c.v};
        for (std::size_t i = 0; i < variables.size() && i < 2; ++i)
            c.parser.DefineVar(variables[i], bound[i]);
        double* coefficients[6] = {&Coefficients.A, &Coefficients.B, &Coefficients.C,
                                   &Coefficients.D, &Coefficients.E, &Coefficients.F};
        for (int i = 0; i < 6; ++i)
            c.parser.DefineVar(std::string(1, static_cast<char>('A' + i)), coefficients[i]);
        c.parser.SetExpr(text);
        c.parser.Eval();  // parses now, so that a later evaluation never throws
        return true;
    } catch (const mu::Parser::exception_type&) {
        return false;
    }
}

}  // namespace

std::unique_ptr<TypedExpression> TypedExpression::compile(const std::string& text, const VariableNames& variables,
                                                          std::string& error)
{
    error.clear();
    int characters = 0;
    for (unsigned char c : text)
        characters += (c & 0xC0) != 0x80;
    if (characters > MaxLength) {
        error = "too long: at most " + std::to_string(MaxLength) + " characters";
        return nullptr;
    }
    NodePtr tree;
    try {
        tree = Reader(text, variables).read();
    } catch (const Refusal& r) {
        error = r.message;
        return nullptr;
    }

    std::unique_ptr<TypedExpression> e(new TypedExpression);
    e->text_ = text;
    writeUnderstood(*tree, e->understood_);
    e->compiled_ = std::make_unique<Compiled>();
    std::string bracketed;
    toMuparser(*tree, bracketed);
    // Coefficients, constants and the byte code are all bound inside; the compile cannot fail for a
    // tree the reader built, but if it does the expression is refused rather than half made.
    if (!compileMuparser(*e->compiled_, bracketed, variables)) {
        error = "cannot be evaluated";
        return nullptr;
    }
    if (variables.empty())
        return e;

    // The exact derivative with respect to the first variable.
    std::vector<std::string> names(variables.begin(), variables.end());
    for (char c = 'A'; c <= 'F'; ++c)
        names.emplace_back(1, c);
    if (dividesByZero(*tree, names)) {
        e->derivativeText_ = "no derivative: part of the expression is 0 where it divides or is a base";
        return e;
    }
    try {
        std::map<std::string, GiNaC::realsymbol> symbols;
        for (const std::string& v : variables)
            symbols.emplace(v, GiNaC::realsymbol(v));
        for (char c = 'A'; c <= 'F'; ++c)
            symbols.emplace(std::string(1, c), GiNaC::realsymbol(std::string(1, c)));
        const GiNaC::ex f = toGinac(*tree, symbols);
        const GiNaC::ex d = f.diff(symbols.at(variables[0]));
        std::string derivativeBracketed;
        if (!fromGinac(d, derivativeBracketed)) {
            e->derivativeText_ = "no derivative: it uses a function that cannot be differentiated here";
            return e;
        }
        // The derivative exists only where the function does. Where the function has an operation
        // that can be undefined (a division, a power, a logarithm, a root, ...), the derivative's
        // byte code also computes the function, times 0: NaN there stays NaN, and one evaluation
        // does both. A function without such an operation is defined wherever it is finite.
        if (mayBeUndefined(*tree))
            derivativeBracketed = "(" + derivativeBracketed + ")+0*(" + bracketed + ")";
        std::unique_ptr<TypedExpression> derivative(new TypedExpression);
        derivative->compiled_ = std::make_unique<Compiled>();
        if (!compileMuparser(*derivative->compiled_, derivativeBracketed, variables)) {
            e->derivativeText_ = "no derivative: it cannot be evaluated";
            return e;
        }
        e->derivativeText_ = shownDerivative(d);
        derivative->text_ = derivative->understood_ = e->derivativeText_;
        e->derivative_ = std::move(derivative);
    } catch (...) {
        // GiNaC refuses some expressions outright (a division by an expression that simplifies to
        // 0, a logarithm of 0); the function itself still evaluates, with its derivative undefined.
        e->derivativeText_ = "no derivative: the expression is undefined everywhere or cannot be differentiated";
    }
    return e;
}

double TypedExpression::operator()(double u, double v) const
{
    compiled_->u = u;
    compiled_->v = v;
    const double r = compiled_->parser.Eval();
    return std::isfinite(r) ? r : std::numeric_limits<double>::quiet_NaN();
}

}  // namespace FuncGlobals
