#include "export/subject.h"

#include "model/readout.h"

namespace zentrik {

Subject::Subject(const Editor& of) : ed(of) {
    ed.HoverNode = ed.HoverLink = none;
    ed.rubberBand.reset();
    if (!ed.buttons.sprite || ed.programFolder.empty()) return;
    sprites.read(ed.programFolder + "/sprites");
    ed.spriteNames = sprites.names();
    for (Node& node : ed.Nodes) node.SpriteIndex = spriteEntryOf(ed, node.Sprite);
}

}  // namespace zentrik
