#pragma once
// Stands in for the message boxes while it lives: every box is recorded, and
// a question (Yes/No) is answered from the script. A question the test did
// not script fails the test and is answered No; a box with OK alone is
// answered OK, and the test compares the boxes it expected.
#include <QList>
#include <QStringList>
#include <deque>
#include "platform/core/msgbox.h"

class MsgBoxScript {
public:
    MsgBoxScript();
    ~MsgBoxScript();
    void answer(int answer) { answers_.push_back(answer); }
    int count() const { return int(shown_.size()); }
    const MsgBoxRequest& last() const { return shown_.back(); }
    // Each box as "title|icon|text", in the order shown.
    QStringList lines() const;
    void clear() { shown_.clear(); }

private:
    QList<MsgBoxRequest> shown_;
    std::deque<int> answers_;
    MsgBoxPresenter before_;
};
