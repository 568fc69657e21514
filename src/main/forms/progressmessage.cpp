#include "main/forms/progressmessage.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include "app/core/globals.h"
#include "app/core/libraries.h"
#include "app/core/placeholders.h"
#include "app/forms/captionrule.h"
#include "main/core/batchflags.h"
#include "platform/core/pause.h"

namespace {
struct Design {
    const char* name;
    int caption;
    int label;  // the label's string; %username is replaced
    qint16* stopFlag;
};

// Only the Delete and Move windows wait 200 milliseconds on load.
const Design kDesigns[] = {
    {"frmDeleteMsg", 327, 602, &CancelDelete},
    {"frmDuplicateMsg", 328, 604, &CancelDuplicate},
    {"frmMoveContactMsg", 332, 608, &CancelMove},
};

const Design& DesignOf(BatchKind kind) { return kDesigns[int(kind)]; }
}  // namespace

ProgressMessage::ProgressMessage(BatchKind kind, QWidget* owner) : Form(owner), kind_(kind) {
    setObjectName(DesignOf(kind).name);
    setModal(false);
    setMinimumWidth(320);
    Label1 = new QLabel(this);
    Label1->setObjectName("Label1");
    Label1->setWordWrap(true);
    cmdCancel = new QPushButton(this);
    cmdCancel->setObjectName("cmdCancel");
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(Label1);
    layout->addWidget(cmdCancel, 0, Qt::AlignRight);
    qint16* flag = DesignOf(kind).stopFlag;
    connect(cmdCancel, &QPushButton::clicked, this, [flag] { *flag = -1; });
}

void ProgressMessage::FormLoad() {
    const Design& design = DesignOf(kind_);
    setWindowTitle(GetLanguageString(design.caption));
    Label1->setText(WithOwnerName(GetLanguageString(design.label)));
    cmdCancel->setText(GetLanguageString(101));
    // The main window's font rule: the language's size and the charset.
    for (QWidget* control : {static_cast<QWidget*>(Label1), static_cast<QWidget*>(cmdCancel)}) {
        SetFontSize(control, LabelFontSize());
        SetFontCharset(control);
    }
    if (kind_ != BatchKind::Duplicate) Sleep(200);
}

ProgressMessage* ShowProgressMessage(BatchKind kind, QWidget* owner) {
    auto* window = owner->findChild<ProgressMessage*>(DesignOf(kind).name, Qt::FindDirectChildrenOnly);
    if (!window) {
        window = new ProgressMessage(kind, owner);
        window->setAttribute(Qt::WA_DeleteOnClose);
        window->FormLoad();
    }
    window->show();
    return window;
}

void UnloadProgressMessage(BatchKind kind, QWidget* owner) {
    if (auto* window = owner->findChild<ProgressMessage*>(DesignOf(kind).name, Qt::FindDirectChildrenOnly)) {
        window->setParent(nullptr);  // gone from the owner at once, deleted when the queue runs
        window->close();
    }
}
