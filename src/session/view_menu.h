#pragma once
// The View menu that the main window and the file viewer both carry.
class QWidget;

namespace brooklet {

struct Session;

// Enables the View items of a window that has the menu mnuView and the items mnuViewItem(i),
// by the files that exist; shows mnuView when any item is enabled.
void UpdateViewMenu(const Session& session, QWidget* window);

} // namespace brooklet
