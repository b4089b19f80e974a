#pragma once

class frmTabulon;

// Fills the shell's table of tabs and the registry of dialogs: the one place that knows every screen.
void RegisterTabs(frmTabulon& shell);
void RegisterDialogs();

// The start from the first line of the log to the first tab. The dialogs are registered before.
void OpenMainScreen(frmTabulon& shell);
