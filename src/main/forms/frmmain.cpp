#include "main/forms/frmmain.h"

#include <QApplication>
#include <QCloseEvent>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QSignalBlocker>
#include <QToolBar>
#include <QTreeWidget>
#include "app/core/globals.h"
#include "app/core/inifile.h"
#include "app/core/libraries.h"
#include "app/core/placeholders.h"
#include "app/forms/captionrule.h"
#include "main/forms/treeitems.h"
#include "main/forms/twips.h"
#include "main/forms/vsplitter.h"
#include "platform/core/appfolder.h"
#include "platform/core/fileops.h"
#include "platform/core/msgbox.h"
#include "platform/core/numbers.h"
#include "platform/core/sysinfo.h"
#include "platform/forms/pointer.h"
#include "services/forms/skins.h"
#include "store/core/failure.h"
#include "store/core/paths.h"
#include "store/core/snapshot.h"

FrmMain::FrmMain(QWidget* parent) : QMainWindow(parent) {
    setObjectName("FrmMain");
    BuildControls();
    BuildCommands();
    WireControls();
    SizeAndCentre();
}

void FrmMain::BuildControls() {
    auto* client = new QWidget(this);
    client->setObjectName("client");
    setCentralWidget(client);

    Toolbar1 = new QToolBar(client);
    Toolbar1->setObjectName("Toolbar1");
    Toolbar1->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    Toolbar1->setIconSize(QSize(24, 24));
    Toolbar1->setMovable(false);

    TreeView1 = new QTreeWidget(client);
    TreeView1->setObjectName("TreeView1");
    TreeView1->setHeaderHidden(true);
    TreeView1->setColumnCount(1);

    cmbCountry = new QComboBox(client);
    cmbCountry->setObjectName("cmbCountry");
    cmbCountry->setMaxVisibleItems(20);

    lblCountry = new QLabel(client);
    lblCountry->setObjectName("lblCountry");

    VSplitter = new VSplitterBar(client);
    connect(VSplitter, &VSplitterBar::moved, this, &FrmMain::VSplitter_Moved);

    ListView1 = new QTreeWidget(client);
    ListView1->setObjectName("ListView1");
    ListView1->setRootIsDecorated(false);
    ListView1->setColumnCount(5);
    ListView1->setHeaderLabels({"Contact Name", "Email Address", "Company", "Designation", "szID"});
    ListView1->setSelectionMode(QAbstractItemView::ExtendedSelection);
    ListView1->setUniformRowHeights(true);
    ListView1->header()->setStretchLastSection(false);
    ListView1->header()->setSectionsClickable(true);
    ListView1->header()->setMinimumSectionSize(0);  // the id column is all but zero wide

    // Starting places in twips; the layout routines move them from here.
    rectTwips[VSplitter] = QRect(2000, 800, 60, 4000);
    rectTwips[cmbCountry] = QRect(0, 0, 2000, PixelsToTwipsY(cmbCountry->sizeHint().height()));
    rectTwips[lblCountry] = QRect(0, 0, 600, PixelsToTwipsY(lblCountry->sizeHint().height()));
    Toolbar1->setGeometry(0, 0, 4000, Toolbar1->sizeHint().height());
}

void FrmMain::FormLoad() {
    LoadCaptions();
    intCountryClick = 1;
    CopyAddrFile();
    FillCountryFilter();
    qint16 country = 0;
    // A stored value that isn't a 16-bit number fails the load as well.
    if (!TextToInt16(GetIniValue("Setting", "Country", "0", SettingFile()), country))
        throw RoutineFailure("Type mismatch");
    // A stored index beyond the list is an invalid value: the load fails, and
    // with it the start. Without a country library the list is empty and
    // the program runs on with no country chosen.
    if (cmbCountry->count() > 0 && (country < -1 || country >= cmbCountry->count()))
        throw RoutineFailure("Invalid property value");
    if (cmbCountry->count() == 0) country = -1;
    // Setting the stored index raises the first click, which the guard swallows.
    cmbCountry->setCurrentIndex(country);
    if (cmbCountry->currentIndex() != country) cmbCountry_Click();
    LoadCategory();
    if (!FolderExists(DataFolder())) MakeFolder(DataFolder());
    ReadLayoutSettings();
    SkinControls({TreeView1, ListView1});
    if (!IsNTAdmin())
        MsgBox(WithOwnerName(GetEditionString(528)), MsgExclamation, GetLanguageString(300));
}

void FrmMain::LoadCaptions() {
    setWindowTitle(GetLanguageString(308));
    LoadCommandCaptions();
    const char* design[] = {"Contact Name", "Email Address", "Company", "Designation"};
    const int strings[] = {500, 532, 562, 563};
    for (int i = 0; i < 4; ++i) {
        QString caption = GetLanguageString(strings[i]);
        ListView1->headerItem()->setText(i, caption.isEmpty() ? QString(design[i]) : caption);
    }
    lblCountry->setText(GetLanguageString(508));
    for (QWidget* control : {static_cast<QWidget*>(lblCountry), static_cast<QWidget*>(ListView1),
                             static_cast<QWidget*>(TreeView1)}) {
        SetFontSize(control, LabelFontSize());
        SetFontCharset(control);
    }
}

void FrmMain::FillCountryFilter() {
    // Filling raises no click and leaves no item chosen: the click comes
    // when the load sets the stored index.
    const QSignalBlocker quiet(cmbCountry);
    cmbCountry->addItems(CountryNames());
    cmbCountry->setCurrentIndex(-1);
}

void FrmMain::ReadLayoutSettings() {
    for (int i = 0; i < 5; ++i) {
        long width = 350;
        TextToLong(GetIniValue("Grid", QString("ColWidth%1").arg(i), "350", SettingFile()), width);
        ListView1->setColumnWidth(i, TwipsToPixelsX(width));
    }
    long left = 2000;
    TextToLong(GetIniValue("VSplitter", "Left", "2000", SettingFile()), left);
    QRect t = TwipsOf(VSplitter);
    t.moveLeft(int(left));
    rectTwips[VSplitter] = t;
    ApplyGeometry(VSplitter);
    LayoutMainWindow();
}

void FrmMain::WriteLayoutSettings() {
    const QString file = SettingFile();
    PutIniValue("Setting", "Country", QString::number(cmbCountry->currentIndex()), file);
    PutIniValue("Size", "Height", SingleToText(TwipsHeight()), file);
    PutIniValue("Size", "Width", SingleToText(TwipsWidth()), file);
    for (int i = 0; i < 5; ++i)
        PutIniValue("Grid", QString("ColWidth%1").arg(i),
                    SingleToText(PixelsToTwipsX(ListView1->columnWidth(i))), file);
    PutIniValue("VSplitter", "Left", SingleToText(TwipsOf(VSplitter).left()), file);
}

void FrmMain::CopyAddrFile() { ::CopyAddrFile(); }
void FrmMain::DelAddrFile() { ::DelAddrFile(); }

int FrmMain::ListView1Count() const { return ListView1->topLevelItemCount(); }
QString FrmMain::cmbCountryText() const { return cmbCountry->currentText(); }

// Shut-down: the layout, the snapshots, the libraries, the other forms.
void FrmMain::FormUnload() {
    if (boolUnloaded) return;
    boolUnloaded = true;
    SetScreenPointer(11);
    WriteLayoutSettings();
    DelAddrFile();
    // While both are loaded; the unloads below delete them for certain.
    DeleteCountryLibraries();
    UnloadEditionLibrary();
    UnloadLanguageLibrary();
    UnloadPhoneCodeLibrary();
    UnloadCountryLibrary();
    // Compared with "frmmain" exactly: the window's own name never matches,
    // and unloading it a second time does nothing.
    for (QWidget* form : QApplication::topLevelWidgets())
        if (form != this && form->objectName() != "frmmain" && form->isVisible()) form->close();
    SetScreenPointer(0);
}

void FrmMain::closeEvent(QCloseEvent* event) {
    FormUnload();
    event->accept();
}

// mnuFileExit: the unload of the window, as closing it does.
void UnloadMainWindow(FrmMain& window) { window.close(); }
