#pragma once
// The start, measured from outside: the bench spawns itself in a child mode
// and takes the time from the spawn to the child's first paint of its
// window. The real child starts the program as its entry does (on the
// scratch store) and clicks the list's category, the user's first act; the
// bare child shows a plain Qt window with the floors' tree and list.
#include <QProcess>
#include <cstdlib>
#include "app/forms/general.h"
#include "platform/core/instance.h"
#include "platform/forms/msgbox_widgets.h"
#include "roadstore.h"

// Prints the time of the window's first paint and ends the process there.
class FirstPaint : public QObject {
protected:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() != QEvent::Paint) return false;
        std::printf("%lld\n", (long long)std::chrono::duration_cast<std::chrono::nanoseconds>(
                                  BenchClock::now().time_since_epoch()).count());
        std::fflush(stdout);
        std::_Exit(0);
    }
};

inline int StartReal(const QString& app, const QString& vellumark, int rows) {
    SetAppPathForTest(app);
    SetVellumarkFolderForTest(vellumark);
    SetInstanceNameForTest(QString("tandry-roads-bench-%1").arg(QCoreApplication::applicationPid()));
    InstallWidgetMsgBox();
    FrmMain* window = nullptr;
    Check(Main(&window) == StartResult::Started, "the program starts");
    QTreeWidgetItem* root = window->TreeView1->topLevelItem(0);
    for (int i = 0; i < root->childCount(); ++i)
        if (NodeKey(root->child(i)) == ListKey()) {
            window->TreeView1->setCurrentItem(root->child(i));
            emit window->TreeView1->itemClicked(root->child(i), 0);
        }
    Check(window->ListView1->topLevelItemCount() == rows, "the started window lists the category");
    FirstPaint paint;
    window->installEventFilter(&paint);
    return QApplication::exec();
}

inline int StartBare(const QString& app, const QString& temp, int rows) {
    const FloorFolders f{app.toStdString(), temp.toStdString()};
    BareWindow bare;
    CopyFloor(f);
    TreeFloor(f, kListCountry, bare.tree, bare.icon);
    Check(ListFloor(f, kListCountry, kListCategory, bare.list) == rows, "the bare window lists the category");
    bare.window.show();
    FirstPaint paint;
    bare.window.installEventFilter(&paint);
    return QApplication::exec();
}

// Spawns this bench in a child mode; the ms from the spawn to its first paint.
inline double SpawnToFirstPaint(const QStringList& arguments) {
    QProcess child;
    child.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    const auto spawn = BenchClock::now();
    child.start(QCoreApplication::applicationFilePath(), arguments);
    Check(child.waitForFinished(60000) && child.exitStatus() == QProcess::NormalExit && child.exitCode() == 0,
          "the child " + arguments.value(0) + " shows its window");
    const long long painted = child.readAllStandardOutput().trimmed().toLongLong();
    return double(painted - std::chrono::duration_cast<std::chrono::nanoseconds>(spawn.time_since_epoch()).count()) / 1e6;
}

// The start of the program on the store against the bare window.
inline BenchResult StartAgainstBare(const WindowOnStore& b, int runs, int rounds) {
    const QString rows = QString::number(b.s.model.inList());
    const QString childCache = b.s.dir.path() + "/child-cache/Vellumark", bareTemp = b.s.dir.path() + "/bare-temp";
    QDir().mkpath(bareTemp);
    return Alternate(runs, rounds, [&] { return SpawnToFirstPaint({"start-real", b.s.app, childCache, rows}); },
                     [&] { return SpawnToFirstPaint({"start-bare", b.s.app, bareTemp, rows}); });
}
