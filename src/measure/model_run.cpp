#include "measure/model_run.h"

#include "model/quiet_host.h"
#include "sim/run.h"

namespace zentrik {

void beginRun(Editor& ed) {
    QuietHost nobody;
    ed.chance.tie(1);
    ed.buttons.start = true;
    startClicked(ed, nobody);
}

bool stepRun(Editor& ed) {
    Timer1_Timer(ed);
    return ed.Timer1.enabled;
}

std::string whyStopped(const Editor& ed) { return ed.Timer1.enabled ? "" : ed.panels[4]; }

}  // namespace zentrik
