// SPDX-License-Identifier: GPL-3.0-or-later
// Lessons: every screen's state saved and opened again in a fresh run of the screens, files that are
// not lessons (or not ones this program can show) refused with a message that says what and where,
// and a save that never leaves half a file.
#include <QAccessible>
#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QTemporaryDir>

#include "fuzz/LessonProperties.h"
#include "screens/Lesson.h"
#include "screens/ScreenRegistry.h"

#include "ScreenFixture.h"

namespace {

struct Lessons : ::testing::Test {
    ScriptedDialogs script;
    void TearDown() override { forgetTypedFunctions(); }
};

// A screen set up by a teacher: `prepare` changes it as a person would; the lesson must carry it.
struct ScreenCase {
    const char* name;
    std::function<std::unique_ptr<GraphScreen>()> make;
    std::function<void(GraphScreen&)> prepare;
};

}  // namespace

TEST_F(Lessons, EveryScreenComesBackAsItWasSaved)
{
    const ScreenCase cases[] = {
        {"grapher", make<frmClasses>,
         [](GraphScreen& s) {
             s.mnuFunc_Click(5);
             type({s.txtA, s.txtB, s.txtXmin}, "3|2|-4");
         }},
        {"animation", make<frmAnimate>,
         [](GraphScreen& s) {
             s.setTypedFunction(QStringLiteral("A*x^2 + B"));
             as<frmAnimate>(s).chkB->setChecked(true);
             as<frmAnimate>(s).optSteps->setChecked(true);
         }},
        {"sums", make<frmRiemann>, on<frmRiemann>([](frmRiemann& r) {
             r.setTypedFunction(QStringLiteral("exp(-x^2)"));
             type({r.txtLBound, r.txtRBound, r.txtParts}, "0|1|16");
             r.chkMid->setChecked(true);
             r.chkSimpson->setChecked(true);
         })},
        {"newton", make<frmNewton>,
         [](GraphScreen& s) {
             s.mnuFunc_Click(4);
             type({s.txtA, s.txtC, s.txtD, as<frmNewton>(s).txtGuess}, "1|-2|-5|2");
         }},
        {"slope-field", make<frmFlowField>, on<frmFlowField>([](frmFlowField& f) {
             f.setTypedRates(QStringLiteral("x - y^2"), QStringLiteral("1"));
             f.optApprox->setChecked(true);
             f.optRunga4->setChecked(true);
             f.chkBiDirect->setChecked(true);
             type({f.txtDelta}, "0.25");
         })},
        {"slope-field", make<frmFlowField>,  // the families, by number
         [](GraphScreen& s) { as<frmFlowField>(s).mnuDy_Click(3), as<frmFlowField>(s).mnuDx_Click(5); }},
        {"tangent", make<frmTangent>, on<frmTangent>([](frmTangent& t) {
             type({t.txtX, t.txtDeltaX}, "2|0.5");
             t.hscDx->setValue(1500);
         })},
        {"mvt", make<frmMVT>, on<frmMVT>([](frmMVT& m) {
             m.mnuFunc_Click(1);  // the first family, which a scan from 2 would miss
             type({m.txtX1, m.txtX2}, "0|2");
             m.HscMVT->setValue(2500);
         })},
        {"parametric", make<frmParam>, on<frmParam>([](frmParam& p) {
             p.mnuXFunc_Click(7);
             p.mnuYFunc_Click(8);
             type({p.txtTn, p.txtTstep}, "12.6|500");
             p.optCont->setChecked(true);
         })},
    };
    // What a step holds of the screen: its function and its controls.
    const auto state = [](const lesson::Step& step) {
        return QJsonDocument(QJsonObject{{"function", step.function}, {"controls", step.controls}})
            .toJson()
            .toStdString();
    };
    lesson::Lesson saved;
    std::vector<std::string> expected;
    for (const ScreenCase& c : cases) {
        auto screen = c.make();
        screen->Form_Activate();
        c.prepare(*screen);
        lesson::Step step = lesson::capture(*screen);
        EXPECT_EQ(step.screen, QString::fromLatin1(c.name));
        step.actions = {{QStringLiteral("cmdPlotto"), 1, {}}};
        saved.steps.push_back(step);
        expected.push_back(state(step));
    }
    const auto mvt = std::find_if(saved.steps.begin(), saved.steps.end(), [](auto& s) { return s.screen == "mvt"; });
    EXPECT_EQ(mvt->function.value(QStringLiteral("family")).toInt(), 1) << "the first family is saved by number";
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("every screen.plotto"));
    ASSERT_EQ(lesson::save(saved, path), QString());
    forgetTypedFunctions();
    FuncGlobals::Coefficients = {};

    // A fresh run of the screens opens each step and finds every control as it was.
    const lesson::Read read = lesson::load(path);
    ASSERT_TRUE(read.lesson) << read.error.toStdString();
    ASSERT_EQ(read.lesson->steps.size(), std::size(cases));
    for (std::size_t i = 0; i < std::size(cases); ++i) {
        auto screen = cases[i].make();
        screen->Form_Activate();
        const lesson::Step& step = read.lesson->steps[i];
        ASSERT_EQ(lesson::check(step, *screen), QString()) << cases[i].name;
        EXPECT_EQ(lesson::apply(step, *screen), 0);
        EXPECT_EQ(state(lesson::capture(*screen)), expected[i]) << cases[i].name;
        EXPECT_FALSE(screen->surface->ops().empty() && screen->surface->clears() == 0) << cases[i].name;
    }
    EXPECT_TRUE(script.errors.empty());
}

TEST_F(Lessons, EachToolsEntryRunsTheCommandOfTheLessonsOwner)
{
    std::string ran;
    GraphScreen::setLessonCommands({.add = [&](GraphScreen&) { ran += 'a'; },
                                    .save = [&] { ran += 's'; },
                                    .open = [&] { ran += 'o'; },
                                    .next = [&] { ran += 'n'; },
                                    .previous = [&] { ran += 'p'; },
                                    .worksheet = [&] { ran += 'w'; },
                                    .place = [] { return QStringLiteral("Step 2 of 3"); }});
    frmClasses screen;
    for (QAction* a : {screen.mnuAddStep, screen.mnuSaveLesson, screen.mnuOpenLesson, screen.mnuNextStep,
                       screen.mnuPreviousStep, screen.mnuExportWorksheet})
        a->trigger();
    EXPECT_EQ(ran, "asonpw");
    EXPECT_EQ(screen.lblLessonPlace->text(), QStringLiteral("Step 2 of 3"));
    // A screen reader finds the place in the window's tree (a menu bar's tree holds only its menus).
    std::function<bool(QAccessibleInterface*)> found = [&](QAccessibleInterface* node) {
        if (node->role() == QAccessible::StaticText && node->text(QAccessible::Name) == QStringLiteral("Step 2 of 3"))
            return true;
        for (int i = 0; i < node->childCount(); ++i)
            if (QAccessibleInterface* child = node->child(i); child && found(child))
                return true;
        return false;
    };
    EXPECT_TRUE(found(QAccessible::queryAccessibleInterface(&screen)));
    GraphScreen::setLessonCommands({});
    screen.mnuOpenLesson->trigger();  // without an owner, nothing runs
    EXPECT_EQ(ran, "asonpw");
}

TEST_F(Lessons, BrokenFilesAreRefusedWithWhatAndWhere)
{
    const auto step = [](const char* body) {
        return QByteArray(R"({"format": "plotto-lesson", "version": 1, "steps": [)") + body + "]}";
    };
    struct Broken {
        const char* name;
        QByteArray text;
        const char* says;  // the message contains this
    };
    const Broken cases[] = {
        {"not JSON", "<html>lesson</html>", "This is not a lesson: illegal value at character 1"},
        {"another program's JSON", R"({"format": "spreadsheet", "steps": []})", "This is not a Plotto lesson"},
        {"a newer version", R"({"format": "plotto-lesson", "version": 3, "steps": [{"screen": "sums"}]})",
         "made by a newer Plotto (lesson version 3; this Plotto reads version 2 and older)"},
        {"no steps", R"({"format": "plotto-lesson", "version": 1, "steps": []})", "The lesson has no steps."},
        {"an unknown screen", step(R"({"screen": "sums"}, {"screen": "calculus"})"),
         "Step 2: unknown screen 'calculus'"},
        {"an action without a button", step(R"({"screen": "sums", "actions": [{"times": 2}]})"),
         "Step 1: an action names no button to click"},
    };
    QTemporaryDir dir;
    for (const Broken& c : cases) {
        const QString path = dir.filePath(QString::fromLatin1(c.name));
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(c.text) == c.text.size());
        file.close();
        const lesson::Read read = lesson::load(path);
        EXPECT_FALSE(read.lesson) << c.name;
        EXPECT_TRUE(read.error.startsWith(path) && read.error.contains(QString::fromLatin1(c.says)))
            << c.name << ": " << read.error.toStdString();
    }
    const lesson::Read missing = lesson::load(dir.filePath(QStringLiteral("nowhere.plotto")));
    EXPECT_TRUE(!missing.lesson && missing.error.contains(QStringLiteral("cannot be read")))
        << missing.error.toStdString();
}

TEST_F(Lessons, AStepThatItsScreenCannotTakeIsRefusedAndChangesNothing)
{
    struct Refused {
        const char* name;
        const char* step;
        const char* says;
    };
    const Refused cases[] = {
        {"a box given a list", R"({"controls": {"txtA": ["seven"]}})", "the box 'A' cannot take [\"seven\"]"},
        {"a box given two lines", R"({"controls": {"txtA": "1\n2"}})", "the box 'A' cannot take \"1\\n2\""},
        {"an unknown control", R"({"controls": {"Speed": "1"}})", "the screen has no control named 'Speed'"},
        {"a control named by its caption", R"({"controls": {"A": "1"}})", "the screen has no control named 'A'"},
        {"a tick given a number", R"({"controls": {"chkMid": 1}})", "'Midpoint' is ticked or not: true or false"},
        {"an unknown button", R"({"actions": [{"click": "Fly"}]})", "the screen has no button 'Fly'"},
        {"a function it cannot read", R"j({"function": {"typed": "sinn(x)"}})j",
         "the function 'sinn(x)' cannot be taken: unknown name 'sinn' at 1"},
        {"a family beyond the menu", R"({"function": {"family": 16}})", "'family' is a family number from 1 to 15"},
        {"a function of another screen", R"({"function": {"dy": 1}})", "the screen has no function 'dy'"},
    };
    frmRiemann sums;
    sums.Form_Activate();
    const lesson::Step before = lesson::capture(sums);
    for (const Refused& c : cases) {
        const lesson::Read read =
            lesson::fromJson(QByteArray(R"({"format": "plotto-lesson", "version": 2, "steps": [{"screen": "sums", )") +
                             QByteArray(c.step).mid(1, std::strlen(c.step) - 2) + "}]}");
        ASSERT_TRUE(read.lesson) << c.name << ": " << read.error.toStdString();
        EXPECT_EQ(lesson::check(read.lesson->steps[0], sums), QString::fromUtf8(c.says)) << c.name;
    }
    EXPECT_EQ(lesson::capture(sums).controls, before.controls);  // checking changes nothing
    // A screen of two rates takes both typed or neither.
    frmFlowField field;
    const lesson::Read half = lesson::fromJson(R"({"format": "plotto-lesson", "version": 2,
        "steps": [{"screen": "slope-field", "function": {"dyTyped": "x"}}]})");
    ASSERT_TRUE(half.lesson);
    EXPECT_EQ(lesson::check(half.lesson->steps[0], field), "a typed function names every part: dyTyped and dxTyped");
}

// A lesson of the first version named controls by their spoken names and buttons and menu entries by
// their captions: opened now, each name becomes its control's key, and the step does what it did.
TEST_F(Lessons, AFirstVersionLessonOpensWithItsNamesTurnedIntoKeys)
{
    const lesson::Read read = lesson::fromJson(R"({"format": "plotto-lesson", "version": 1, "steps": [
        {"screen": "newton", "controls": {"Xmin": "-4", "A": "1", "Guess": "2"},
         "actions": [{"click": "Plotto!"}, {"click": "Apply Newton's", "times": 2}]},
        {"screen": "sums", "controls": {"Midpoint": true, "Number of Partitions": "16", "Speed": "1"},
         "actions": [{"menu": "Convergence Table..."}, {"click": "Fly"}]}]})");
    ASSERT_TRUE(read.lesson) << read.error.toStdString();
    EXPECT_EQ(read.lesson->version, 1);
    frmNewton newton;
    frmRiemann sums;
    newton.Form_Activate();
    sums.Form_Activate();
    lesson::Step first = read.lesson->steps[0], second = read.lesson->steps[1];
    lesson::upgrade(first, newton);
    lesson::upgrade(second, sums);
    EXPECT_EQ(first.controls.keys(), (QStringList{"txtA", "txtGuess", "txtXmin"}));
    EXPECT_EQ(std::pair(first.actions[0].click, first.actions[1].click),
              std::pair(QStringLiteral("cmdPlotto"), QStringLiteral("cmdApply")));
    // What matches nothing keeps its name, and checking refuses it in words.
    EXPECT_EQ(second.controls.keys(), (QStringList{"Speed", "chkMid", "txtParts"}));
    EXPECT_EQ(std::pair(second.actions[0].menu, second.actions[1].click),
              std::pair(QStringLiteral("mnuConvergenceTable"), QStringLiteral("Fly")));
    EXPECT_EQ(lesson::check(second, sums), QStringLiteral("the screen has no control named 'Speed'"));
    ASSERT_EQ(lesson::check(first, newton), QString());
    EXPECT_EQ(lesson::apply(first, newton), 0);
    EXPECT_EQ(std::tuple(newton.txtXmin->text(), newton.grdGuess->cell(1, 1), newton.GuessNumber),
              std::tuple(QStringLiteral("-4"), QStringLiteral("2"), 3));
    EXPECT_TRUE(script.errors.empty());
}

// A save into a folder that is gone (removed while the dialog was open) says so and leaves no file.
TEST_F(Lessons, ASaveNeverLeavesHalfAFile)
{
    QTemporaryDir dir;
    const QString gone = dir.filePath(QStringLiteral("gone/lesson.plotto"));
    EXPECT_TRUE(lesson::save({{lesson::Step{QStringLiteral("sums"), {}, {}, {}}}}, gone).contains(QStringLiteral("cannot be written")));
    EXPECT_FALSE(QFile::exists(gone));
}

TEST_F(Lessons, TheExamplesOpenAndRunStepByStep)
{
    const QDir examples(QStringLiteral(PLOTTO_SOURCE_DIR "/examples"));
    const QStringList files = examples.entryList({QStringLiteral("*.plotto")}, QDir::Files, QDir::Name);
    ASSERT_EQ(files.size(), 6);
    for (const QString& name : files) {
        const lesson::Read read = lesson::load(examples.filePath(name));
        ASSERT_TRUE(read.lesson) << read.error.toStdString();
        EXPECT_EQ(read.lesson->version, lesson::kVersion) << name.toStdString() << " is saved in today's form";
        int number = 0;
        for (const lesson::Step& step : read.lesson->steps) {
            ++number;
            // Each step on the screen it names, fresh as a launcher would show it.
            const screens::Entry* entry = screens::find(step.screen);
            ASSERT_NE(entry, nullptr) << name.toStdString() << " step " << number;
            const std::unique_ptr<GraphScreen> screen = entry->make();
            screen->surface->setRecording(true);
            screen->Form_Activate();
            ASSERT_EQ(lesson::check(step, *screen), QString()) << name.toStdString() << " step " << number;
            EXPECT_EQ(lesson::apply(step, *screen), 0);
            EXPECT_FALSE(screen->surface->ops().empty()) << name.toStdString() << " step " << number << " drew nothing";
        }
    }
    EXPECT_TRUE(script.errors.empty());
    EXPECT_TRUE(std::none_of(script.shown.begin(), script.shown.end(),
                             [](const auto& box) { return box.first == QStringLiteral("Limit Reached"); }));
}

// The lesson fuzzer's seeds and every input it once found, opened and applied on every screen: no
// step reaches the classic report, and the seed whose step divides by zero is refused in words.
TEST_F(Lessons, TheFuzzersLessonsNeverEndTheProgram)
{
    const std::vector<QByteArray> examples = fuzzing::exampleLessons(QStringLiteral(PLOTTO_SOURCE_DIR));
    ASSERT_EQ(examples.size(), 6u);
    fuzzing::LessonScreens screens;
    int refused = 0;
    const int replayed = replayEach(
        {PLOTTO_SOURCE_DIR "/fuzz/lesson-seeds", PLOTTO_SOURCE_DIR "/fuzz/lesson-regressions"}, [&](const std::string& bytes) {
            const QByteArray text =
                fuzzing::damagedLesson(examples, reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
            return fuzzing::checkLessonText(text, std::ref(screens), &refused);
        });
    EXPECT_GE(replayed, 31);
    EXPECT_GE(refused, 1);
    EXPECT_TRUE(script.errors.empty());
}
