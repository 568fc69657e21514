#pragma once
// The one generic HTTP routine of the program.
#include <QString>

// Sends `body` to `address` on `port` (POST with a form body, GET when the
// body is empty) and returns the answer's body; the status code and text
// come back through the two outputs, empty when no answer came. Port 443
// means TLS, where a certificate for another host name still passes.
QString HttpRequest(const QString& address, const QString& body, int port, const QString& userName,
                    const QString& password, QString& statusCode, QString& statusText);
