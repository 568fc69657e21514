#pragma once
// What the two contact dialogs have in common: the controls, the captions,
// the filling of the two drop-downs, the refusal to open without categories
// or countries, and the frame of a save. The new-contact and the edit
// dialog differ in the write itself, in what follows a successful write,
// and in which text boxes keep the design's charset.
#include <QList>
#include "dialogs/forms/itemcombo.h"
#include "platform/forms/modal.h"
#include "store/core/record.h"
#include "store/core/staging.h"

class QGridLayout;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QProgressBar;
class QPushButton;

class ContactDialog : public Form {
    Q_OBJECT
public:
    // ---- controls, by their names ----
    QLabel* lbcountry;
    ItemCombo* cbCountry;
    QLabel* lbcategory;
    ItemCombo* cbCategory;  // items are CategoryItemText
    QLabel* lbinfoname;
    QLineEdit* txtname;
    QLabel* lbtel1;
    QLineEdit* txttel1;
    QLabel* lbExt1;
    QLineEdit* txtext1;
    QPushButton* cmdPhone;
    QLabel* lbtel2;
    QLineEdit* txttel2;
    QLabel* lbExt2;
    QLineEdit* txtext2;
    QLabel* lbmobile;
    QLineEdit* txtmobile;
    QLabel* lbfax;
    QLineEdit* txtfax;
    QLabel* lbcompany;
    QLineEdit* txtcompany;
    QLabel* lbDesignation;
    QLineEdit* txtDesignation;
    QLabel* lbemail;
    QLineEdit* txtEmail;
    QLabel* lbaddr;
    QPlainTextEdit* txtaddr;
    QLabel* lbnotes;
    QPlainTextEdit* txtnotes;
    QProgressBar* ProgressBar;  // steps of a save, hidden at rest
    QPushButton* cmdSave;
    QPushButton* cmdClose;

    // A multi-line box's text as the store takes it, lines joined by CR LF,
    // and the other way round.
    static QString MultiLineText(const QPlainTextEdit* box);
    static void SetMultiLineText(QPlainTextEdit* box, const QString& text);

protected:
    explicit ContactDialog(QWidget* parent = nullptr);

    // The row of the e-mail box, for a button beside it.
    void addBesideEmail(QWidget* control);

    // The form caption and every control caption, then the caption rule:
    // labels, Save and Close take the language's size; all take the
    // charset but `withoutCharset`.
    void LoadContactCaptions(int formCaption, const QList<QWidget*>& withoutCharset);
    // 626 without categories, else 627 without countries; both unload the
    // dialog. True when the dialog was refused.
    bool RefuseWithoutLists();

    // The values of the controls at the time of a save.
    ContactForm ReadContactForm() const;

    // The write of a save, and what a successful one leads to.
    virtual StoreResult WriteContact(const ContactForm& form, const SaveProgress& progress) = 0;
    virtual void SaveSucceeded() = 0;

private:
    void cmdSave_Click();
    void cmdPhone_Click();
    void RestoreAfterSave();

    QGridLayout* grid_;
    int emailRow_ = 0;
};
