#pragma once
// The Windows internet functions (open a session, connect, open and send a
// request, read the answer, query its status, close), over Qt Network. The
// whole run is one call: the caller gets the status and the body back, or
// nothing when no answer came.
//
// The call waits for the answer, as the Windows functions do, but in a
// local event loop that keeps painting the windows and holds back the user's
// input until the answer is in, and for no longer than the time limit.
#include <QByteArray>
#include <QList>
#include <QSslError>
#include <QString>

// The request flags, by their Windows values.
constexpr quint32 kInternetFlagReload = 0x80000000;        // do not answer from a cache
constexpr quint32 kInternetFlagSecure = 0x00800000;        // TLS
constexpr quint32 kInternetFlagIgnoreCertCnInvalid = 0x00001000;  // a certificate's wrong host name passes

struct InternetRequest {
    QString agent;
    QString method;     // "GET" or "POST"
    QString host;
    quint16 port = 80;
    QString path;       // the object asked for, without its leading "/"
    QString headers;    // "Name: value" lines, each ended by CR LF
    QByteArray body;
    QString userName;
    QString password;
    quint32 flags = 0;
};

struct InternetAnswer {
    QString statusCode;  // "200"; empty when no answer came
    QString statusText;  // "OK"
    QByteArray body;
};

// Of a certificate's faults only a wrong host name passes, and only when
// the flags say so; any other fault ends the request.
QList<QSslError> PassingCertificateErrors(const QList<QSslError>& errors, quint32 flags);

// Connects through the system's proxy configuration.
InternetAnswer SendInternetRequest(const InternetRequest& request);

// Milliseconds a request may take before it ends as one that got no
// answer: 15 seconds unless set.
void SetInternetTimeLimit(int milliseconds);
int InternetTimeLimit();

// ---- for tests: every request goes through an HTTP proxy on 127.0.0.1 at
// this port, in place of the system's proxies; 0 ends it.
void SetInternetProxyForTest(quint16 port);
