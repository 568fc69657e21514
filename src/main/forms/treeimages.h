#pragma once
// The tree's pictures, ImageList1: 1 a closed category, 2 an open (selected)
// category, 3 the root, which stands for all categories together.
#include <QIcon>

QIcon TreeImage(int index);
