#include "dialogs/forms/contactdialog.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QStyle>
#include <exception>
#include "app/core/globals.h"
#include "app/core/inifile.h"
#include "app/core/libraries.h"
#include "app/core/placeholders.h"
#include "app/forms/captionrule.h"
#include "dialogs/forms/frmphone.h"
#include "dialogs/forms/itemcombo.h"
#include "platform/core/msgbox.h"
#include "platform/forms/pointer.h"
#include "store/core/categories.h"
#include "store/core/text.h"

namespace {
// Grid columns: label, box, second label, second box, button.
constexpr int kLabel = 0, kBox = 1, kLabel2 = 2, kBox2 = 3, kButton = 4;
constexpr int kWholeRow = 3;  // a box without a second pair spans to the button column

template <typename T>
T* Named(QWidget* parent, const char* name) {
    auto* control = new T(parent);
    control->setObjectName(QString::fromLatin1(name));
    return control;
}

}  // namespace

ContactDialog::ContactDialog(QWidget* parent) : Form(parent) {
    lbcountry = Named<QLabel>(this, "lbcountry");
    cbCountry = new ItemCombo(200, this);  // country items are plain names
    cbCountry->setObjectName("cbCountry");
    lbcategory = Named<QLabel>(this, "lbcategory");
    cbCategory = new ItemCombo(200, this);
    cbCategory->setObjectName("cbCategory");
    lbinfoname = Named<QLabel>(this, "lbinfoname");
    txtname = Named<QLineEdit>(this, "txtname");
    lbtel1 = Named<QLabel>(this, "lbtel1");
    txttel1 = Named<QLineEdit>(this, "txttel1");
    lbExt1 = Named<QLabel>(this, "lbExt1");
    txtext1 = Named<QLineEdit>(this, "txtext1");
    cmdPhone = Named<QPushButton>(this, "cmdPhone");
    lbtel2 = Named<QLabel>(this, "lbtel2");
    txttel2 = Named<QLineEdit>(this, "txttel2");
    lbExt2 = Named<QLabel>(this, "lbExt2");
    txtext2 = Named<QLineEdit>(this, "txtext2");
    lbmobile = Named<QLabel>(this, "lbmobile");
    txtmobile = Named<QLineEdit>(this, "txtmobile");
    lbfax = Named<QLabel>(this, "lbfax");
    txtfax = Named<QLineEdit>(this, "txtfax");
    lbcompany = Named<QLabel>(this, "lbcompany");
    txtcompany = Named<QLineEdit>(this, "txtcompany");
    lbDesignation = Named<QLabel>(this, "lbDesignation");
    txtDesignation = Named<QLineEdit>(this, "txtDesignation");
    lbemail = Named<QLabel>(this, "lbemail");
    txtEmail = Named<QLineEdit>(this, "txtEmail");
    lbaddr = Named<QLabel>(this, "lbaddr");
    txtaddr = Named<QPlainTextEdit>(this, "txtaddr");
    lbnotes = Named<QLabel>(this, "lbnotes");
    txtnotes = Named<QPlainTextEdit>(this, "txtnotes");
    ProgressBar = Named<QProgressBar>(this, "ProgressBar");
    cmdSave = Named<QPushButton>(this, "cmdSave");
    cmdClose = Named<QPushButton>(this, "cmdClose");

    // The phone button carries a picture, no caption.
    cmdPhone->setIcon(style()->standardIcon(QStyle::SP_FileDialogContentsView));
    for (QLineEdit* ext : {txtext1, txtext2}) ext->setMaximumWidth(70);
    for (QPlainTextEdit* box : {txtaddr, txtnotes}) {
        box->setTabChangesFocus(true);
        box->setFixedHeight(64);
    }
    // The bar is fed the steps 1 to 6 of a save.
    ProgressBar->setRange(0, 6);
    ProgressBar->setTextVisible(false);
    ProgressBar->setVisible(false);

    grid_ = new QGridLayout;
    int row = 0;
    auto whole = [this, &row](QLabel* label, QWidget* box) {
        grid_->addWidget(label, row, kLabel);
        grid_->addWidget(box, row, kBox, 1, kWholeRow);
        ++row;
    };
    auto pair = [this, &row](QLabel* label, QWidget* box, QLabel* label2, QWidget* box2) {
        grid_->addWidget(label, row, kLabel);
        grid_->addWidget(box, row, kBox);
        grid_->addWidget(label2, row, kLabel2);
        grid_->addWidget(box2, row, kBox2);
        ++row;
    };
    whole(lbcountry, cbCountry);
    whole(lbcategory, cbCategory);
    whole(lbinfoname, txtname);
    grid_->addWidget(cmdPhone, row, kButton, Qt::AlignLeft);
    pair(lbtel1, txttel1, lbExt1, txtext1);
    pair(lbtel2, txttel2, lbExt2, txtext2);
    whole(lbmobile, txtmobile);
    whole(lbfax, txtfax);
    whole(lbcompany, txtcompany);
    whole(lbDesignation, txtDesignation);
    emailRow_ = row;
    whole(lbemail, txtEmail);
    whole(lbaddr, txtaddr);
    whole(lbnotes, txtnotes);
    for (QLabel* label : {lbaddr, lbnotes}) label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    grid_->setColumnStretch(kBox, 1);

    auto* buttons = new QHBoxLayout;
    buttons->addWidget(ProgressBar, 1);
    buttons->addStretch();
    buttons->addWidget(cmdSave);
    buttons->addWidget(cmdClose);

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(grid_);
    layout->addLayout(buttons);

    // The user types the name first: the dialog opens with the focus there,
    // while the tab order still starts at the country.
    txtname->setFocus();
    // Enter in a one-line box or a drop-down saves; a button with the focus
    // takes Enter for itself, and the multi-line boxes take it as a new line.
    cmdSave->setDefault(true);

    connect(cmdSave, &QPushButton::clicked, this, &ContactDialog::cmdSave_Click);
    connect(cmdClose, &QPushButton::clicked, this, &Form::Unload);
    connect(cmdPhone, &QPushButton::clicked, this, &ContactDialog::cmdPhone_Click);
}

void ContactDialog::addBesideEmail(QWidget* control) {
    grid_->addWidget(control, emailRow_, kButton);
}

QString ContactDialog::MultiLineText(const QPlainTextEdit* box) {
    QString text = box->toPlainText();
    return text.replace(u'\n', QStringLiteral("\r\n"));
}

void ContactDialog::SetMultiLineText(QPlainTextEdit* box, const QString& text) {
    QString lines = text;
    box->setPlainText(lines.replace(QStringLiteral("\r\n"), QStringLiteral("\n")));
}

void ContactDialog::LoadContactCaptions(int formCaption, const QList<QWidget*>& withoutCharset) {
    setWindowTitle(GetLanguageString(formCaption));
    lbcountry->setText(GetLanguageString(508));
    lbcategory->setText(GetLanguageString(501));
    lbinfoname->setText(GetLanguageString(500));
    lbtel1->setText(GetLanguageString(503));
    lbExt1->setText(GetLanguageString(505));
    lbtel2->setText(GetLanguageString(504));
    lbExt2->setText(GetLanguageString(505));
    lbmobile->setText(GetLanguageString(518));
    lbfax->setText(GetLanguageString(519));
    lbaddr->setText(GetLanguageString(520));
    lbemail->setText(GetLanguageString(532));
    lbcompany->setText(GetLanguageString(562));
    lbDesignation->setText(GetLanguageString(563));
    lbnotes->setText(GetLanguageString(564));
    cmdSave->setText(GetLanguageString(102));
    cmdClose->setText(GetLanguageString(103));
    cmdPhone->setToolTip(GetLanguageString(565));
    // Of the buttons only Save and Close take the language's size; the
    // labels take it in the rule.
    SetFontSize(cmdSave, LabelFontSize());
    SetFontSize(cmdClose, LabelFontSize());
    CaptionRuleOptions options;
    // The phone button holds a picture and is none of Save and Close: it
    // keeps the design's font.
    options.withoutCharset = withoutCharset;
    options.withoutCharset << cmdPhone;
    ApplyCaptionRule(this, options);
}

bool ContactDialog::RefuseWithoutLists() {
    if (cbCategory->count() == 0) {
        MsgBox(WithOwnerName(GetLanguageString(626)), MsgExclamation, GetLanguageString(300));
    } else if (cbCountry->count() == 0) {
        MsgBox(GetLanguageString(627), MsgExclamation, GetLanguageString(300));
    } else {
        return false;
    }
    Unload();
    return true;
}

ContactForm ContactDialog::ReadContactForm() const {
    ContactForm form;
    form.name = txtname->text();
    form.tel1 = txttel1->text();
    form.ext1 = txtext1->text();
    form.tel2 = txttel2->text();
    form.ext2 = txtext2->text();
    form.mobile = txtmobile->text();
    form.fax = txtfax->text();
    form.company = txtcompany->text();
    form.designation = txtDesignation->text();
    form.addr = MultiLineText(txtaddr);
    form.notes = MultiLineText(txtnotes);
    form.mail = txtEmail->text();
    form.countryIndex = cbCountry->currentIndex();
    form.countryText = cbCountry->currentItemText();
    form.categoryId = CategoryIdFromItem(cbCategory->currentItemText());
    return form;
}

void ContactDialog::cmdSave_Click() {
    if (TrimSpaces(txtname->text()).isEmpty()) {
        MsgBox(GetLanguageString(506), MsgCritical, GetLanguageString(300));
        return;
    }
    const QString notSaved = GetLanguageString(507);
    const QString title = GetLanguageString(301);
    StoreResult saved = StoreError::Failed;
    try {
        cmdSave->setEnabled(false);
        ProgressBar->setVisible(true);
        SetScreenPointer(11);
        EnsureStoreFiles();
        ProgressBar->setValue(1);
        saved = WriteContact(ReadContactForm(), [this](int step) { ProgressBar->setValue(step); });
        // Told while the save is still on screen, before the general 507.
        if (!saved && saved.error() == StoreError::StagedRecordMissing)
            MsgBox(GetLanguageString(531), MsgCritical, GetLanguageString(301));
    } catch (const std::exception&) {
        // a failure of the frame itself ends quietly
        RestoreAfterSave();
        return;
    }
    RestoreAfterSave();
    if (saved) SaveSucceeded();
    else MsgBox(notSaved, MsgCritical, title);
}

void ContactDialog::RestoreAfterSave() {
    cmdSave->setEnabled(true);
    ProgressBar->setVisible(false);
    SetScreenPointer(0);
}

void ContactDialog::cmdPhone_Click() {
    frmphone phone(this);
    ShowModal(&phone, this);
}

