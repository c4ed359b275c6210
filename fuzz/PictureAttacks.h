// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

class Trials;

// Damages a picture file by what it is made of: chunks, segments, entries, palettes and frames that
// are put in, repeated, or claim more than they hold. Checksums and lengths stay right, so that the
// decoders go on to what was changed.
void DamageStructure(QByteArray& bytes, Trials& trials);
