#include "platform/modal.h"

#include <QPointer>
#include <QTimer>
#include <deque>

namespace {
std::deque<ModalScript>& Scripts() {
    static std::deque<ModalScript> scripts;
    return scripts;
}
}  // namespace

Form::Form(QWidget* parent) : QDialog(parent) {}

void Form::unload() {
    unloaded_ = true;
    if (isVisible()) done(QDialog::Rejected);
}

int ShowModal(Form* form, QObject* owner) {
    form->formLoad();
    int result = QDialog::Rejected;
    if (!form->isUnloaded()) {
        QTimer::singleShot(0, form, [form] { form->formActivate(); });
        if (!Scripts().empty()) {
            ModalScript script = std::move(Scripts().front());
            Scripts().pop_front();
            QPointer<Form> guarded(form);
            QTimer::singleShot(0, form, [guarded, script] {
                if (!guarded) return;
                script(guarded);
                if (guarded && guarded->isVisible()) guarded->unload();
            });
        }
        result = form->exec();
    }
    if (auto* target = dynamic_cast<ActivationTarget*>(owner)) target->activatedByProgram();
    else if (auto* ownerForm = qobject_cast<Form*>(owner)) ownerForm->formActivate();
    return result;
}

void ExpectModal(ModalScript script) { Scripts().push_back(std::move(script)); }
int PendingModalScripts() { return int(Scripts().size()); }
void ClearModalScripts() { Scripts().clear(); }
