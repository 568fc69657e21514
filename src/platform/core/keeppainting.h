#pragma once
// Lets the windows repaint in the middle of a long road, without taking any
// input: the clicks and keys that come meanwhile wait in the queue and are
// taken after the road, as they would be if nothing ran. Cheap enough to
// call once per line or contact: the queue is run at most every 50 ms.
void KeepWindowPainting();
// The same at once, whatever the time since the queue last ran.
void PaintWindowsNow();
