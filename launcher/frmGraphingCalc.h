#pragma once
// The start-up window: one button and one menu entry per demonstration screen, the About sequence
// and Quit. Each screen is created on first use and kept for the rest of the run; opening it shows
// it modally until its Exit hides it.
#include <memory>

#include <QWidget>

class QAction;
class QMenuBar;
class QPushButton;
class GraphScreen;
class frmClasses;

class frmGraphingCalc : public QWidget {
    Q_OBJECT
public:
    frmGraphingCalc();
    ~frmGraphingCalc() override;

    QPushButton* cmdFuncClasses = nullptr;
    QPushButton* cmdExit = nullptr;

    QMenuBar* menuBar = nullptr;
    QAction *mnuFile = nullptr, *mnuAbout = nullptr, *Sep1 = nullptr, *mnuExit = nullptr;
    QAction* mnuSelect = nullptr;
    QAction* mnuGrapher = nullptr;

    void cmdFuncClasses_Click();
    void mnuGrapher_Click();
    void cmdExit_Click();
    void mnuExit_Click();
    void mnuAbout_Click();

    // The screen, created (loaded) on first use.
    frmClasses& classesScreen();

private:
    void showScreen(GraphScreen& screen);

    std::unique_ptr<frmClasses> classes_;
};
