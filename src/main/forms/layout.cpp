// Where the main window's controls stand, and the window's size on coming up.
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QMenuBar>
#include <QScreen>
#include <QToolBar>
#include <QTreeWidget>
#include "app/core/inifile.h"
#include "main/forms/frmmain.h"
#include "main/forms/twips.h"
#include "main/forms/vsplitter.h"
#include "platform/core/numbers.h"

QRect FrmMain::TwipsOf(QWidget* control) const {
    auto it = rectTwips.constFind(control);
    if (it != rectTwips.constEnd()) return *it;
    const QRect px = control->geometry();
    return QRect(PixelsToTwipsX(px.x()), PixelsToTwipsY(px.y()), PixelsToTwipsX(px.width()),
                 PixelsToTwipsY(px.height()));
}

void FrmMain::ApplyGeometry(QWidget* control) {
    const QRect t = rectTwips.value(control);
    control->setGeometry(TwipsToPixelsX(t.x()), TwipsToPixelsY(t.y()), TwipsToPixelsX(t.width()),
                         TwipsToPixelsY(t.height()));
}

// One side of a control's rectangle in twips, set as the window's property
// would be. A negative size is an invalid value: the assignment fails and is
// left out.
bool FrmMain::SetTwips(QWidget* control, void (QRect::*side)(int), int value, bool isSize) {
    if (isSize && value < 0) return false;
    QRect t = TwipsOf(control);
    (t.*side)(value);
    rectTwips[control] = t;
    ApplyGeometry(control);
    return true;
}
bool FrmMain::SetLeft(QWidget* c, int v) { return SetTwips(c, &QRect::moveLeft, v, false); }
bool FrmMain::SetTop(QWidget* c, int v) { return SetTwips(c, &QRect::moveTop, v, false); }
bool FrmMain::SetWidth(QWidget* c, int v) { return SetTwips(c, &QRect::setWidth, v, true); }
bool FrmMain::SetHeight(QWidget* c, int v) { return SetTwips(c, &QRect::setHeight, v, true); }

// The window's size as the formulas below and setting.ini take it: the outer
// size of the window they were drawn for, with its title bar, borders and
// menu. The formulas end the list Toolbar1's height and 200 twips above the
// outer bottom edge, which is the client area's bottom edge in that window:
// that is the room they leave for the title bar, the borders and the menu,
// and nothing beside the 50 twips' margin at either side. A window manager's
// frame is drawn by another program to measures of its own (often half as
// high), so it is not counted here: the controls reach the bottom edge under
// any of them, and a size written at unload reads back the same.
int FrmMain::FrameAndMenuTwips() const { return PixelsToTwipsY(Toolbar1->sizeHint().height()) + 200; }
int FrmMain::MenuHeight(int windowWidth) const { return menuBar()->heightForWidth(windowWidth); }

int FrmMain::TwipsWidth() const { return PixelsToTwipsX(width()); }
int FrmMain::TwipsHeight() const {
    return PixelsToTwipsY(height() - MenuHeight(width())) + FrameAndMenuTwips();
}

void FrmMain::LayoutMainWindow() {
    const int w = TwipsWidth(), h = TwipsHeight();
    const int toolbarHeight = PixelsToTwipsY(Toolbar1->sizeHint().height());
    const int comboHeight = TwipsOf(cmbCountry).height();
    auto pump = [] { QApplication::processEvents(); };
    // Each step runs whatever became of the one before.
    SetTop(TreeView1, 800);
    SetLeft(TreeView1, 50);
    SetWidth(TreeView1, w / 4);
    SetHeight(TreeView1, h - toolbarHeight - comboHeight - 1000);
    pump();
    QRect tree = TwipsOf(TreeView1);
    SetTop(cmbCountry, tree.height() + tree.top() + 10);
    SetLeft(cmbCountry, tree.width() / 3);
    SetWidth(cmbCountry, tree.width() - TwipsOf(cmbCountry).left());
    pump();
    SetTop(lblCountry, tree.height() + tree.top() + 50);
    SetLeft(lblCountry, tree.left());
    SetWidth(lblCountry, tree.width() - TwipsOf(cmbCountry).width());
    pump();
    SetTop(VSplitter, tree.top());
    SetHeight(VSplitter, tree.height() + TwipsOf(cmbCountry).height());
    pump();
    SetTop(ListView1, tree.top());
    SetLeft(ListView1, TwipsOf(VSplitter).width() + tree.width() + 200);
    SetWidth(ListView1, w - TwipsOf(ListView1).left() - 100);
    SetHeight(ListView1, tree.height() + TwipsOf(cmbCountry).height());
    pump();
    SetHeight(VSplitter, TwipsOf(ListView1).height());
    pump();
    PlaceFromSplitter();
}

void FrmMain::PlaceFromSplitter() {
    // Ends at its first failure.
    const int w = TwipsWidth();
    const int split = TwipsOf(VSplitter).left();
    if (!SetWidth(TreeView1, split - 15)) return;
    if (!SetLeft(ListView1, split + 110)) return;
    if (!SetWidth(ListView1, w - split - 160)) return;
    const QRect tree = TwipsOf(TreeView1);
    if (!SetTop(cmbCountry, tree.height() + tree.top() + 10)) return;
    if (!SetLeft(cmbCountry, tree.width() / 3)) return;
    if (!SetWidth(cmbCountry, tree.width() - TwipsOf(cmbCountry).left())) return;
    if (!SetTop(lblCountry, tree.height() + tree.top() + 50)) return;
    if (!SetLeft(lblCountry, tree.left())) return;
    SetWidth(lblCountry, tree.width() - TwipsOf(cmbCountry).width());
}

void FrmMain::VSplitter_Moved(int leftPixels) {
    QRect t = TwipsOf(VSplitter);
    t.moveLeft(PixelsToTwipsX(leftPixels));
    rectTwips[VSplitter] = t;
    PlaceFromSplitter();
}

// On creation and each time a window of the program hands the focus back:
// the stored size, centred on the screen. A size the user gave the window is
// undone by this until the next unload writes it.
void FrmMain::SizeAndCentre() {
    long height = 5610, width = 6720;
    TextToLong(GetIniValue("Size", "Height", "5610", SettingFile()), height);
    TextToLong(GetIniValue("Size", "Width", "6720", SettingFile()), width);
    const int pixelsWide = TwipsToPixelsX(width);
    resize(pixelsWide, TwipsToPixelsY(height - FrameAndMenuTwips()) + MenuHeight(pixelsWide));
    QScreen* screen = QGuiApplication::primaryScreen();
    if (!screen) return;
    // Centred by the outer size just read; a move places the corner of the
    // window manager's frame. Its own frame is left out here as well: known
    // only once the window is shown, it would move the window after the
    // first dialog of the program closes.
    const int screenW = PixelsToTwipsX(screen->geometry().width());
    const int screenH = PixelsToTwipsY(screen->geometry().height());
    move(TwipsToPixelsX(screenW / 2 - int(width) / 2), TwipsToPixelsY(screenH / 2 - int(height) / 2));
}

void FrmMain::ActivatedByProgram() { SizeAndCentre(); }

void FrmMain::resizeEvent(QResizeEvent* event) {
    QMainWindow::resizeEvent(event);
    if (ListView1) LayoutMainWindow();
}
