#pragma once

#include <QAction>

#include "platform/qt/windows/Screen.h"

// The frame's menu bar and toolbars.

namespace qt {

/// Makes the menu or entry of a MenuEntry control: in its container's menu, or in the menu bar.
void prcMakeMenu(ControlView& view);
void prcUpdateMenu(ControlView& view, const Control& control);

/// The entry of the frame's menus that a key with its modifiers clicks; none where there is no such
/// entry.
QAction* fncMenuEntryOf(int key, Qt::KeyboardModifiers modifiers);

/// Makes a toolbar below the frame's menu bar.
void prcMakeToolbar(ControlView& view);
void prcUpdateToolbar(ControlView& view, const Control& control);

/// Makes a button or separator in its toolbar.
void prcMakeTool(ControlView& view, QWidget* bar);
void prcUpdateTool(ControlView& view, const Control& control, bool blnFirst);

}  // namespace qt
