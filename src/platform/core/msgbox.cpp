#include "platform/core/msgbox.h"

#include <cstdio>

namespace {
// Without a window system a box can only be told on the error stream.
int StreamPresenter(const MsgBoxRequest& request) {
    std::fprintf(stderr, "%s: %s\n", request.title.toLocal8Bit().constData(),
                 request.prompt.toLocal8Bit().constData());
    return request.buttons == MsgYesNo || request.buttons == MsgYesNoCancel ? AnswerYes : AnswerOk;
}

MsgBoxPresenter& Presenter() {
    static MsgBoxPresenter presenter = StreamPresenter;
    return presenter;
}
}  // namespace

int MsgBox(const QString& prompt, int icon, int buttons, const QString& title) {
    MsgBoxRequest request{prompt, title, icon, buttons & ~MsgDefaultButton2, (buttons & MsgDefaultButton2) != 0};
    return Presenter()(request);
}

MsgBoxPresenter SetMsgBoxPresenter(MsgBoxPresenter presenter) {
    MsgBoxPresenter before = Presenter();
    Presenter() = presenter ? std::move(presenter) : MsgBoxPresenter(StreamPresenter);
    return before;
}
