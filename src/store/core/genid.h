#pragma once
// Contact ids: drawn at random from 1 to 32766 until no record file of that
// number exists. The generator is never seeded, so every run draws the same
// numbers in the same order, and every id made in earlier runs costs one
// more draw. Category ids are drawn the same way (NewCategoryId).
#include <functional>

// Draws a number from 1 to 32766, and again while `inUse` says it is taken,
// 32765 times at the most; after that the last number drawn stands.
int DrawUnused(const std::function<bool(int)>& inUse);

// The id as a number (1..32766); 0 when the data folder can't be used.
int GenID();

// The process-wide generator: the next value in [0, 1).
float NextRandom();
void ResetRandomForTest();
