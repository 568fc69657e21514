#pragma once
// The three modeless progress windows of the batches, one design: a label,
// a Cancel button that sets the batch's stop flag and does nothing else, a
// caption. The window stays until its batch unloads it.
#include "platform/forms/modal.h"

class QLabel;
class QPushButton;

enum class BatchKind { Delete, Duplicate, Move };

class ProgressMessage : public Form {
    Q_OBJECT
public:
    // frmDeleteMsg, frmDuplicateMsg or frmMoveContactMsg, child of `owner`.
    ProgressMessage(BatchKind kind, QWidget* owner);
    void FormLoad() override;

    QLabel* Label1;
    QPushButton* cmdCancel;

private:
    BatchKind kind_;
};

// Loads (or finds, when it is loaded already) the batch's window and shows
// it without modality.
ProgressMessage* ShowProgressMessage(BatchKind kind, QWidget* owner);
// Unloads the batch's window when it is loaded.
void UnloadProgressMessage(BatchKind kind, QWidget* owner);
