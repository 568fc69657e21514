#pragma once
// The stop flags of the batches, process-wide: the Cancel button of a
// progress window sets one, and the batch reads it at the head of each
// contact, after the window queue has run once. True is -1.
#include <QtGlobal>

extern qint16 CancelDelete;     // frmDeleteMsg
extern qint16 CancelDuplicate;  // frmDuplicateMsg
extern qint16 CancelMove;       // frmMoveContactMsg
