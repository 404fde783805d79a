#pragma once

namespace tavrene::imaging {

/// From here on the TIFF library prints nothing, and what it says about damaged data is remembered. Damaged
/// scans are told of in the log and on the screen, not on the console.
void ListenToTiffLibrary();

/// Whether damage was met since the last `ListenToTiffLibrary`.
bool TiffWasDamaged();

}  // namespace tavrene::imaging
