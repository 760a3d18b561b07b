// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The function grapher: pick one of the fifteen explicit families, set A to E and the window, and
// plot; plots accumulate until the graph is erased.
#include "graphwin/GraphScreen.h"

class frmClasses : public GraphScreen {
    Q_OBJECT
public:
    frmClasses();
    void mnuAbout_Click() override;
};
