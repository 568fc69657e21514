#pragma once
// Contact ids: drawn at random from 1 to 32766 until no record file of that
// number exists. The generator is never seeded, so every run draws the same
// numbers in the same order, and every id made in earlier runs costs one
// more draw.

// The id as a number (1..32766); 0 when the data folder can't be used.
int GenID();

// The process-wide generator: the next value in [0, 1).
float NextRandom();
void ResetRandomForTest();
