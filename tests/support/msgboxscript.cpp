#include "support/msgboxscript.h"

#include <QTest>

MsgBoxScript::MsgBoxScript() {
    before_ = SetMsgBoxPresenter([this](const MsgBoxRequest& request) {
        shown_.append(request);
        const bool question = request.buttons == MsgYesNo || request.buttons == MsgYesNoCancel;
        if (!question) return int(AnswerOk);
        if (answers_.empty()) {
            QTest::qFail(qPrintable("unscripted question: " + request.prompt), __FILE__, __LINE__);
            return int(AnswerNo);
        }
        const int answer = answers_.front();
        answers_.pop_front();
        return answer;
    });
}

MsgBoxScript::~MsgBoxScript() { SetMsgBoxPresenter(before_); }

QStringList MsgBoxScript::lines() const {
    QStringList lines;
    for (const MsgBoxRequest& box : shown_) lines << box.title + "|" + QString::number(box.icon) + "|" + box.prompt;
    return lines;
}
