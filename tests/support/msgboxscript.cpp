#include "support/msgboxscript.h"

MsgBoxScript::MsgBoxScript() {
    before_ = SetMsgBoxPresenter([this](const MsgBoxRequest& request) {
        shown_.append(request);
        if (!answers_.empty()) {
            int a = answers_.front();
            answers_.pop_front();
            return a;
        }
        return request.buttons == MsgYesNo || request.buttons == MsgYesNoCancel ? int(AnswerYes)
                                                                                : int(AnswerOk);
    });
}

MsgBoxScript::~MsgBoxScript() { SetMsgBoxPresenter(before_); }
