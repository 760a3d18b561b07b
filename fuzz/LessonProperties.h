// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Lessons from damaged or arbitrary bytes, opened and applied on every screen of the registry as the
// launcher opens them, and the property that holds for all of them: a lesson never ends the program
// (no run-time error reaches the classic report; a step whose values raise one is refused in words).
// Shared by the libFuzzer target (fuzz/fuzz_lessons.cpp), the test that replays its findings and
// the robustness walk.
#include <cmath>
#include <cstdint>
#include <cstring>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "graphwin/Dialogs.h"
#include "graphwin/GraphScreen.h"
#include "screens/Lesson.h"
#include "screens/ScreenRegistry.h"

namespace fuzzing {

// The shipped examples' texts (examples/*.plotto beside `sourceDir`), in name order.
inline std::vector<QByteArray> exampleLessons(const QString& sourceDir)
{
    std::vector<QByteArray> texts;
    const QDir dir(sourceDir + QStringLiteral("/examples"));
    for (const QString& name : dir.entryList({QStringLiteral("*.plotto")}, QDir::Files, QDir::Name)) {
        QFile file(dir.filePath(name));
        if (file.open(QIODevice::ReadOnly))
            texts.push_back(file.readAll());
    }
    return texts;
}

// Values a damaged step may carry: the classic types' edges and beyond, text that is no number.
inline QJsonValue hostileValue(std::uint8_t pick, double raw)
{
    static const double numbers[] = {1e39,  -1e39,  3.4e38,       1e308, -1e308, 1e-320, 0,     -1,   32767,
                                     32768, -32769, 2147483648.0, 1e15,  1e20,   0.5,    65536, 1e10, -1e10};
    constexpr std::size_t count = std::size(numbers);
    if (pick < count)
        return numbers[pick];
    switch (pick - count) {
    case 0: return std::isfinite(raw) ? QJsonValue(raw) : QJsonValue(1e300);
    case 1: return QStringLiteral("1e400");
    case 2: return QString();
    case 3: return true;
    case 4: return QStringLiteral("x^9^9");
    default: return QString::number(raw, 'g', 17);
    }
}

// An example damaged as `how` says: its first byte chooses the damage (a truncation, changed bytes,
// a changed value of a valid step, or `how` itself taken as the lesson), its second the example.
inline QByteArray damagedLesson(const std::vector<QByteArray>& examples, const std::uint8_t* how, std::size_t size)
{
    if (size < 2 || examples.empty())
        return QByteArray(reinterpret_cast<const char*>(how), static_cast<qsizetype>(size));
    QByteArray text = examples[how[1] % examples.size()];
    const std::uint8_t* rest = how + 2;
    const std::size_t left = size - 2;
    const auto at = [&](std::size_t i) { return left ? rest[i % left] : std::uint8_t{0}; };
    switch (how[0] % 4) {
    case 0: return QByteArray(reinterpret_cast<const char*>(rest), static_cast<qsizetype>(left));
    case 1: return text.left(static_cast<qsizetype>((at(0) << 8 | at(1)) % (text.size() + 1)));
    case 2:
        for (std::size_t i = 0; i + 2 < left; i += 3)
            text[static_cast<qsizetype>((rest[i] << 8 | rest[i + 1]) % text.size())] = static_cast<char>(rest[i + 2]);
        return text;
    default: break;
    }
    QJsonObject root = QJsonDocument::fromJson(text).object();
    QJsonArray steps = root.value(QStringLiteral("steps")).toArray();
    for (std::size_t i = 0; i + 11 < left + 1 && !steps.isEmpty(); i += 12) {  // 12 bytes a change
        const qsizetype s = rest[i] % steps.size();
        QJsonObject step = steps[s].toObject();
        QJsonObject controls = step.value(QStringLiteral("controls")).toObject();
        double raw = 0;
        std::memcpy(&raw, rest + i + 3, sizeof raw);
        if (!controls.isEmpty()) {
            const QString key = controls.keys()[rest[i + 1] % controls.size()];
            controls.insert(key, hostileValue(rest[i + 2], raw));
        }
        step.insert(QStringLiteral("controls"), controls);
        steps[s] = step;
    }
    root.insert(QStringLiteral("steps"), steps);
    return QJsonDocument(root).toJson(QJsonDocument::Compact);
}

// One screen of each row of the registry, as a launcher holds them.
struct LessonScreens {
    std::vector<std::unique_ptr<GraphScreen>> screens;
    LessonScreens()
    {
        for (const screens::Entry& entry : screens::all())
            screens.push_back(entry.make());
    }
    GraphScreen& operator()(const QString& key)
    {
        return *screens[static_cast<std::size_t>(screens::find(key) - screens::all().data())];
    }
};

// Opens `text` as the launcher opens a lesson (read, upgraded, every step checked) and applies each
// step on its screen: "" when the property holds, else what broke it. Steps refused in words count
// in `refused`.
inline std::string checkLessonText(const QByteArray& text, const std::function<GraphScreen&(const QString&)>& screenOf,
                                   int* refused = nullptr)
{
    lesson::Read read = lesson::fromJson(text);
    if (!read.lesson)
        return read.error.isEmpty() ? "a text that is no lesson was refused without a reason" : "";
    for (lesson::Step& step : read.lesson->steps)
        if (read.lesson->version < lesson::kVersion)
            lesson::upgrade(step, screenOf(step.screen));
    for (const lesson::Step& step : read.lesson->steps)
        if (!lesson::check(step, screenOf(step.screen)).isEmpty())
            return "";  // refused whole before anything changes, as the launcher does
    DialogScript script;
    DialogScript* before = dialogScript();
    setDialogScript(&script);
    std::string failure;
    int number = 0;
    for (const lesson::Step& step : read.lesson->steps) {
        GraphScreen& screen = screenOf(step.screen);
        const int error = lesson::open(step, screen);
        ++number;
        if (error && refused)
            ++*refused;
        if (!script.errors.empty()) {
            failure = "step " + std::to_string(number) + " reached the classic report with run-time error " +
                      std::to_string(script.errors.front());
            break;
        }
        if (error && !lesson::refusal(number, error).startsWith(QStringLiteral("Step %1 ").arg(number))) {
            failure = "a refusal does not name its step";
            break;
        }
    }
    setDialogScript(before);
    return failure;
}

}  // namespace fuzzing
