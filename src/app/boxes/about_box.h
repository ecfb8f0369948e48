#pragma once
class QWidget;

namespace zentrik {

// A window with the program's name, version and licence; it deletes itself when closed.
QWidget* makeAboutBox(QWidget* parent);

}  // namespace zentrik
