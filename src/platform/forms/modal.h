#pragma once
// Modal dialogs. Every form that the program shows modally goes through
// ShowModal, so that a test can take the dialog over inside its modal loop
// (ExpectModal) instead of waiting on it.
#include <QDialog>
#include <functional>

// A form of the program: load runs before it is shown and may unload it
// at once; activate runs on its first appearance and each time a modal
// child of it closes.
class Form : public QDialog {
    Q_OBJECT
public:
    explicit Form(QWidget* parent = nullptr);
    virtual void FormLoad() {}
    virtual void FormActivate() {}
    void Unload();                 // closes the form; a load that unloads ends the showing
    bool IsUnloaded() const { return boolUnloaded; }
private:
    bool boolUnloaded = false;
};

// Loads the form, and unless the load unloaded it, shows it modally. When
// it closes, `owner` (a Form or a window that takes activation) is
// activated again. Returns the dialog's result.
int ShowModal(Form* form, QObject* owner = nullptr);

// A window that is told when a modal form of the program hands the focus back.
class ActivationTarget {
public:
    virtual ~ActivationTarget() = default;
    virtual void ActivatedByProgram() = 0;
};

// ---- for tests ----
using ModalScript = std::function<void(Form*)>;
// The next modal form shown is handed to the script inside its modal loop;
// if the script leaves it open, it is closed after the script returns.
void ExpectModal(ModalScript script);
int PendingModalScripts();
void ClearModalScripts();
