#pragma once
// Add or edit a category: one name, appended to category.dat as a new
// category or written over the name of an existing one. The caller sets the
// caption (311 new, 303 edit) and the mode in the tag.
#include "platform/forms/modal.h"

class QLabel;
class QLineEdit;
class QPushButton;

class frmupdatecat : public Form {
    Q_OBJECT
public:
    explicit frmupdatecat(QWidget* parent = nullptr);
    void FormLoad() override;
    void FormActivate() override;

    // The mode: "1" a new category; "2" followed by the category id, an
    // edit. Empty at activation: the main window's CategoryTask.
    QString Tag;

    QLabel* lbcategory;
    QLineEdit* txtname;
    QPushButton* cmdSave;
    QPushButton* cmdClose;

private:
    void cmdSave_Click();
};

// Shows the dialog modally over `owner`, captioned with language string
// `caption`, in the mode `tag` (empty: the main window's CategoryTask).
void ShowUpdateCat(QObject* owner, int caption, const QString& tag = QString());

// Adds as categories the names of `names`, separated by CR LF, that aren't
// categories yet, without a dialog; then RefreshTreeView.
void AddCatMSO(const QString& names);
// The main window's tree anew from category.dat, names without counts.
void RefreshTreeView();
