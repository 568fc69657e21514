#pragma once
// The tree's pictures, ImageList1: 1 a closed category, 2 an open (selected)
// category, 3 the root, which stands for all categories together.
#include <QIcon>

QIcon TreeImage(int index);

// A node's icon: `image` normally, `selectedImage` while it is selected, at
// 16 pixels. Made once per pair and style: the tree is rebuilt after every
// change of the store, and the theme's pictures are slow to look up.
QIcon NodeIcon(int image, int selectedImage);
