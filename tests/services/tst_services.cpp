// The services. The check for updates runs against a loopback server that
// stands as the proxy of every request and answers it itself, so nothing
// leaves the machine; then a skin chosen from the menu, and the about box.
#include <QAction>
#include <QElapsedTimer>
#include <QLabel>
#include <QPushButton>
#include <QTcpServer>
#include <QTcpSocket>
#include "platform/core/appversion.h"
#include "platform/core/sysinfo.h"
#include "platform/core/sysinfotool.h"
#include "platform/forms/skinengine.h"
#include "platform/forms/wininet.h"
#include "services/forms/frmupdate.h"
#include "services/forms/modwininet.h"
#include "support/formstore.h"

namespace {
const char* const kMain = "\"00001\",\"Main\"\r\n";
const QString kFailure = "Error|16|Failure connecting to internet or webserver. HTTP response code: ";
const QString kNewer = "#Vellumark|A newer version of Tandry is available for download.|";
const char* const kGreenTrees = "QTreeView { background-color: rgb(10, 120, 30); }";

QByteArray Reply(const QByteArray& status, const QByteArray& body) {
    return "HTTP/1.1 " + status + "\r\nContent-Length: " + QByteArray::number(body.size()) + "\r\n\r\n" + body;
}
QByteArray Header(const QByteArray& request, const QByteArray& name) {
    for (const QByteArray& line : request.left(request.indexOf("\r\n\r\n")).split('\n'))
        if (line.startsWith(name + ": ")) return line.mid(name.size() + 2).trimmed();
    return {};
}

// Notes each whole request and answers it with `reply`; without one it
// keeps the connection open and says nothing.
struct LoopbackProxy : QTcpServer {
    QByteArray reply, last;
    std::function<void()> onRequest = [] {};
    LoopbackProxy() {
        listen(QHostAddress::LocalHost);
        SetInternetProxyForTest(serverPort());
        connect(this, &QTcpServer::newConnection, [this] {
            QTcpSocket* socket = nextPendingConnection();
            connect(socket, &QTcpSocket::readyRead, [this, socket, bytes = QByteArray()]() mutable {
                bytes += socket->readAll();
                const qsizetype end = bytes.indexOf("\r\n\r\n");
                if (end < 0 || bytes.size() < end + 4 + Header(bytes, "Content-Length").toInt()) return;
                last = bytes;
                onRequest();
                if (!reply.isEmpty()) socket->write(reply), socket->disconnectFromHost();
            });
        });
    }
    ~LoopbackProxy() override { SetInternetProxyForTest(0); }
    // "request line|Host|User-Agent|Content-Type|Cache-Control|body"
    QString seen() const {
        QStringList parts{QString(last.left(last.indexOf("\r\n")))};
        for (const char* name : {"Host", "User-Agent", "Content-Type", "Cache-Control"}) parts << Header(last, name);
        return (parts << last.mid(last.indexOf("\r\n\r\n") + 4)).join('|');
    }
};

// "title|description|address" of the update result shown, which is closed.
QString UpdateResult() {
    QString shown;
    for (QWidget* w : QApplication::topLevelWidgets())
        if (auto* d = qobject_cast<frmUpdate*>(w)) shown = d->windowTitle() + "|" + d->lbdesc->text() + "|" + d->lburl->text(), delete d;
    return shown;
}

QRgb TreeBackground(const FrmMain& w) {  // below the rows
    const QImage image = w.TreeView1->viewport()->grab().toImage();
    return image.pixel(5, image.height() - 5);
}
}  // namespace

class TestServices : public QObject {
    Q_OBJECT
private slots:
    void cleanup() {  // the version, the system, the engine and the tools as they were
        SetAppVersionForTest({}), SetOsVersionForTest(0, 0), SetSystemInformationToolsForTest({});
        SetSkinEngineLogForTest(nullptr), ResetSkinEngineForTest(), SkinEnabled = false, SkinPath.clear();
    }

    // While it waits the window shows the hourglass and refuses to close; a server that never answers is cut off by the time limit.
    void eachAnswerGivesItsOutcome() {
        MainStore m(kMain, "");
        FrmMain& w = m.open();
        LoopbackProxy p;
        SetAppVersionForTest({2, 3, 4});
        SetInternetTimeLimit(600);
        Qt::CursorShape waiting = Qt::ArrowCursor;
        p.onRequest = [&] {
            waiting = w.cursor().shape();
            w.close();
        };
        // the reply; the boxes, "#", the result dialog
        const struct { QByteArray reply; QString outcome; } rows[] = {
            {Reply("200 OK", "<update><code>0</code></update>"), "Vellumark|64|You already have the latest version of Tandry.#"},
            {Reply("200 OK", "<update><code>1</code><url>https://dl.example.org/t?a=1&b=2</url></update>"),
             kNewer + "<a href=\"https://dl.example.org/t?a=1&amp;b=2\">https://dl.example.org/t?a=1&amp;b=2</a>"},
            // No <code> is an empty code, which is not "0"; an address not of the web is no link.
            {Reply("200 OK", "<update><url>file:///etc/x</url></update>"), kNewer + "file:///etc/x"},
            {Reply("404 Not Found", "<update><code>0</code></update>"), kFailure + "404#"},
            {Reply("200 OK", "  "), kFailure + "200#"},
            {"", kFailure + "#"},  // silence
        };
        for (const auto& row : rows) {
            p.reply = row.reply;
            m.boxes.clear();
            QElapsedTimer clock;
            clock.start();
            m.trigger("mnuHelpUpdates");
            QCOMPARE(m.boxes.lines().join('\n') + "#" + UpdateResult(), row.outcome);
            QVERIFY(waiting == Qt::WaitCursor && w.cursor().shape() == Qt::ArrowCursor && w.isVisible());
            if (row.reply.isEmpty()) QVERIFY(clock.elapsed() >= 550 && clock.elapsed() < 4000);
        }
        QCOMPARE(p.seen(), "POST http://tandry.example.org/support/checkupdates.php HTTP/1.1|tandry.example.org|"
                           "Vellumark_App|application/x-www-form-urlencoded|no-cache|appid=TA&major=2&minor=3&rev=4");
        p.close();  // a refused connection
        m.boxes.clear();
        m.trigger("mnuHelpUpdates");
        QCOMPARE(m.boxes.lines(), QStringList(kFailure));
    }

    void aChosenSkinIsSavedAndNoSkinLeavesTheSettingAlone() {
        MainStore s(kMain, "");
        FrmMain& w = s.open();
        QStringList calls;
        SetSkinEngineLogForTest(&calls);
        const QString folder = QDir::currentPath();
        QDir::setCurrent(s.store.app());  // a bare caption is looked up from the working folder
        s.store.put("Skin3", kGreenTrees);
        // the engine's calls|the checked entries|trees green|[Skin] SkinFile
        auto run = [&](QAction* entry) {
            calls.clear();
            entry->trigger();
            QStringList checked;
            for (QAction* a : w.Menu("mnuSkin")->actions())
                if (a->isChecked()) checked << a->text();
            return QStringList{calls.join(','), checked.join(','), TreeBackground(w) == qRgb(10, 120, 30) ? "green" : "",
                               GetIniValue("Skin", "SkinFile", "", SettingFile())}.join('|');
        };
        const QList<QAction*> skins = w.findChildren<QAction*>("mnuSkinList");
        QCOMPARE(run(skins[2]), "SetDrawMode 2,SetEngineMode 1,SelectSkinFile \"Skin3\",LoadSelectedSkin,ApplyToAllForms 0"
                                "|Skin3|green|Skins\\Skin3");
        QCOMPARE(run(skins[4]), "SelectSkinFile \"Skin5\",LoadSelectedSkin||green|Skins\\Skin3");  // no such file
        QCOMPARE(run(w.Entry("mnuNoSkin")), "SelectSkinFile \"\",LoadSelectedSkin,ApplyToAllForms 0|No Skin||Skins\\Skin3");
        w.close();
        QDir::setCurrent(folder);
        QCOMPARE(GetIniValue("Skin", "SkinFile", "", SettingFile()), "Skins\\Skin3");
    }

    void theAboutBoxWithoutASystemInformationTool() {
        MainStore s(kMain, "");
        s.open();
        SetSystemInformationToolsForTest({"no-such-tool"});
        QString shown;
        ExpectModal([&](Form* f) {
            QTest::mouseClick(Control<QPushButton>(f, "cmdSysInfo"), Qt::LeftButton);
            shown = f->windowTitle() + (f->isVisible() ? " (still open)" : "");
            QTest::mouseClick(Control<QPushButton>(f, "cmdOK"), Qt::LeftButton);
        });
        s.trigger("mnuHelpAbout");
        QCOMPARE(shown, "About Tandry (still open)");
        QCOMPARE(s.boxes.lines(), QStringList("Tandry|0|System Information Is Unavailable At This Time"));
    }
};

QTEST_MAIN(TestServices)
#include "tst_services.moc"
