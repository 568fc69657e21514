// Where the main window's controls stand, and the window's size on coming up.
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QScreen>
#include <QToolBar>
#include <QTreeWidget>
#include "app/inifile.h"
#include "main/frmmain.h"
#include "main/twips.h"
#include "main/vsplitter.h"

QRect FrmMain::twipsOf(QWidget* control) const {
    auto it = twips_.constFind(control);
    if (it != twips_.constEnd()) return *it;
    const QRect px = control->geometry();
    return QRect(PixelsToTwipsX(px.x()), PixelsToTwipsY(px.y()), PixelsToTwipsX(px.width()),
                 PixelsToTwipsY(px.height()));
}

void FrmMain::applyGeometry(QWidget* control) {
    const QRect t = twips_.value(control);
    control->setGeometry(TwipsToPixelsX(t.x()), TwipsToPixelsY(t.y()), TwipsToPixelsX(t.width()),
                         TwipsToPixelsY(t.height()));
}

// A negative size is an invalid value: the assignment fails and is left out.
bool FrmMain::setLeft(QWidget* c, int v) {
    QRect t = twipsOf(c);
    t.moveLeft(v);
    twips_[c] = t;
    applyGeometry(c);
    return true;
}
bool FrmMain::setTop(QWidget* c, int v) {
    QRect t = twipsOf(c);
    t.moveTop(v);
    twips_[c] = t;
    applyGeometry(c);
    return true;
}
bool FrmMain::setWidth(QWidget* c, int v) {
    if (v < 0) return false;
    QRect t = twipsOf(c);
    t.setWidth(v);
    twips_[c] = t;
    applyGeometry(c);
    return true;
}
bool FrmMain::setHeight(QWidget* c, int v) {
    if (v < 0) return false;
    QRect t = twipsOf(c);
    t.setHeight(v);
    twips_[c] = t;
    applyGeometry(c);
    return true;
}

int FrmMain::twipsWidth() const { return PixelsToTwipsX(width()); }
int FrmMain::twipsHeight() const { return PixelsToTwipsY(height()); }

void FrmMain::LayoutMainWindow() {
    const int w = twipsWidth(), h = twipsHeight();
    const int toolbarHeight = PixelsToTwipsY(Toolbar1->sizeHint().height());
    const int comboHeight = twipsOf(cmbCountry).height();
    auto pump = [] { QApplication::processEvents(); };
    // Each step runs whatever became of the one before.
    setTop(TreeView1, 800);
    setLeft(TreeView1, 50);
    setWidth(TreeView1, w / 4);
    setHeight(TreeView1, h - toolbarHeight - comboHeight - 1000);
    pump();
    QRect tree = twipsOf(TreeView1);
    setTop(cmbCountry, tree.height() + tree.top() + 10);
    setLeft(cmbCountry, tree.width() / 3);
    setWidth(cmbCountry, tree.width() - twipsOf(cmbCountry).left());
    pump();
    setTop(lblCountry, tree.height() + tree.top() + 50);
    setLeft(lblCountry, tree.left());
    setWidth(lblCountry, tree.width() - twipsOf(cmbCountry).width());
    pump();
    setTop(VSplitter, tree.top());
    setHeight(VSplitter, tree.height() + twipsOf(cmbCountry).height());
    pump();
    setTop(ListView1, tree.top());
    setLeft(ListView1, twipsOf(VSplitter).width() + tree.width() + 200);
    setWidth(ListView1, w - twipsOf(ListView1).left() - 100);
    setHeight(ListView1, tree.height() + twipsOf(cmbCountry).height());
    pump();
    setHeight(VSplitter, twipsOf(ListView1).height());
    pump();
    PlaceFromSplitter();
}

void FrmMain::PlaceFromSplitter() {
    // Ends at its first failure.
    const int w = twipsWidth();
    const int split = twipsOf(VSplitter).left();
    if (!setWidth(TreeView1, split - 15)) return;
    if (!setLeft(ListView1, split + 110)) return;
    if (!setWidth(ListView1, w - split - 160)) return;
    const QRect tree = twipsOf(TreeView1);
    if (!setTop(cmbCountry, tree.height() + tree.top() + 10)) return;
    if (!setLeft(cmbCountry, tree.width() / 3)) return;
    if (!setWidth(cmbCountry, tree.width() - twipsOf(cmbCountry).left())) return;
    if (!setTop(lblCountry, tree.height() + tree.top() + 50)) return;
    if (!setLeft(lblCountry, tree.left())) return;
    setWidth(lblCountry, tree.width() - twipsOf(cmbCountry).width());
}

void FrmMain::onSplitterMoved(int leftPixels) {
    QRect t = twipsOf(VSplitter);
    t.moveLeft(PixelsToTwipsX(leftPixels));
    twips_[VSplitter] = t;
    PlaceFromSplitter();
}

// On creation and each time a window of the program hands the focus back:
// the stored size, centred on the screen. A size the user gave the window is
// undone by this until the next unload writes it.
void FrmMain::SizeAndCentre() {
    long height = 5610, width = 6720;
    TextToLong(GetIniValue("Size", "Height", "5610", SettingFile()), height);
    TextToLong(GetIniValue("Size", "Width", "6720", SettingFile()), width);
    resize(TwipsToPixelsX(width), TwipsToPixelsY(height));
    QScreen* screen = QGuiApplication::primaryScreen();
    if (!screen) return;
    const int screenW = PixelsToTwipsX(screen->geometry().width());
    const int screenH = PixelsToTwipsY(screen->geometry().height());
    move(TwipsToPixelsX(screenW / 2 - int(width) / 2), TwipsToPixelsY(screenH / 2 - int(height) / 2));
}

void FrmMain::activatedByProgram() { SizeAndCentre(); }

void FrmMain::resizeEvent(QResizeEvent* event) {
    QMainWindow::resizeEvent(event);
    if (ListView1) LayoutMainWindow();
}
