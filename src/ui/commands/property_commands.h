#pragma once
// The buttons of the property toolbar that are no numbers. Each runs with its node or link selected and
// after its button changed state.

#include "ui/commands/commands.h"

namespace zentrik {

void lockedClicked(Editor& ed, Host& host);
void shooterClicked(Editor& ed, Host& host);
void colorClicked(Editor& ed, Host& host);
void animatorClicked(Editor& ed, Host& host);
void linkBarrierClicked(Editor& ed, Host& host);

}  // namespace zentrik
