#include "platform/forms/modal.h"

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

void Form::Unload() {
    boolUnloaded = true;
    if (isVisible()) done(QDialog::Rejected);
}

int ShowModal(Form* form, QObject* owner) {
    form->FormLoad();
    int result = QDialog::Rejected;
    if (!form->IsUnloaded()) {
        QTimer::singleShot(0, form, [form] { form->FormActivate(); });
        if (!Scripts().empty()) {
            ModalScript script = std::move(Scripts().front());
            Scripts().pop_front();
            QPointer<Form> guarded(form);
            QTimer::singleShot(0, form, [guarded, script] {
                if (!guarded) return;
                script(guarded);
                if (guarded && guarded->isVisible()) guarded->Unload();
            });
        }
        result = form->exec();
    }
    if (auto* target = dynamic_cast<ActivationTarget*>(owner)) target->ActivatedByProgram();
    else if (auto* ownerForm = qobject_cast<Form*>(owner)) ownerForm->FormActivate();
    return result;
}

void ExpectModal(ModalScript script) { Scripts().push_back(std::move(script)); }
int PendingModalScripts() { return int(Scripts().size()); }
void ClearModalScripts() { Scripts().clear(); }
