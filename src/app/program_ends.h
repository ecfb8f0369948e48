#pragma once
#include "app/end_signals.h"

class QApplication;

namespace zentrik {

class frmMain;

// Has the window keep the work however the program ends, the close button and kill -9 apart: by a signal,
// with the desktop session, or with the display.
class ProgramEnds {
public:
    ProgramEnds(QApplication& app, frmMain& window);
    ~ProgramEnds();

private:
    EndSignals signals_;
};

}  // namespace zentrik
