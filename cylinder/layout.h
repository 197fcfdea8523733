// The cylinder dialog's layout: one table of rows, in the order in which the controls are created.

#pragma once

class BaseDlg;

// The dialog's size in dialog pixels.
constexpr int dialog_width = 501;
constexpr int dialog_height = 450;

// Creates every control of the cylinder dialog in `dialog`, whose toolkit dialog is there.
void build_layout(BaseDlg& dialog);
