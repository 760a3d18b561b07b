// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Every demonstration screen, in one table: what the launcher shows for it, how it is built, the key
// that lessons and pictures use for it, and the words that describe it to a screen reader, to
// `plotto --help` and to software centres. The launcher, lessons, the test fixtures, the screenshot
// tool and the accessibility check all loop over this table; a new screen is its own files plus one
// row in screens/ScreenRegistry.cpp.
#include <functional>
#include <memory>
#include <span>
#include <vector>

#include <QString>

class GraphScreen;
class ConvergenceWindow;

namespace screens {

struct Entry {
    // One of the launcher's eight buttons with its Selections entry, or a screen added since, which
    // the launcher's More Demonstrations menu opens (by its `entry` caption) and which has no button.
    enum class Kind { Seed, Addition };
    const char* key;  // the screen's name in lessons, pictures and `plotto --screens` ("sums")
    const char* className;  // the screen's class, as Qt's meta-object names it
    int place;  // where its button stands on the launcher, in teaching order (0 first, two to a row)
    const char* button;  // the launcher button's caption, with its Alt letter (an addition's: the manual's)
    const char* entry;  // the Selections (or More Demonstrations) menu entry's caption, with its Alt letter
    const char* describes;  // what it shows, as a phrase for a list ("Newton's method")
    std::function<std::unique_ptr<GraphScreen>()> make;
    // Installs a typed example function (or rates, or curve) as the entry dialog's OK does: "" when
    // taken, or the refusal. For tests and the walk, which run every screen on a typed function too.
    std::function<QString(GraphScreen&)> typeExample;
    // Puts a new screen in a state that shows what it teaches, for its picture.
    std::function<void(GraphScreen&)> showcase;
    // The screen's convergence table, where it has one.
    std::function<ConvergenceWindow*(GraphScreen&)> convergence = {};
    Kind kind = Kind::Seed;
};

// The table: the seed's screens in the order of the launcher's Selections menu, then the additions in
// the order of its More Demonstrations menu.
std::span<const Entry> all();
// The same rows in teaching order (the launcher's buttons, lessons' list of screens, the summary).
std::vector<const Entry*> inTeachingOrder();
// The row of `key`, or nullptr.
const Entry* find(const QString& key);
// The row of the screen's class, or nullptr.
const Entry* of(const GraphScreen& screen);

// "A launcher opens eight demonstration screens: graphing ..., and parametric curves." in teaching
// order: the sentence the software centre's description (in English) and `plotto --help` (in the
// language in use) give.
QString summary();
// A count in words ("eight"), as the summary says it; figures above twenty.
QString countInWords(int n);

}  // namespace screens
