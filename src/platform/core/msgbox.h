#pragma once
// Message boxes. The program shows every box through MsgBox; the window
// layer installs the presenter that draws real boxes, and tests install one
// that records each box and answers it from a script.
#include <QString>
#include <functional>

enum MsgIcon { MsgCritical = 16, MsgQuestion = 32, MsgExclamation = 48, MsgInformation = 64 };
enum MsgButtons { MsgOkOnly = 0, MsgOkCancel = 1, MsgYesNoCancel = 3, MsgYesNo = 4 };
// Added to the buttons: the second button is the default, not the first.
constexpr int MsgDefaultButton2 = 256;
enum MsgAnswer { AnswerOk = 1, AnswerCancel = 2, AnswerYes = 6, AnswerNo = 7 };

struct MsgBoxRequest {
    QString prompt;
    QString title;
    int icon = 0;     // one of MsgIcon, or 0
    int buttons = 0;  // one of MsgButtons
    bool secondDefault = false;  // MsgDefaultButton2 was given
};

using MsgBoxPresenter = std::function<int(const MsgBoxRequest&)>;

// Shows a modal box; returns the answer.
int MsgBox(const QString& prompt, int icon, int buttons, const QString& title);
inline int MsgBox(const QString& prompt, int icon, const QString& title) {
    return MsgBox(prompt, icon, MsgOkOnly, title);
}

// Replaces the presenter; returns the one before.
MsgBoxPresenter SetMsgBoxPresenter(MsgBoxPresenter presenter);
