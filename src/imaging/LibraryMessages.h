#pragma once

namespace tavrene::imaging {

/// From here on the image libraries print nothing, and what they say about damage to a picture is remembered:
/// they take what was decoded up to there for the whole page. Damaged scans are told of in the log and on the
/// screen, not on the console.
void ListenToLibraries();

/// Whether this thread has met a damaged picture since its last `ListenToLibraries`.
bool DamageWasMet();

}  // namespace tavrene::imaging
