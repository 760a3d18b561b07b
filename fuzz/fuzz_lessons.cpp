// SPDX-License-Identifier: GPL-3.0-or-later
// libFuzzer target: lessons of arbitrary bytes and damaged shipped examples, opened and applied on
// every screen of the registry; no step may end the program.
#include <cstdio>
#include <cstdlib>
#include <functional>

#include <QApplication>

#include "fuzz/LessonProperties.h"

namespace {
std::vector<QByteArray>* examples = nullptr;
fuzzing::LessonScreens* everyScreen = nullptr;
}  // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // Never destroyed: the toolkit must outlive the screens, which live to the end of the process.
    new QApplication(*argc, *argv);
    examples = new std::vector<QByteArray>(fuzzing::exampleLessons(QStringLiteral(PLOTTO_SOURCE_DIR)));
    everyScreen = new fuzzing::LessonScreens;
    setProgramEndHandler([](int code) {
        std::fprintf(stderr, "property failed: the program ended (%d)\n", code);
        std::abort();
    });
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string failure =
        fuzzing::checkLessonText(fuzzing::damagedLesson(*examples, data, size), std::ref(*everyScreen));
    if (!failure.empty()) {
        std::fprintf(stderr, "property failed: %s\n", failure.c_str());
        std::abort();
    }
    return 0;
}
