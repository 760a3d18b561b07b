// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// How fast the sums and the step methods approach the exact value, apart from any window: the
// deterministic sums of the sums screen for n = 1, 2, 4, ... against an adaptive Gauss-Kronrod
// integral, and the endpoints of the step methods for h, h/2, h/4, ... against an adaptive
// Runge-Kutta-Fehlberg 7(8) integration; and the same rules, in double precision, for any function
// (the area screen's f - g). The first two read the selected families and coefficients of
// FuncGlobals; neither raises a run-time error: a value that cannot be had is a note in words.
#include <array>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace Convergence {

// A number as the tables write it, by a printf pattern ("%.3e", "%.2f", ...).
std::string format(const char* pattern, double v);

// One value of the table, or why there is none.
struct Cell {
    std::optional<double> value;
    std::string note;
};

// A table of values in rows against one exact value: the text of every cell, headings first.
struct Table {
    // What the rows count: partitions of the sums, or steps of the step methods.
    enum class Kind { Sums, Steps };
    Kind kind = Kind::Sums;
    std::optional<double> exact;
    std::string exactSource;  // how the exact value was found, or why it does not exist
    // How far the exact value itself may be off: an error no larger than this is not a measurement,
    // and its cell says so instead of giving a number whose ratio would mislead.
    double exactAccuracy = 0;
    std::vector<std::string> rowHeadings;
    std::vector<std::string> methods;
    std::vector<std::vector<Cell>> values;  // [row][method]
    // Each row's number of partitions or steps, for a plot of the error against it.
    std::vector<double> rowCounts;
    // The slope each method's error should show against that number on a log-log plot (-1, -2, -4).
    std::vector<int> orders;
    // Each method's colour on the plot, 0xRRGGBB.
    std::vector<std::uint32_t> colours;
    // The cells as texts: heading row, then one row per value row: the row heading and, per
    // method, the value, its error and the ratio of the previous row's error to this one's.
    std::vector<std::vector<std::string>> cells() const;
    // The cells as tab-separated lines, for a spreadsheet.
    std::string tabSeparated() const;
    // The same as comma-separated values (RFC 4180: quoted where needed, lines ended by CR LF).
    std::string csv() const;
    // The ratios of a step table spoiled by round-off: a row whose error, or the previous row's, is
    // below this shows "round-off" instead of its ratio: an endpoint after hundreds of steps in double
    // precision carries rounding of about 1e-14 (from (4, 3) to 4.5 with h = 0.02/64 the fourth order's
    // error is 9e-15 and its ratio 0.14), which then decides the ratio.
    static constexpr double kRoundOff = 1e-13;
    // Whether some ratio of the table says "round-off", and the sentence under the table that says why.
    bool hasRoundOff() const;
    static std::string roundOffNote();
    // A reference line of slope -order on the log-log plot, drawn apart from the data: `apart` times
    // above the first measured error of the first method of that order, across that method's counts.
    struct ReferenceLine {
        int order;
        std::pair<double, double> from, to;  // (count, error) at either end
        std::string label;  // at its end: "slope 2"
    };
    static constexpr double kReferenceApart = 4;
    std::vector<ReferenceLine> referenceLines() const;
    // Method m's measurable errors, in row order: (the row's count, the error) for every row whose
    // value exists and whose error is finite and beyond the exact value's own accuracy.
    std::vector<std::pair<double, double>> measuredErrors(std::size_t m) const;
};

// The integral of f over [L, R] by an adaptive Gauss-Kronrod rule (61 points, up to 15 levels):
// the value, the rule's estimate of its error, and whether that estimate is small enough (1e-8 of
// the value) for the value to stand as exact; a function unbounded on the interval fails it.
struct Integral {
    double value = 0, error = 0;
    bool converged = false;
};
// `levels` bounds the halvings (each level doubles the evaluations at most: 61 * 2^levels in all).
Integral gaussKronrod(const std::function<double(double)>& f, double L, double R, unsigned levels = 15);

// The five deterministic sums of the selected explicit family on [L, R] for n = 1, 2, 4, ... up to
// at least 1024 and at least `currentN` (which gets a row of its own when it is not a power of two),
// each accumulated as the sums screen does, so that the row of the screen's n shows its labels'
// digits.
Table sums(double L, double R, std::int32_t currentN);
// The same table with no rows, saying `why` (a boundary box that holds no usable number).
Table sumsWithout(std::string why);
// The five strip rules of screens/StripRules.h in double precision for f on [L, R], rows as sums()
// makes them, against `exact` (accurate to `accuracy`), described by `source`, or none when
// `exact` is empty and `source` says why.
Table strips(const std::function<double(double)>& f, double L, double R, std::int32_t currentN,
             std::optional<double> exact, double accuracy, std::string source);

// The plane the steps stay in.
struct Window {
    double xmin = -10, xmax = 10, ymin = -10, ymax = 10;
};

// The endpoint y at xEnd of the curve dy/dx = DyFunc / DxFunc from (x0, y0), by each method of
// funclib/StepMethods.h (one column each, in its table's order) with steps h, h/2, ... (halvings + 1
// rows; each step count is rounded so that the last step ends on xEnd), against an adaptive
// seventh-order integration in extended precision.
Table steps(double x0, double y0, double xEnd, double h, int halvings, const Window& window);
// The same table with no rows, saying `why`.
Table stepsWithout(std::string why);

}  // namespace Convergence
