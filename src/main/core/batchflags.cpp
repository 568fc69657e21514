#include "main/core/batchflags.h"

qint16 CancelDelete = 0;
qint16 CancelDuplicate = 0;
qint16 CancelMove = 0;
