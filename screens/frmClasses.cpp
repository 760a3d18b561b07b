// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/frmClasses.h"
#include "graphwin/Language.h"

namespace {

GraphScreen::Config classesConfig()
{
    GraphScreen::Config c;
    c.caption = Plotto::tr("Graphing Classes of Functions");
    c.frameTop = 120;  // the grapher's outline sits 20 twips below the square it frames
    return c;
}

}  // namespace

frmClasses::frmClasses() : GraphScreen(classesConfig()) { Form_Load(); }

void frmClasses::mnuAbout_Click()
{
    showHelp({
        {QT_TRANSLATE_NOOP("Plotto", "How To Use This"),
         QT_TRANSLATE_NOOP("Plotto", "This screen allows you to graph various functions.  Select the function you like "
                                     "from the menu.  Enter the "
                                     "values for A, B, C, D, E, then click on [Plotto].")},
        {QT_TRANSLATE_NOOP("Plotto", "Making Changes"),
         QT_TRANSLATE_NOOP("Plotto", "You may change the variables then graph again to see the changes to the graph.  "
                                     "You will not erase the graph "
                                     "when changing values of variables or selecting new functions.")},
        {QT_TRANSLATE_NOOP("Plotto", "Quick change hints"),
         QT_TRANSLATE_NOOP("Plotto", "You may also change the values of the variables by clicking on the labels.  Left "
                                     "clicks increase the value "
                                     "by one, a right click decreases the value by one.")},
        {QT_TRANSLATE_NOOP("Plotto", "Change the Graphing Window?"),
         QT_TRANSLATE_NOOP(
             "Plotto",
             "You can click on [Zoom In] to shrink the graphing area to 1/4 by reducing Xmin, Xmax, Ymin, and Ymax in "
             "half.  You may click in the values at the end of the axes to change them to any values you wish.")},
        {QT_TRANSLATE_NOOP("Plotto", "Window limit changes < , >"),
         QT_TRANSLATE_NOOP("Plotto", "Notice the < and > green labels next to the window limits.  Clicking on the "
                                     "Arrows will increase or decrease "
                                     "the window limit by one.  Double clicking will increase or decrease it by 5.")},
    });
}
