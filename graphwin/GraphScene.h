// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// What a screen has drawn since its graph was last cleared, kept as the drawing steps themselves
// (each with the function, coefficients, families, typed functions and random draws it used), so
// that the picture can be drawn again at another window by the same code, sampled anew rather
// than stretched. A drawing that is not kept as a step is noticed: the scene then knows that it
// cannot give the whole picture again.
#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

#include <QString>
#include <QStringList>

class DrawingSurface;

class GraphScene {
public:
    explicit GraphScene(const DrawingSurface& surface) : surface_(surface) { }

    // A new picture starts: the surface was cleared and its axes drawn.
    void restart();
    // Runs `draw` now and keeps it with the module state it runs with (and `keep`, which holds that
    // state's typed functions alive), to be run again at another window. An error `draw` raises goes
    // on to the caller as before; the step is kept all the same (it drew what it drew).
    void record(const QString& what, std::function<void()> draw, std::shared_ptr<const void> keep = {},
                const QString& kind = {});
    // Takes what was drawn since the last step as part of the picture's background, which the
    // screen's own clear draws again (nothing to keep).
    void settle();
    // True when every drawing since the clear is a kept step.
    bool complete() const;

    // The kept steps, taken out so that the picture can be cleared and started again.
    struct Step;
    using Steps = std::vector<std::shared_ptr<const Step>>;
    Steps release();
    // The steps without those of `kind` (a construction about to be drawn again from a dragged point).
    static Steps without(const Steps& steps, const QString& kind);
    // Draws `steps` again, in order, each with the module state it first ran with (the present
    // state is put back after), and keeps them as the new picture's: the caller has cleared the
    // surface, mapped the new window and drawn the axes. A step whose computation raises a run-time
    // error is left where it stopped and named in the list returned; nothing raises out of here.
    QStringList replay(Steps steps);

private:
    bool current() const;
    std::size_t operations() const;
    const DrawingSurface& surface_;
    Steps steps_;
    std::uint64_t clear_ = ~std::uint64_t{0};
    std::size_t expected_ = 0;  // the surface's operations after the axes and the kept steps
    bool complete_ = true;
};
