#include "sim/model_run.h"

#include "host/quiet_host.h"
#include "sim/run.h"
#include "sim/step.h"

namespace zentrik {

void beginRun(Editor& ed) {
    QuietHost nobody;
    ed.chance.tie(1);
    ed.buttons.start = true;
    startClicked(ed, nobody);
}

bool stepRun(Editor& ed) {
    countCycle(ed);
    if (const std::string problem = advance(ed).problem; !problem.empty()) stopFor(ed, problem);
    return ed.Timer1.enabled;
}

std::string whyStopped(const Editor& ed) { return ed.Timer1.enabled ? "" : ed.panels[4]; }

}  // namespace zentrik
