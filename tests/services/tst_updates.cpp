// The check for updates against a loopback server the test runs on
// 127.0.0.1: the request as the server receives it, and what the user sees
// for each reply, for silence and for a refused connection. The server
// stands as the proxy of every request and answers them all itself, so
// nothing leaves the machine.
#include <QElapsedTimer>
#include <QLabel>
#include <QPushButton>
#include <QTcpServer>
#include <QTcpSocket>
#include "platform/core/appversion.h"
#include "platform/forms/wininet.h"
#include "services/forms/frmupdate.h"
#include "services/forms/modwininet.h"
#include "support/formstore.h"

namespace {
const char* const kCategories = "\"00001\",\"Main\"\r\n";
const QString kFailure = "Error|16|Failure connecting to internet or webserver. HTTP response code: ";

QByteArray Reply(const QByteArray& statusLine, const QByteArray& body) {
    return "HTTP/1.1 " + statusLine + "\r\nContent-Length: " + QByteArray::number(body.size()) +
           "\r\nConnection: close\r\n\r\n" + body;
}

// Records each request as it arrives and answers it with `reply`; with no
// reply it keeps the connection open and says nothing.
struct LoopbackServer : QObject {
    QTcpServer server;
    QList<QByteArray> requests;
    QByteArray reply;
    std::function<void()> onRequest = [] {};

    LoopbackServer() {
        server.listen(QHostAddress::LocalHost);
        connect(&server, &QTcpServer::newConnection, this, [this] {
            QTcpSocket* socket = server.nextPendingConnection();
            connect(socket, &QTcpSocket::readyRead, this, [this, socket] { Read(socket); });
        });
        SetInternetProxyForTest(server.serverPort());
    }
    ~LoopbackServer() override { SetInternetProxyForTest(0); }

    void Read(QTcpSocket* socket) {
        QByteArray& bytes = pending[socket];
        bytes += socket->readAll();
        const qsizetype end = bytes.indexOf("\r\n\r\n");
        if (end < 0 || bytes.size() < end + 4 + Header(bytes, "Content-Length").toInt()) return;
        requests << bytes;
        onRequest();
        if (reply.isEmpty()) return;
        socket->write(reply);
        socket->disconnectFromHost();
    }
    static QByteArray Header(const QByteArray& request, const QByteArray& name) {
        for (const QByteArray& line : request.left(request.indexOf("\r\n\r\n")).split('\n'))
            if (line.toLower().startsWith(name.toLower() + ":")) return line.mid(name.size() + 1).trimmed();
        return {};
    }
    // "request line|Host|User-Agent|Content-Type|Cache-Control|body" of the last request.
    QString Seen() const {
        const QByteArray r = requests.value(requests.size() - 1);
        QStringList parts{QString(r.left(r.indexOf("\r\n")))};
        for (const char* name : {"Host", "User-Agent", "Content-Type", "Cache-Control"}) parts << Header(r, name);
        return (parts << r.mid(r.indexOf("\r\n\r\n") + 4)).join('|');
    }
    QHash<QTcpSocket*, QByteArray> pending;
};

QString UpdateDialog() {
    for (QWidget* w : QApplication::topLevelWidgets())
        if (auto* d = qobject_cast<frmUpdate*>(w); d && d->isVisible())
            return d->windowTitle() + "|" + d->lbdesc->text() + "|" + d->lburl->text();
    return {};
}
void CloseUpdateDialogs() {
    for (QWidget* w : QApplication::topLevelWidgets())
        if (qobject_cast<frmUpdate*>(w)) delete w;
}
}  // namespace

class TestUpdates : public QObject {
    Q_OBJECT
private slots:
    void init() { SetInternetTimeLimit(5000); }
    void cleanup() { CloseUpdateDialogs(); SetAppVersionForTest({}); }

    void theRequestAsTheServerReceivesIt() {
        LoopbackServer s;
        s.reply = Reply("404 Not Found", "gone");
        // address, body, port; what the server saw; status code|text|body given back
        const struct { const char *address, *body; int port; const char *seen, *answer; } rows[] = {
            {"HTTP://Tandry.Example.ORG/Support/CheckUpdates.PHP", "appid=TA&x=1", 80,
             "POST http://tandry.example.org/support/checkupdates.php HTTP/1.1|tandry.example.org|Vellumark_App|"
             "application/x-www-form-urlencoded|no-cache|appid=TA&x=1", "404|Not Found|gone"},
            {"host", "", 80, "GET http://host/ HTTP/1.1|host|Vellumark_App||no-cache|", "404|Not Found|gone"},
            {"host/a", "", 8080, "GET http://host:8080/a HTTP/1.1|host:8080|Vellumark_App||no-cache|", "404|Not Found|gone"},
            // Port 443: a TLS tunnel is asked of the proxy; refused, it is no answer.
            {"host/a", "", 443, "CONNECT host:443 HTTP/1.1|host|Vellumark_App|||", "||"},
        };
        for (const auto& row : rows) {
            QString code = "x", text = "x";
            const QString body = HttpRequest(row.address, row.body, row.port, "", "", code, text);
            QCOMPARE(s.Seen(), QString(row.seen));
            QCOMPARE(code + "|" + text + "|" + body, QString(row.answer));
        }
    }

    void onlyAWrongHostNamePassesAndOnlyWhenAsked() {
        const QList<QSslError> errors{QSslError(QSslError::SelfSignedCertificate), QSslError(QSslError::HostNameMismatch),
                                      QSslError(QSslError::CertificateExpired)};
        const quint32 on443 = kInternetFlagSecure | kInternetFlagIgnoreCertCnInvalid;
        QCOMPARE(PassingCertificateErrors(errors, on443), QList<QSslError>{QSslError(QSslError::HostNameMismatch)});
        QCOMPARE(PassingCertificateErrors(errors, kInternetFlagSecure), QList<QSslError>());
    }

    void eachReplyGivesItsOutcome() {
        MainStore m(kCategories, "");
        m.open();
        LoopbackServer s;
        SetAppVersionForTest({2, 3, 4});
        // reply; the boxes; the result dialog as "title|description|address"
        const struct { QByteArray reply; QStringList boxes; const char* dialog; } rows[] = {
            {Reply("200 OK", "<update><code>0</code></update>"),
             {"Vellumark|64|You already have the latest version of Tandry."}, ""},
            {Reply("200 OK", "<update><code>1</code><version>2.4</version><url>https://dl.example.org/t.zip</url></update>"),
             {}, "Vellumark|A newer version of Tandry is available for download.|"
                 "<a href=\"https://dl.example.org/t.zip\">https://dl.example.org/t.zip</a>"},
            // The second entry's code wins; lacking <url>, it keeps the first's.
            {Reply("200 OK", "<update><code>0</code><url>http://a/1</url></update><update><code>3</code></update>"),
             {}, "Vellumark|A newer version of Tandry is available for download.|<a href=\"http://a/1\">http://a/1</a>"},
            // No <code>: an empty code, which is not "0"; a non-web address is plain text.
            {Reply("200 OK", "<update><url>file:///etc/x</url></update>"),
             {}, "Vellumark|A newer version of Tandry is available for download.|file:///etc/x"},
            {Reply("404 Not Found", "<update><code>0</code></update>"), {kFailure + "404"}, ""},
            {Reply("200 OK", "  "), {kFailure + "200"}, ""},
        };
        for (const auto& row : rows) {
            s.reply = row.reply;
            m.boxes.clear();
            m.trigger("mnuHelpUpdates");
            QCOMPARE(m.boxes.lines(), row.boxes);
            QCOMPARE(UpdateDialog(), QString(row.dialog));
            CloseUpdateDialogs();
        }
        QCOMPARE(s.Seen(), QString("POST http://tandry.example.org/support/checkupdates.php HTTP/1.1|tandry.example.org|Vellumark_App|"
                                   "application/x-www-form-urlencoded|no-cache|appid=TA&major=2&minor=3&rev=4"));
    }

    void theAddressOfTheResultOpensInTheDesktop() {
        MainStore m(kCategories, "");
        m.open();
        QStringList opened;
        SetShellHandlerForTest([&](const QString& verb, const QString& file) { opened << verb + " " + file; return 42L; });
        frmUpdate* d = ShowUpdateResult(m.window.get(), "new", "https://dl.example.org/t.zip?a=1&b=2");
        emit d->lburl->linkActivated("https://dl.example.org/t.zip?a=1&b=2");
        QCOMPARE(opened, QStringList("open https://dl.example.org/t.zip?a=1&b=2"));
        QTest::mouseClick(d->cmdOK, Qt::LeftButton);
        QCOMPARE(UpdateDialog(), QString());
    }

    // A server that takes the request and never answers: the time limit
    // ends the wait as no connection. Meanwhile the window shows the
    // hourglass, repaints, and refuses to close.
    void silenceEndsAtTheTimeLimitWhileTheWindowPaints() {
        MainStore m(kCategories, "");
        FrmMain& w = m.open();
        LoopbackServer s;
        int paints = 0;
        Qt::CursorShape waiting = Qt::ArrowCursor;
        struct PaintCount : QObject {
            int* n;
            bool eventFilter(QObject*, QEvent* e) override { *n += e->type() == QEvent::Paint; return false; }
        } counter;
        counter.n = &paints;
        w.ListView1->viewport()->installEventFilter(&counter);
        s.onRequest = [&] {
            waiting = w.cursor().shape();
            paints = 0;
            w.ListView1->viewport()->update();
            w.close();
        };
        SetInternetTimeLimit(600);
        QElapsedTimer clock;
        clock.start();
        m.trigger("mnuHelpUpdates");
        QVERIFY2(clock.elapsed() >= 550 && clock.elapsed() < 4000, qPrintable(QString::number(clock.elapsed())));
        QCOMPARE(m.boxes.lines(), QStringList(kFailure));
        QCOMPARE(s.requests.size(), 1);
        QCOMPARE(waiting, Qt::WaitCursor);
        QVERIFY(paints > 0);
        QVERIFY(w.isVisible());
        QCOMPARE(w.cursor().shape(), Qt::ArrowCursor);
    }

    void aRefusedConnectionHasNoStatus() {
        MainStore m(kCategories, "");
        m.open();
        quint16 closedPort;
        {
            QTcpServer gone;
            gone.listen(QHostAddress::LocalHost);
            closedPort = gone.serverPort();
        }
        SetInternetProxyForTest(closedPort);
        m.trigger("mnuHelpUpdates");
        SetInternetProxyForTest(0);
        QCOMPARE(m.boxes.lines(), QStringList(kFailure));
    }
};

QTEST_MAIN(TestUpdates)
#include "tst_updates.moc"
