#pragma once
// Commands that set, scale or remove one property of many nodes or links. They work on every slot of
// the model, used or not; with "Apply Changes Only to Selected Object" checked on the selected object,
// and without a selection they then refuse.

#include "model/editor.h"

namespace zentrik {

class Host;

void mnuResetMass_Click(Editor& ed, Host& host);
void mnuResetGravity_Click(Editor& ed, Host& host);
void mnuResetRotationalForces_Click(Editor& ed, Host& host);
void mnuResetInitial_Click(Editor& ed, Host& host);
void mnuResetVelocity_Click(Editor& ed, Host& host);
void mnuResetSprites_Click(Editor& ed, Host& host);
void mnuUnlockAll_Click(Editor& ed, Host& host);
void mnuLockAll_Click(Editor& ed, Host& host);

void mnuClearAnimators_Click(Editor& ed, Host& host);
void mnuResetK_Click(Editor& ed, Host& host);
void mnuResetAngle_Click(Editor& ed, Host& host);
void mnuResetForce_Click(Editor& ed, Host& host);
void mnuResetBarriers_Click(Editor& ed, Host& host);
void mnuDoubleK_Click(Editor& ed, Host& host);
void mnuHalfK_Click(Editor& ed, Host& host);
void mnuDoubleF_Click(Editor& ed, Host& host);
void mnuHalveF_Click(Editor& ed, Host& host);

// Ask for the value first; an empty answer changes nothing.
void mnuSetLinkK_Click(Editor& ed, Host& host);
void mnuSetLinkF_Click(Editor& ed, Host& host);

// Free slots; compaction takes them out.
void mnuRemoveNodes_Click(Editor& ed, Host& host);
void mnuRemoveLinks_Click(Editor& ed, Host& host);
void mnuRemoveFreeNodes_Click(Editor& ed, Host& host);

// Run several of the others in turn.
void mnuResetAllNodes_Click(Editor& ed, Host& host);
void mnuResetAllLinks_Click(Editor& ed, Host& host);

}  // namespace zentrik
