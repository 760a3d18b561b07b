// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The start-up window: one button and one menu entry per demonstration screen, the About sequence
// and Quit. Each screen is created on first use and kept for the rest of the run; opening it shows
// it modally until its Exit hides it.
#include <memory>
#include <vector>

#include <QWidget>

#include "screens/Lesson.h"
#include "screens/ScreenRegistry.h"
#include "screens/frmAnimate.h"
#include "screens/frmClasses.h"
#include "screens/frmFlowField.h"
#include "screens/frmMVT.h"
#include "screens/frmNewton.h"
#include "screens/frmParam.h"
#include "screens/frmRiemann.h"
#include "screens/frmTangent.h"

class QAction;
class QMenuBar;
class QPushButton;
class GraphScreen;

class frmGraphingCalc : public QWidget {
    Q_OBJECT
public:
    frmGraphingCalc();
    ~frmGraphingCalc() override;

    QPushButton* cmdFuncClasses = nullptr;
    QPushButton* cmdSums = nullptr;
    QPushButton* cmdAnimate = nullptr;
    QPushButton* cmdParam = nullptr;
    QPushButton* cmdNewton = nullptr;
    QPushButton* cmdSlopeField = nullptr;
    QPushButton* cmdTangent = nullptr;
    QPushButton* cmdMVT = nullptr;
    QPushButton* cmdExit = nullptr;

    QMenuBar* menuBar = nullptr;
    QAction *mnuFile = nullptr, *mnuAbout = nullptr, *Sep1 = nullptr, *mnuExit = nullptr;
    QAction* mnuSelect = nullptr;
    // The launcher's menu of the screens added to the seed's (screens::Entry::Kind::Addition).
    QAction* mnuMore = nullptr;
    QAction* mnuRiemann = nullptr;
    QAction* mnuGrapher = nullptr;
    QAction* mnuAnimate = nullptr;
    QAction* mnuSlopeField = nullptr;
    QAction* mnuParam = nullptr;
    QAction* mnuNewton = nullptr;
    QAction* mnuTangent = nullptr;
    QAction* mnuMVT = nullptr;

    void cmdFuncClasses_Click();
    void cmdSums_Click();
    void mnuGrapher_Click();
    void mnuRiemann_Click();
    void cmdAnimate_Click();
    void mnuAnimate_Click();
    void cmdParam_Click();
    void mnuParam_Click();
    void cmdSlopeField_Click();
    void mnuSlopeField_Click();
    void cmdNewton_Click();
    void mnuNewton_Click();
    void cmdTangent_Click();
    void mnuTangent_Click();
    void cmdMVT_Click();
    void mnuMVT_Click();
    void cmdExit_Click();
    void mnuExit_Click();
    void mnuAbout_Click();

    // Tools, Language: one checkable entry per shipped language, named in that language. A choice is
    // remembered and used by every window opened after it (the launcher's own texts at the next start).
    QAction *mnuTools = nullptr, *mnuLanguage = nullptr;
    std::vector<QAction*> mnuLanguages;
    void mnuLanguage_Click(int Index);

    // Lessons: the menu "&Lessons" here and the lesson commands of every screen's Tools menu.
    QAction *mnuLessons = nullptr, *mnuOpenLesson = nullptr, *mnuSaveLesson = nullptr, *mnuStartLesson = nullptr;
    // Reads the lesson at `path`, checks every step against its screen, and shows the first step;
    // a file that cannot be opened gets a message box that says what and where, and changes nothing.
    void openLesson(const QString& path);
    // Shows step `index` (0-based) of the open lesson: its screen, its controls and its actions.
    void goToStep(int index);
    const lesson::Lesson& currentLesson() const { return lesson_; }
    int currentStep() const { return step_; }
    // The example lessons found beside the program (installed, or in the source tree).
    static QStringList exampleLessons();

    // Lessons as worksheets. writeWorksheet opens the lesson at `lessonPath` step by step on this
    // launcher's screens and writes the worksheet (plotto LESSON --worksheet OUT [--blank], with no
    // window shown): "" or what went wrong. The menu entry (Lessons, and every screen's Tools) writes the
    // open lesson through a separate run of the program, `worksheetProgram`, so that the screens on show
    // keep everything they hold. The program's main sets `worksheetProgram` to itself; where it is not
    // set (a test that has no plotto to run), the entry says so instead.
    QAction* mnuExportWorksheet = nullptr;
    void mnuExportWorksheet_Click();
    QString writeWorksheet(const QString& lessonPath, const QString& out, bool blank);
    static inline QString worksheetProgram;

    // The screens, each created (loaded) on first use, by their row in the registry or its key.
    GraphScreen& screen(const screens::Entry& entry);
    GraphScreen& screen(const char* key);
    // Shows a screen modally, as its button does.
    void openScreen(const screens::Entry& entry) { showScreen(screen(entry)); }
    frmClasses& classesScreen() { return static_cast<frmClasses&>(screen("grapher")); }
    frmRiemann& riemannScreen() { return static_cast<frmRiemann&>(screen("sums")); }
    frmNewton& newtonScreen() { return static_cast<frmNewton&>(screen("newton")); }
    frmFlowField& slopeFieldScreen() { return static_cast<frmFlowField&>(screen("slope-field")); }
    frmAnimate& animateScreen() { return static_cast<frmAnimate&>(screen("animation")); }
    frmParam& paramScreen() { return static_cast<frmParam&>(screen("parametric")); }
    frmTangent& tangentScreen() { return static_cast<frmTangent&>(screen("tangent")); }
    frmMVT& mvtScreen() { return static_cast<frmMVT&>(screen("mvt")); }

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void buildLanguageMenu();
    QSize normalSize_;
    void showScreen(GraphScreen& screen);
    // Activates `screen` and applies the current step there; a step whose values make a handler raise
    // a run-time error is refused in words, the screen staying open for the next step.
    void applyStep(GraphScreen& screen);
    void buildLessonMenu();
    void addStep(GraphScreen& screen);
    void chooseLesson();
    void saveLesson();
    lesson::Lesson lesson_;
    int step_ = -1;
    GraphScreen* shown_ = nullptr;  // the screen shown now, if any
    GraphScreen* pending_ = nullptr;  // the screen to show when the one shown closes
    int pendingStep_ = -1;  // the step to open on the screen shown next
    // Adds a screen's button to the grid and its entry to the Selections menu (an addition: its entry
    // to the More Demonstrations menu). Buttons stand in teaching order (`place`), two to a row.
    void addScreen(const screens::Entry& entry);

    class QGridLayout* grid_ = nullptr;
    class QMenu* selections_ = nullptr;
    class QMenu* more_ = nullptr;
    // Each screen's button, Selections entry and (once opened) window, by its row in the registry.
    std::vector<QPushButton*> buttons_;
    std::vector<QAction*> entries_;
    std::vector<std::unique_ptr<GraphScreen>> screens_;
};
