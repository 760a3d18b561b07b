// SPDX-License-Identifier: GPL-3.0-or-later
// A typed function evaluated a column at a time (see TypedColumn.h). Each instruction of muparser's
// byte code becomes one step; a step's loop runs over a block of points, so that the arithmetic is
// done several points to an instruction, and the functions of the table are called once a point,
// as the byte code calls them. The formulas of the loads are the byte code's own (a scaled variable
// is variable*scale + offset, a square is v*v, a cube (v*v)*v), so each value is bit for bit the one
// muparser computes. This file is compiled without contracting a*b + c into one rounding.
#include "funclib/TypedColumn.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include <muParserBytecode.h>

#include "funclib/FuncGlobals.h"

namespace FuncGlobals::typed {

double negate(double a) { return -a; }

bool ColumnProgram::read(const mu::ParserByteCode& code, const double* u, const double* v)
{
    steps_.clear();
    depth_ = 0;
    const double* coefficients[6] = {&Coefficients.A, &Coefficients.B, &Coefficients.C,
                                     &Coefficients.D, &Coefficients.E, &Coefficients.F};
    auto source = [&](const double* p, Source& s) {
        if (p && p == u)
            s = U;
        else if (p && p == v)
            s = V;
        else {
            const auto found = std::find(std::begin(coefficients), std::end(coefficients), p);
            if (found == std::end(coefficients))
                return false;
            s = static_cast<Source>(A + (found - std::begin(coefficients)));
        }
        return true;
    };
    std::size_t depth = 0;
    bool known = code.GetSize() > 0;
    for (std::size_t i = 0; known && i < code.GetSize(); ++i) {
        const mu::SToken& t = code.GetBase()[i];
        Step step{Code::Load};
        switch (t.Cmd) {
        case mu::cmEND: i = code.GetSize(); continue;
        case mu::cmVAL: step.offset = t.Val.data2; break;
        case mu::cmVAR: known = source(t.Val.ptr, step.source); break;
        case mu::cmVARPOW2:
        case mu::cmVARPOW3:
        case mu::cmVARPOW4:
            step.code = t.Cmd == mu::cmVARPOW2   ? Code::LoadSquare
                        : t.Cmd == mu::cmVARPOW3 ? Code::LoadCube
                                                 : Code::LoadFourth;
            known = source(t.Val.ptr, step.source);
            break;
        case mu::cmVARMUL:
            step = {Code::LoadScaled, Number, t.Val.data, t.Val.data2};
            known = source(t.Val.ptr, step.source);
            break;
        case mu::cmADD: step.code = Code::Add; break;
        case mu::cmSUB: step.code = Code::Subtract; break;
        case mu::cmMUL: step.code = Code::Multiply; break;
        case mu::cmDIV: step.code = Code::Divide; break;
        case mu::cmPOW: step.code = Code::Power; break;
        case mu::cmFUNC:
            // A function of one number without data of its own: a row of the table, or the sign.
            known = t.Fun.argc == 1 && t.Fun.cb._pUserData == nullptr && t.Fun.cb._pRawFun != nullptr;
            step.function = reinterpret_cast<double (*)(double)>(t.Fun.cb._pRawFun);
            step.code = step.function == &negate ? Code::Negate : Code::Call;
            break;
        default: known = false; break;
        }
        if (!known)
            break;
        const bool binary = step.code >= Code::Add && step.code <= Code::Power;
        const bool unary = step.code == Code::Negate || step.code == Code::Call;
        if ((binary && depth < 2) || (unary && depth < 1)) {
            known = false;
            break;
        }
        depth = binary ? depth - 1 : unary ? depth : depth + 1;
        depth_ = std::max(depth_, depth);
        steps_.push_back(step);
    }
    if (!known || depth != 1) {
        steps_.clear();
        depth_ = 0;
        return false;
    }
    stack_.assign(depth_ * Block, 0.0);
    return true;
}

namespace {

// A block's m points set to one number (a load of a number or of a coefficient).
void fill(double* __restrict r, double value, std::size_t m) { std::fill(r, r + m, value); }

}  // namespace

void ColumnProgram::run(const double* u, const double* v, double* out, std::size_t n) const
{
    if (steps_.empty()) {
        std::fill(out, out + n, std::numeric_limits<double>::quiet_NaN());
        return;
    }
    const double numbers[8] = {
        Coefficients.A, Coefficients.B, Coefficients.C, Coefficients.D, Coefficients.E, Coefficients.F, 0, 0};
    double* const bottom = stack_.data();
    for (std::size_t start = 0; start < n; start += Block) {
        const std::size_t m = std::min(Block, n - start);
        const double* columns[2] = {u ? u + start : nullptr, v ? v + start : nullptr};
        std::size_t entries = 0;  // on the stack
        for (const Step& step : steps_) {
            const bool load = step.code <= Code::LoadScaled;
            // A variable without a column is 0, as operator() takes a second variable not given.
            const double* __restrict column = load && step.source <= V ? columns[step.source] : nullptr;
            const double number = !load || step.source <= V ? 0
                                  : step.source == Number   ? step.offset
                                                            : numbers[step.source - A];
            entries += load ? 1 : 0;
            double* __restrict r = bottom + (entries - 1) * Block;
            switch (step.code) {
            case Code::Load:
                if (column)
                    std::copy(column, column + m, r);
                else
                    fill(r, number, m);
                break;
            case Code::LoadSquare:
                if (!column)
                    fill(r, number * number, m);
                else
                    for (std::size_t k = 0; k < m; ++k)
                        r[k] = column[k] * column[k];
                break;
            case Code::LoadCube:
                if (!column)
                    fill(r, number * number * number, m);
                else
                    for (std::size_t k = 0; k < m; ++k)
                        r[k] = column[k] * column[k] * column[k];
                break;
            case Code::LoadFourth:
                if (!column)
                    fill(r, number * number * number * number, m);
                else
                    for (std::size_t k = 0; k < m; ++k)
                        r[k] = column[k] * column[k] * column[k] * column[k];
                break;
            case Code::LoadScaled: {
                const double scale = step.scale, offset = step.offset;
                if (!column)
                    fill(r, number * scale + offset, m);
                else
                    for (std::size_t k = 0; k < m; ++k)
                        r[k] = column[k] * scale + offset;
                break;
            }
            case Code::Negate:
                for (std::size_t k = 0; k < m; ++k)
                    r[k] = -r[k];
                break;
            case Code::Call: {
                double (*const f)(double) = step.function;
                for (std::size_t k = 0; k < m; ++k)
                    r[k] = f(r[k]);
                break;
            }
            default: {
                --entries;
                double* __restrict a = r - Block;
                const double* __restrict b = r;
                switch (step.code) {
                case Code::Add:
                    for (std::size_t k = 0; k < m; ++k)
                        a[k] += b[k];
                    break;
                case Code::Subtract:
                    for (std::size_t k = 0; k < m; ++k)
                        a[k] -= b[k];
                    break;
                case Code::Multiply:
                    for (std::size_t k = 0; k < m; ++k)
                        a[k] *= b[k];
                    break;
                case Code::Divide:
                    for (std::size_t k = 0; k < m; ++k)
                        a[k] /= b[k];
                    break;
                default:
                    for (std::size_t k = 0; k < m; ++k)
                        a[k] = std::pow(a[k], b[k]);
                    break;
                }
            }
            }
        }
        // The value left on the stack; what is not finite is undefined.
        const double* __restrict result = bottom;
        double* __restrict o = out + start;
        for (std::size_t k = 0; k < m; ++k)
            o[k] = std::isfinite(result[k]) ? result[k] : std::numeric_limits<double>::quiet_NaN();
    }
}

}  // namespace FuncGlobals::typed
