// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A screen under test: real widgets, scripted dialogs, the drawing recorded.
#include <algorithm>
#include <memory>

#include <QTest>
#include <gtest/gtest.h>

#include "funclib/FuncGlobals.h"
#include "graphwin/Dialogs.h"
#include "runtime/QBColor.h"

// Readable failure messages for texts.
inline void PrintTo(const QString& text, std::ostream* out) { *out << '"' << text.toStdString() << '"'; }

template <class Screen>
struct ScreenFixture : ::testing::Test {
    DialogScript script;
    std::unique_ptr<Screen> screen;

    void SetUp() override
    {
        setDialogScript(&script);
        FuncGlobals::Coefficients = {};
        screen = std::make_unique<Screen>();
        screen->surface->setRecording(true);
        screen->Form_Activate();
    }
    void TearDown() override
    {
        screen.reset();
        setDialogScript(nullptr);
    }

    const std::vector<DrawOp>& ops() const { return screen->surface->ops(); }
    long count(DrawOp::Kind kind) const
    {
        return std::count_if(ops().begin(), ops().end(), [kind](const DrawOp& op) { return op.kind == kind; });
    }
    bool hasPoint(double x, double y, QRgb colour) const
    {
        return std::any_of(ops().begin(), ops().end(), [&](const DrawOp& op) {
            return op.kind == DrawOp::PSet && op.x1 == x && op.y1 == y && op.color == colour;
        });
    }
    bool hasLine(double x1, double y1, double x2, double y2) const
    {
        return std::any_of(ops().begin(), ops().end(), [&](const DrawOp& op) {
            return op.kind == DrawOp::Line && op.x1 == x1 && op.y1 == y1 && op.x2 == x2 && op.y2 == y2;
        });
    }
    static QRgb colour(int n) { return 0xFF000000u | rt::QBColor(n); }
    // A person's left or right press on a label.
    static void press(QWidget* w, Qt::MouseButton b) { QTest::mouseClick(w, b); }
};
