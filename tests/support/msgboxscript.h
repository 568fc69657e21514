#pragma once
// Answers the program's message boxes in a test: every box is recorded, and
// answered from the script (or with OK / Yes when the script is empty).
#include <QList>
#include <deque>
#include "platform/core/msgbox.h"

class MsgBoxScript {
public:
    MsgBoxScript();   // installs itself
    ~MsgBoxScript();  // puts the presenter before it back
    void answer(int answer) { answers_.push_back(answer); }
    const QList<MsgBoxRequest>& shown() const { return shown_; }
    int count() const { return int(shown_.size()); }
    const MsgBoxRequest& last() const { return shown_.back(); }
    void clear() { shown_.clear(); }
private:
    QList<MsgBoxRequest> shown_;
    std::deque<int> answers_;
    MsgBoxPresenter before_;
};
