#pragma once

// What screen readers and test drivers are told of the widgets that paint themselves.

namespace qt {

/// Has the toolkit ask this program first for the roles and actions of its own widgets.
void prcInstallRoles();

}  // namespace qt
