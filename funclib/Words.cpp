// SPDX-License-Identifier: GPL-3.0-or-later
// The sentences funclib writes for a teacher (see Words.h): the list of templates and filling one.
#include "funclib/Words.h"

namespace FuncGlobals::words {

const std::vector<const char*>& templates()
{
    static const std::vector<const char*> all = {
        nothingTyped,
        unexpectedClose,
        tooDeep,
        termAfter,
        term,
        termBeforeClose,
        termBefore,
        missingClose,
        oneArgument,
        decimalComma,
        character,
        product,
        digit,
        tooLarge,
        openAfter,
        lowerCoefficient,
        unknownProduct,
        unknownName,
        tooLong,
        notEvaluated,
        noDerivativeEvaluated,
        noDerivativeGinac,
        noDerivativeZero,
        noDerivativeFunction,
        noFunction,
        hugeExponent,
        zeroDivides,
        notExact,
        coefficientTooLarge,
        noValue,
        noDerivativeAt,
        derivativeTooLong,
        aNumber,
        bothSides,
        onlyRight,
        onlyLeft,
        noLimitUndefined,
        sidesDiffer,
        tendsToInfinity,
        tendsToMinusInfinity,
        tendsTo,
        toInfinity,
        toMinusInfinity,
        to,
        unsettled,
        undefinedSide,
        epsilonPositive,
        aAndL,
        outsideWindow,
        belowRounding,
        noDeltaUndefined,
        noDelta,
        edgeDelta,
        largestDelta,
        onlyLeftCounts,
        onlyRightCounts,
        gapsDoNotCount,
        scanned,
        signChange,
        touch,
        stretch,
        curveGaps,
        jumps,
        unsettledIntegral,
        noArea,
        signedArea,
        noValueBecause,
        below,
        reference,
        roundOff,
        roundOffNote,
        slope,
        nOdd,
        noValueCell,
        undefinedAt,
        errorValue,
        integralGaps,
        integralUnbounded,
        exactValue,
        integralFault,
        referenceEndpoint,
        verticalBeforeEnd,
        referenceFault,
        endUnreached,
        stepRow,
        meetsVertical,
        leavesWindow,
        naturalLogarithm,
        inText,
    };
    return all;
}

std::string fill(const char* pattern, const std::vector<std::string>& args)
{
    std::string out;
    for (const char* p = pattern; *p; ++p) {
        const std::size_t n =
            p[0] == '%' && p[1] >= '1' && p[1] <= '9' ? static_cast<std::size_t>(p[1] - '1') : args.size();
        if (n < args.size()) {
            out += args[n];
            ++p;
        } else {
            out += *p;
        }
    }
    return out;
}

}  // namespace FuncGlobals::words
