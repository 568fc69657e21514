#include "platform/forms/wininet.h"

#include <QCoreApplication>
#include <QEvent>
#include <QEventLoop>
#include <QNetworkAccessManager>
#include <QNetworkProxyFactory>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QSslError>
#include <QTimer>
#include <QUrl>

namespace {
int g_timeLimit = 15000;
quint16 g_testProxyPort = 0;

// The proxy the desktop is set to use for each address.
class SystemProxyFactory : public QNetworkProxyFactory {
public:
    QList<QNetworkProxy> queryProxy(const QNetworkProxyQuery& query) override {
        return systemProxyForQuery(query);
    }
};

// While the request waits, a window's close is refused as well: the
// program is inside a command, as a window that takes no messages would be.
class HoldCloseRequests : public QObject {
public:
    HoldCloseRequests() { QCoreApplication::instance()->installEventFilter(this); }
    ~HoldCloseRequests() override { QCoreApplication::instance()->removeEventFilter(this); }
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() != QEvent::Close) return false;
        event->ignore();
        return true;
    }
};

bool Has(quint32 flags, quint32 flag) { return (flags & flag) == flag; }

QUrl RequestUrl(const InternetRequest& r, bool secure) {
    QUrl url;
    url.setScheme(secure ? QStringLiteral("https") : QStringLiteral("http"));
    url.setHost(r.host);
    if (r.port != (secure ? 443 : 80)) url.setPort(r.port);  // "Host:" names a port only when it isn't the scheme's
    // The object name is sent as it stands, a query after "?" included.
    const qsizetype question = r.path.indexOf(QLatin1Char('?'));
    url.setPath("/" + r.path.left(question < 0 ? r.path.size() : question), QUrl::TolerantMode);
    if (question >= 0) url.setQuery(r.path.mid(question + 1), QUrl::TolerantMode);
    if (!r.userName.isEmpty()) url.setUserName(r.userName);
    if (!r.password.isEmpty()) url.setPassword(r.password);
    return url;
}

QNetworkRequest NetworkRequest(const InternetRequest& r) {
    const bool secure = Has(r.flags, kInternetFlagSecure);
    QNetworkRequest request(RequestUrl(r, secure));
    request.setHeader(QNetworkRequest::UserAgentHeader, r.agent);
    for (const QString& line : r.headers.split(QStringLiteral("\r\n"), Qt::SkipEmptyParts)) {
        const qsizetype colon = line.indexOf(QLatin1Char(':'));
        if (colon > 0) request.setRawHeader(line.left(colon).trimmed().toLatin1(), line.mid(colon + 1).trimmed().toLatin1());
    }
    if (Has(r.flags, kInternetFlagReload)) {
        // Neither a cache of ours nor one on the way may answer.
        request.setAttribute(QNetworkRequest::CacheLoadControlAttribute, QNetworkRequest::AlwaysNetwork);
        request.setRawHeader("Cache-Control", "no-cache");
        request.setRawHeader("Pragma", "no-cache");
    }
    request.setAttribute(QNetworkRequest::Http2AllowedAttribute, false);
    return request;
}

}  // namespace

QList<QSslError> PassingCertificateErrors(const QList<QSslError>& errors, quint32 flags) {
    QList<QSslError> passing;
    if (!Has(flags, kInternetFlagIgnoreCertCnInvalid)) return passing;
    for (const QSslError& error : errors)
        if (error.error() == QSslError::HostNameMismatch) passing << error;
    return passing;
}

InternetAnswer SendInternetRequest(const InternetRequest& r) {
    QNetworkAccessManager session;
    if (g_testProxyPort) session.setProxy(QNetworkProxy(QNetworkProxy::HttpProxy, QStringLiteral("127.0.0.1"), g_testProxyPort));
    else session.setProxyFactory(new SystemProxyFactory);
    QNetworkReply* reply = session.sendCustomRequest(NetworkRequest(r), r.method.toLatin1(), r.body);
    QObject::connect(reply, &QNetworkReply::sslErrors, reply, [reply, flags = r.flags](const QList<QSslError>& errors) {
        reply->ignoreSslErrors(PassingCertificateErrors(errors, flags));
    });

    bool timedOut = false;
    QEventLoop wait;
    QTimer limit;
    limit.setSingleShot(true);
    QObject::connect(&limit, &QTimer::timeout, &wait, [&] {
        timedOut = true;
        reply->abort();
    });
    QObject::connect(reply, &QNetworkReply::finished, &wait, &QEventLoop::quit);
    limit.start(g_timeLimit);
    // Paint events pass, mouse and keys wait until the answer is in.
    if (!reply->isFinished()) {
        const HoldCloseRequests held;
        wait.exec(QEventLoop::ExcludeUserInputEvents);
    }

    InternetAnswer answer;
    const QVariant status = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute);
    if (!timedOut && status.isValid()) {
        answer.statusCode = QString::number(status.toInt());
        answer.statusText = reply->attribute(QNetworkRequest::HttpReasonPhraseAttribute).toString();
        answer.body = reply->readAll();
    }
    delete reply;
    return answer;
}

void SetInternetTimeLimit(int milliseconds) { g_timeLimit = milliseconds; }
int InternetTimeLimit() { return g_timeLimit; }
void SetInternetProxyForTest(quint16 port) { g_testProxyPort = port; }
