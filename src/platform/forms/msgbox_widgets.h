#pragma once
// The presenter that draws message boxes with the window system.
void InstallWidgetMsgBox();
