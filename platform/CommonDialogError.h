#pragma once

// Throws RuntimeError with the number of CommDlgExtendedError when the last system dialog could not
// be shown; does nothing when the user cancelled it.
void ThrowUnlessCancelled();
